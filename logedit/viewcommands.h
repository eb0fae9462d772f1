#pragma once

#include <functional>
#include <string>

#include "logedit/filterrow.h"
#include "logedit/logedit.h"
#include "logedit/logstatistics.h"
#include "logedit/playerpanel.h"
#include "platform/virtuallist.h"

namespace quirn {

// What the player does with the displayed lines without touching the log: undo a deletion, filter by text, show all,
// see one player only, another font.
class ViewCommands {
public:
    // shown: the view has changed and is to be counted anew. All outlive it.
    ViewCommands(LogEdit& edit, VirtualList& list, PlayerPanel& players, std::function<void()> shown);

    bool HasLog() const { return edit_.view.Log() != nullptr; }
    bool CanUndo() const { return edit_.view.CanUndo(); }
    bool CanRedo() const { return edit_.view.CanRedo(); }
    bool HasSpeaker() const { return Speaker() != 0; }

    void Delete();
    void Undo();
    void Redo();
    void FilterByText(const std::string& text);
    void ShowAll();  // and, when all is shown, what the filters leave
    void FindPrevious(const std::string& text);
    std::vector<PlayerStatistics> CountPlayers(bool shownOnly) const;
    void OnlyPlayer(const std::string& name);
    void OnlySpeaker();  // of the line at the keyboard
    void HideSpeaker();
    void Everyone();
    void ChooseLogFont();
    void ChooseLogColor(bool foreground);

    // Does something to the view; the first line in sight, the line at the keyboard and the selected lines stay what
    // they are as far as they are still shown.
    void KeepPlace(const std::function<void()>& change);

private:
    static constexpr size_t kNoLine = SIZE_MAX;
    struct LinesInPlace {
        size_t top = 0;
        size_t current = kNoLine;
        bool selects = false;
        ListSelection selected;
    };

    LinesInPlace Remember() const;
    ListSelection ItemsOf(const ListSelection& lines) const;
    uint32_t Speaker() const;  // 0: nobody
    void Restore(const LogView::Restored& restored);
    void ApplyPlayers();

    LogEdit& edit_;
    VirtualList& list_;
    PlayerPanel& players_;
    std::function<void()> shown_;
};

}  // namespace quirn
