#pragma once

#include <deque>
#include <string>

#include "logedit/frmlogfind.h"
#include "logedit/logedit.h"
#include "platform/form.h"
#include "platform/virtuallist.h"

namespace quirn {

// Opens a chat log, filters it by message type and player, deletes lines from the view, searches it and saves what is
// shown.
class frmLogEdit : public Form {
public:
    // gameFolder: where file dialogs start. edit outlives the window.
    frmLogEdit(const std::string& gameFolder, LogEdit& edit);

private:
    void Form_Load();
    void Form_Resize();
    bool Form_Unload();
    bool Form_KeyDown(int key, bool control);
    void Form_KeyPress(char character);

    void MenuCommand(int command);
    void mnuFile_Open_Click();
    void mnuFile_SaveAs_Click();
    void mnuOptions_Apply_Click();
    void mnuOptions_LineNums_Click();
    void mnuSearch_Find_Click();
    void mnuLogEditPopup_Delete_Click();
    void mnuInExPopup_All_Click();
    void mnuInExPopup_Invert_Click();
    void ChooseLogFont();
    void ChooseLogColor(bool foreground);
    void RefreshLogMRUMenu();

    void chkFilters_Click();
    void cmdIn_Click();
    void cmdOut_Click();

    void OpenLog(const std::string& path);
    void ApplyLogFilter();
    void MovePlayers(VirtualList& from, VirtualList& to);
    void FindInLog(const std::string& text);
    void CopySelected();

    PlayerList& PlayersOf(const VirtualList& list);
    void ShowPlayers();
    void ShowLog();
    void UpdateListCounts();
    void ShowProgress(const std::string& caption, uint64_t maximum);
    void HideProgress();

    const std::string& gameFolder_;
    LogEdit& edit_;
    bool busy_ = false;  // parsing or filtering; what the player does in the meantime waits for another time
    Menu menuBar_;
    Menu mnuLogEditPopup_, mnuInExPopup_;
    VirtualList* popupList_;  // that mnuInExPopup was opened on

    Frame famProgFrame;
    ProgressBar ProgBar;
    VirtualList lstLog;
    Label lblInclude;
    VirtualList lstInclude;
    Button cmdIn, cmdOut, cmdApplyFilter;
    Label lblExclude;
    VirtualList lstExclude;
    Frame Frame1;
    std::deque<CheckBox> chkFilters;
    StatusBar StatusBar1;
    frmLogFind find_;
};

}  // namespace quirn
