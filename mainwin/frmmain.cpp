#include "mainwin/frmmain.h"

#include "auxiliary/addresses.h"
#include "auxiliary/frmabout.h"
#include "auxiliary/frmrelnotes.h"
#include "auxiliary/menuhelp.h"
#include "auxiliary/opendocument.h"
#include "game/transfer.h"
#include "mainwin/appsettings.h"
#include "mainwin/bindingtables.h"
#include "mainwin/frmoptions.h"
#include "mainwin/loading.h"
#include "platform/dialogs.h"
#include "platform/files.h"
#include "platform/settings.h"
#include "platform/shell.h"
#include "platform/text.h"
#include "platform/version.h"

namespace quirn {

namespace {

constexpr int kWidth = 8748;
constexpr int kHeight = 6456;

// The inner size for which the places are meant. How much room the frame leaves is the system's choice.
constexpr int kInnerWidth = 8505;
constexpr int kInnerHeight = 5550;

// clang-format off
//                              left   top  width  height
constexpr Bounds kTabs{           90,   75, 8325, 4620};
constexpr Bounds kRun{          2552, 4785, 3400, kButtonHeight};
// On the page "Macros R-Shift":
constexpr Bounds kCopyMacros{   2520, 3660, 1800, kButtonHeight};
constexpr Bounds kDistinguish{  4560, 3720, 2400, kCheckHeight};
// clang-format on

constexpr const SettingRow& kDistinguishRow = setting::Find(setting::Group::Options, "Distinguish");

constexpr int kMacrosShiftPage = 4;
constexpr char kToldOfTray[] = "ToldOfTray";  // once ever
constexpr char kHelpPage[] = "\\help.html";

}  // namespace

frmMain::frmMain(Program& program)
    : Form(FormBorder::Fixed, kWidth, kHeight),
      program_(program),
      edited_([this] { program_.dirty = true; }),
      fileCommands_(program, VersionTitle(),
                    {
                        .ShowProfile = [this] { ShowProfile(); },
                        .CollectProfile = [this] { CollectProfile(); },
                        .ShowMacros = [this] { ShowMacros(); },
                        .CollectMacros = [this] { CollectMacros(); },
                        .ShowMacroPage = [this] { SSTab1.SetTab(kMacrosShiftPage); },
                        .SetTitle =
                            [this](const std::string& title) {
                                SetCaption(title);
                                profilesCommands_.LookSoon();
                            },
                        .SetStatus =
                            [this](const std::string& text) {
                                StatusBar1.SetText(text);
                                profilesCommands_.LookSoon();
                            },
                        .RefreshRecentMenu = [this] { RefreshRecentMenu(menuBar_, program_.recentFiles); },
                    }),
      launcher_(program),
      trayCommands_(*this, program, launcher_),
      menuBar_(MenuRows()),
      SSTab1(*this, kTabs),
      identityPage_(SSTab1, program.profile, edited_),
      optionsPage_(SSTab1, program.profile, edited_),
      advancedPage_(SSTab1, program.profile, edited_),
      hiddenPage_(SSTab1, program.profile, edited_),
      shiftPage_(SSTab1, setting::NameOf(setting::Page::MacrosShift), program.profile, 1, edited_),
      rShiftPage_(SSTab1, setting::NameOf(setting::Page::MacrosRShift), program.profile, 1 + kMacrosPerSet, edited_),
      ignorePage_(SSTab1, program.profile, edited_),
      txtShift(shiftPage_.Texts()),
      txtRShift(rShiftPage_.Texts()),
      Command4(rShiftPage_, kCopyMacros, "Copy from Shift"),
      chkDistinguish(rShiftPage_, kDistinguish, kDistinguishRow.caption),
      Command3(*this, kRun, "Transfer Profile And Run Subspace"),
      noticeBar_(*this, [this](Notice::Action action) { profilesCommands_.FollowNotice(action); }),
      picker_(*this, SSTab1, edited_),
      StatusBar1(*this),
      anchors_(kInnerWidth, kInnerHeight),
      profilesCommands_(
          *this, program, launcher_, noticeBar_,
          {
              .CollectProfile = [this] { CollectProfile(); },
              .ShowProfile = [this] { ShowProfile(); },
              .SetStatus = [this](const std::string& text) { StatusBar1.SetText(text); },
              .PutBackVersion = [this](auto& path,
                                       auto& version) { return fileCommands_.PutBackVersion(path, version); },
              .Open = [this](auto& path) { fileCommands_.OpenDropped(path); },
              .Play = [this](auto& path) { trayCommands_.Play(path); },
              .RefreshMenus =
                  [this] {
                      RefreshRecentMenu(menuBar_, program_.recentFiles);
                      ShowFavourites();
                  },
              .ShowKeepRow = [this](bool some) { trayCommands_.ShowKeepRow(some); },
          }) {
    anchors_.Add(SSTab1, Anchor::Center, Anchor::Stay).Add(Command3, Anchor::Center, Anchor::Center);
    for (Control* control : noticeBar_.Controls()) anchors_.Add(*control, Anchor::Center, Anchor::Center);
    for (CheckBox& box : optionsPage_.Boxes()) chkSettings.push_back(&box);
    chkSettings.push_back(&advancedPage_.EmulatorBox());
    chkSettings.push_back(&chkDistinguish);
    chkDistinguish.Tag = kDistinguishRow.name;
    chkDistinguish.onClick = edited_;

    Command3.SetToolTip("Transfer current Profile to Subspace");
    Command3.onClick = [this] { Command3_Click(); };
    Command4.SetToolTip("Copies macros from SHIFT set");
    Command4.onClick = [this] { Command4_Click(); };
    for (MacroPage* page : {&shiftPage_, &rShiftPage_}) {
        page->onPercent = [this](TextBox& target) { picker_.Open(target); };
        page->onImport = [this] { fileCommands_.mnuFile_Import_Click(); };
    }

    SetMenu(menuBar_);
    // Closing only hides the window; the text is kept on purpose.
    ShowMenuHelp(*this, StatusBar1, {&menuBar_, &trayCommands_.IconMenu()},
                 "Close this window and terminate this program");
    trayCommands_.onKeepChanges = [this] { profilesCommands_.FollowNotice(Notice::Action::Keep); };
    trayCommands_.onFillFavourite = [this] { ShowOptions(true); };

    identityPage_.onZoneInList = [this](const std::string& zone) { StatusBar1.SetText(zone); };
    HideRecentMenu(menuBar_);
    ShowFavourites();
    SSTab1.onClick = [this] { picker_.Close(); };

    onLoad = [this] { Form_Load(); };
    onResize = [this] { Form_Resize(); };
    onActivate = [this] { profilesCommands_.LookSoon(); };
    onQueryUnload = [this](UnloadMode mode) { return Form_QueryUnload(mode); };
    onUnload = [this] { return Form_Unload(); };
    // One profile is open at a time: of several files the first.
    onDropFiles = [this](const std::vector<std::string>& paths) { fileCommands_.OpenDropped(paths.front()); };
}

void frmMain::Form_Load() {
    Move(ReadMainPlace(Place()));
    ReadLists(program_);
    ShowFavourites();
    RefreshRecentMenu(menuBar_, program_.recentFiles);
    Form_Resize();
    // A second copy finds the first by the start of this text.
    SetCaption(VersionTitle() + " - " + program_.CurrentFile);

    std::optional<std::vector<Zone>> zones = LoadZoneList(program_.gameFolder, [this] { ShowOptions(false); });
    if (!zones) {
        // Without a list of zones there is nothing to play: the program ends.
        Unload();
        return;
    }
    identityPage_.SetZones(std::move(*zones));
    ShowError(ReadProfileFromGame(program_.profile, program_.gameFolder));
    ShowProfile();
    profilesCommands_.Look();
    trayCommands_.Icon().Add();
    if (program_.quiet) Hide();
}

void frmMain::Form_Resize() {
    if (!IsMinimized()) anchors_.Place(InnerWidth(), InnerHeight());
}

// The close box only hides the window: the program stays in the tray.
bool frmMain::Form_QueryUnload(UnloadMode mode) {
    if (mode != UnloadMode::CloseBox) return true;
    mnuFile_Close_Click();
    return false;
}

// The icon is gone for good once the player has stayed at the question of an exit: then he must hear how to come back.
void frmMain::mnuFile_Close_Click() {
    Hide();
    profilesCommands_.LookSoon();
    if (!trayCommands_.Icon().IsThere())
        ShowMessage("QUIRN is still running, but its icon has gone from the tray. Start QUIRN again to see its window.",
                    kInformation);
    else if (!program_.quiet && GetNumberSetting(kSettings, kToldOfTray, 0) == 0) {
        SaveSetting(kSettings, kToldOfTray, "1");
        trayCommands_.Icon().ShowBalloon("QUIRN is still here",
                                         "A double click on this icon brings the window back. "
                                         "The right button plays a favourite or ends QUIRN.");
    }
}

bool frmMain::Form_Unload() {
    const bool goOn = (!program_.dirty || fileCommands_.AskSaveChanges()) &&
                      (!logEditor_ || logEditor_->Unload(UnloadMode::FromCode));
    // A minimised window keeps nothing, on purpose, not even the recent files and favourites.
    if (goOn && !IsMinimized()) WriteMainSettings(program_, Place());
    // Also when the player has stayed at the question: the icon is then gone, on purpose.
    trayCommands_.Icon().Remove();
    if (goOn) launcher_.CloseRunBox();
    if (goOn) profilesCommands_.CloseWindows();
    return goOn;
}

void frmMain::ShowProfile() {
    identityPage_.Show();
    optionsPage_.Show();
    for (CheckBox* box : chkSettings)
        box->SetValue(OptionsSetting(program_.profile, box->Tag, SettingMode::CheckState));
    advancedPage_.Show();
    ShowMacros();
    ignorePage_.Show();
    hiddenPage_.Show();
}

void frmMain::CollectProfile() {
    identityPage_.Collect();
    optionsPage_.Collect();
    for (const CheckBox* box : chkSettings) {
        const int setting = OptionsSetting(program_.profile, box->Tag, SettingMode::Index);
        program_.profile.Options.Value(setting) = std::to_string(box->Value());
    }
    advancedPage_.Collect();
    CollectMacros();
    ignorePage_.Collect();
    hiddenPage_.Collect();
}

void frmMain::ShowMacros() {
    picker_.Close();  // its variable belongs to the macro that was there before
    shiftPage_.Show();
    rShiftPage_.Show();
}

void frmMain::CollectMacros() {
    shiftPage_.Collect();
    rShiftPage_.Collect();
}

// Printing is not offered, on purpose.
void frmMain::mnuFile_Print_Click() {
    ShowMessage("Function unavailable in this version.", kInformation);
}

void frmMain::mnuOptions_Set_Click() {
    ShowOptions(false);
}

// Also while the window is open: its lists then show what a filter would no longer find. Kept on purpose.
void frmMain::mnuLog_Click() {
    logEdit_.Forget();
    if (!logEditor_) logEditor_ = std::make_unique<frmLogEdit>(program_.gameFolder, logEdit_);
    logEditor_->Show();
    logEditor_->BringToFront();
}

void frmMain::mnuHelp_Contents_Click() {
    if (!ShowHelpContents(*this, program_.helpFile)) OpenDocument(*this, ProgramFolder() + kHelpPage);
}

void frmMain::mnuHelp_Revision_Click() {
    frmRelNotes().ShowModal(*this);
}

void frmMain::mnuHelp_GotoQUIRNWebSite_Click() {
    OpenDocument(*this, kQuirnWebSite);
}

void frmMain::mnuHelp_GotoSSWebSite_Click() {
    OpenDocument(*this, kGameWebSite);
}

void frmMain::mnuHelp_About_Click() {
    frmAbout().ShowModal(*this);
}

void frmMain::ShowOptions(bool favourites) {
    frmOptions dialog(program_, [this] { ShowFavourites(); });
    if (favourites) dialog.SelectTab(frmOptions::kFavourites);
    dialog.ShowModal(*this);
    profilesCommands_.LookSoon();
}

void frmMain::Command3_Click() {
    if (program_.dirty && !fileCommands_.AskSaveChanges()) return;
    CollectProfile();
    if (launcher_.TransferAndLaunch(program_.profile, {program_.CurrentFile, TransferWay::Run})) Hide();
}

// The question is Run's; the favourite is played from a copy, so what is not saved stays in the window.
void frmMain::mnuProfilesFav_Click(size_t slot) {
    if (program_.dirty && !fileCommands_.AskToSave()) return;
    trayCommands_.Play(std::string(program_.favourites[slot].path));
}

void frmMain::ShowFavourites() {
    trayCommands_.BuildFavouritesMenu();
    bool any = false;
    for (size_t i = 0; i < program_.favourites.size(); ++i) {
        const Favourite& favourite = program_.favourites[i];
        const int command = mnuProfilesFav + static_cast<int>(i);
        menuBar_.SetCaption(command, "&" + std::to_string(i + 1) + " " + DoubleAmpersands(favourite.name));
        menuBar_.SetVisible(command, !favourite.IsEmpty());
        any |= !favourite.IsEmpty();
    }
    menuBar_.SetVisible(mnuProfilesBarFav, any);
}

void frmMain::Command4_Click() {
    for (size_t i = 0; i < txtShift.size(); ++i) txtRShift[i].SetText(txtShift[i].Text());
    edited_();
}

}  // namespace quirn
