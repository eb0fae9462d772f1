#pragma once

#include <memory>

#include "logedit/frmlogedit.h"
#include "mainwin/advancedpage.h"
#include "mainwin/filecommands.h"
#include "mainwin/hiddenpage.h"
#include "mainwin/identitypage.h"
#include "mainwin/ignorepage.h"
#include "mainwin/macropage.h"
#include "mainwin/macropicker.h"
#include "mainwin/optionspage.h"
#include "mainwin/profilescommands.h"
#include "mainwin/program.h"
#include "mainwin/traycommands.h"
#include "platform/anchors.h"
#include "platform/form.h"

namespace quirn {

// The program's one document window: the current profile on seven pages, the menus, and the icon in the tray.
class frmMain : public Form {
public:
    explicit frmMain(Program& program);

    // Profile to controls and back. Showing marks nothing as edited.
    void ShowProfile();
    void CollectProfile();

private:
    void Form_Load();
    void Form_Resize();
    bool Form_QueryUnload(UnloadMode mode);
    bool Form_Unload();

    std::vector<MenuRow> MenuRows();
    void mnuFile_Print_Click();
    void mnuFile_Close_Click();
    void mnuFile_Exit_Click() { Unload(); }
    void mnuOptions_Set_Click();
    void mnuLog_Click();
    void mnuHelp_Contents_Click();
    void mnuHelp_Revision_Click();
    void mnuHelp_GotoQUIRNWebSite_Click();
    void mnuHelp_GotoSSWebSite_Click();
    void mnuHelp_About_Click();

    void Command3_Click();
    void Command4_Click();
    void mnuProfilesFav_Click(size_t slot);
    void ShowFavourites();  // their names in the menus
    void ShowOptions(bool favourites);
    void ShowMacros();
    void CollectMacros();

    Program& program_;
    Edited edited_;
    FileCommands fileCommands_;
    Launcher launcher_;
    TrayCommands trayCommands_;
    Menu menuBar_;

    TabStrip SSTab1;
    IdentityPage identityPage_;
    OptionsPage optionsPage_;
    AdvancedPage advancedPage_;
    HiddenPage hiddenPage_;
    MacroPage shiftPage_;
    MacroPage rShiftPage_;
    IgnorePage ignorePage_;
    ControlArray<TextBox>& txtShift;
    ControlArray<TextBox>& txtRShift;
    Button Command4;
    CheckBox chkDistinguish;
    std::vector<CheckBox*> chkSettings;  // wherever they stand, in no order: their tags say what they are
    Button Command3;
    NoticeBar noticeBar_;
    MacroPicker picker_;
    StatusBar StatusBar1;
    Anchors anchors_;
    ProfilesCommands profilesCommands_;

    LogEdit logEdit_;
    std::unique_ptr<frmLogEdit>
        logEditor_;  // made when first asked for; kept, since it may close in the middle of work
};

}  // namespace quirn
