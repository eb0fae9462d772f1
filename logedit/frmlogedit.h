#pragma once

#include <deque>
#include <string>

#include "logedit/filterrow.h"
#include "logedit/followcommands.h"
#include "logedit/frmlogfind.h"
#include "logedit/frmlogstatistics.h"
#include "logedit/logedit.h"
#include "logedit/playerpanel.h"
#include "logedit/progressframe.h"
#include "logedit/viewcommands.h"
#include "platform/anchors.h"
#include "platform/form.h"
#include "platform/virtuallist.h"

namespace quirn {

// Opens a chat log, filters it by message type and player, deletes lines from the view, searches it and saves what is
// shown.
class frmLogEdit : public Form {
public:
    // gameFolder: where file dialogs start. Both outlive the window.
    frmLogEdit(const std::string& gameFolder, LogEdit& edit);

private:
    void Form_Load();
    void PlaceOnScreen(Bounds place);
    void Form_Resize();
    bool Form_Unload();
    bool Form_KeyDown(int key, bool control);

    std::vector<MenuRow> MenuRows();
    std::vector<MenuRow> LogPopupRows();
    std::vector<MenuRow> PlayersPopupRows();
    void mnuFile_Open_Click();
    void mnuFile_Several_Click();
    void mnuFile_SaveAs_Click();
    bool MayReplace(const std::string& path) const;
    void mnuFileMRU_Click(size_t index);
    void mnuFile_Close_Click() { Unload(); }
    void Toggle(int command, bool& option);
    void mnuOptions_LineNums_Click();
    void mnuSearch_Find_Click();
    void FindAgain(bool upwards);
    void mnuView_Statistics_Click();
    void mnuView_Unknown_Click();
    void mnuView_Colors_Click();
    void mnuInExPopup_Only_Click();
    void mnuLogEditPopup_Delete_Click();
    void RefreshLogMRUMenu();

    void chkFilters_Click();

    void OpenLog(const LogPaths& paths);
    void ApplyLogFilter();
    void SelectAll();
    void CopySelected();
    void CopyLines();
    void lstLog_MouseDown();
    void ShowCounts();
    void ShowFile();

    const std::string& gameFolder_;
    LogEdit& edit_;
    Menu menuBar_;
    Menu mnuLogEditPopup_, mnuInExPopup_;

    Anchors anchors_;
    ProgressFrame progress_;
    VirtualList lstLog;
    PlayerPanel players_;
    Button cmdApplyFilter;
    Frame Frame1;
    std::deque<CheckBox> chkFilters;
    FilterRow row_;
    StatusBar StatusBar1;
    ViewCommands commands_;
    FollowCommands follow_;
    frmLogFind find_;
    frmLogStatistics statistics_;
};

}  // namespace quirn
