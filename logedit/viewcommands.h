#pragma once

#include <functional>
#include <optional>
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

    // Of several logs that are shown as one: the one that the line at the keyboard comes from, or the first one in
    // sight.
    bool HasSeveral() const { return HasLog() && edit_.view.Log()->Files().size() > 1; }
    std::string FileInSight() const;  // without its folder; empty when there are not several
    void GoToNextLog();               // its first line that is shown
    void GoToPreviousLog();

    bool HasLog() const { return edit_.view.Log() != nullptr; }
    bool CanUndo() const { return edit_.view.CanUndo(); }
    bool CanRedo() const { return edit_.view.CanRedo(); }
    bool HasSpeaker() const { return Speaker() != 0; }
    bool CanHideSpeaker() const { return players_.Includes(Speaker()); }

    void ShowAnew();  // other lines: the list begins at its start, nothing is selected

    void Delete();
    void Undo();
    void Redo();
    void FilterByText(const std::string& text);
    void ShowAll();  // and, when all is shown, what the filters leave
    void FindNext(const std::string& text);
    void FindPrevious(const std::string& text);
    std::vector<PlayerStatistics> CountPlayers(bool shownOnly) const;
    void OnlyPlayer(const std::string& name);
    void OnlySpeaker();  // of the line at the keyboard
    void HideSpeaker();
    void Everyone();
    // These leave deleted lines deleted, and apply nothing that the player has not applied himself.
    void ApplyPlayers();  // the lists of players as they are now
    void ShowUnknown();   // or hides the lines of unknown kind again
    // LogLines is the log that is shown, read again.
    void ShowReadAgain();
    // The log has grown; it had so many lines and players. Returns how many items are new.
    size_t ShowNew(size_t lines, size_t players);
    void ChooseLogFont();
    void ChooseLogColor(bool foreground);

    // Does something to the view; the selected lines and the one at the keyboard stay what they are as far as they are
    // still shown. That one, or the first one when it is not in sight, stays where it is too.
    void KeepPlace(const std::function<void()>& change);

private:
    static constexpr size_t kNoLine = SIZE_MAX;
    struct LinesInPlace {
        size_t anchor = 0;  // the line that stays where it is
        size_t above = 0;   // so many rows are over it
        size_t current = kNoLine;
        bool selects = false;
        ListSelection selected;
    };

    LinesInPlace Remember() const;
    std::optional<size_t> CurrentInSight() const;
    std::optional<size_t> LogInSight() const;  // index of the log's files
    void GoToLine(size_t line);
    void FilterAnew(const std::shared_ptr<const ParsedLog>& log, const LineFilter& filter, bool keepsAll);
    ListSelection ItemsOf(const ListSelection& lines) const;
    uint32_t Speaker() const;  // 0: nobody
    void Restore(const LogView::Restored& restored);

    LogEdit& edit_;
    VirtualList& list_;
    PlayerPanel& players_;
    std::function<void()> shown_;
    LinesInPlace emptied_;  // while nothing is shown: what there was before
};

}  // namespace quirn
