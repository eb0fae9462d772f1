#pragma once

#include <functional>
#include <string>
#include <vector>

#include "logedit/logedit.h"
#include "platform/anchors.h"
#include "platform/form.h"
#include "platform/timer.h"
#include "platform/virtuallist.h"

namespace quirn {

// The two lists of players below the log, and the buttons that move names from one to the other.
class PlayerPanel {
public:
    // edit outlives the panel. Its controls follow the form's lower edge by these anchors.
    PlayerPanel(Form& form, LogEdit& edit, Anchors& anchors);

    std::function<void()> onMove;   // players have changed lists
    std::function<void()> onPopUp;  // the menu mnuInExPopup is wanted; its commands are for the list that was clicked

    void Reset();  // as without a log
    void Empty();  // before a log is read
    void Show();   // what the edit's lists hold, nothing selected

    // In a list it leads to the next name that begins with it, or with all characters of the last second.
    void KeyPress(char character);
    // These move players, and tell nobody.
    void ShowOnly(const std::vector<uint32_t>& numbers);
    void Hide(uint32_t number);
    void Everyone();
    void FillAgain();  // with the players of a log that was read again; who was excluded by name stays so
    // Of a log that has grown, those behind the first so many. Who was excluded before it was read again is so again.
    void AddNew(size_t known);
    void mnuInExPopup_Only_Click();  // the selected ones of the list that was clicked, or the one under the pointer
    bool CanShowOnly() const { return pointed_ != 0 || popupList_->Selection().SelectedCount() > 0; }
    void mnuInExPopup_All_Click();  // the commands of the menu
    void mnuInExPopup_Invert_Click();
    bool HasFocus() const { return lstInclude.HasFocus() || lstExclude.HasFocus(); }
    std::string SelectedText();  // of the list that has the keyboard, CR LF between names; else empty
    bool Includes(uint32_t number) const;

private:
    void cmdIn_Click();
    void cmdOut_Click();
    void MovePlayers(VirtualList& from, VirtualList& to);
    void MoveNumbers(PlayerList& from, PlayerList& to, const std::function<bool(uint32_t number)>& moves);
    bool ExcludeReturned();
    void ShowAdded();
    bool GoTo(VirtualList& list, size_t from, const std::string& start);
    void UpdateListCounts();
    PlayerList& PlayersOf(const VirtualList& list);

    LogEdit& edit_;
    VirtualList* popupList_;  // that mnuInExPopup was opened on
    uint32_t pointed_ = 0;    // the player that it was opened at; 0: none
    std::string typed_;       // the characters of the last second
    Timer typing_;

    Label lblInclude;
    VirtualList lstInclude;
    Button cmdIn, cmdOut;
    Label lblExclude;
    VirtualList lstExclude;
};

}  // namespace quirn
