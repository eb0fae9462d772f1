#include "mainwin/traycommands.h"

#include "game/settingsstore.h"
#include "mainwin/loading.h"
#include "mainwin/menurows.h"
#include "platform/files.h"
#include "platform/folders.h"
#include "platform/text.h"

namespace quirn {

namespace {

constexpr char kTip[] = "Nothing here yet.";

}  // namespace

TrayCommands::TrayCommands(Form& mainWindow, const Program& program, Launcher& launcher)
    : mainWindow_(mainWindow),
      program_(program),
      launcher_(launcher),
      mnuPUTrayIcon(MenuRows()),
      tray_(mainWindow, kTip) {
    ShowKeepRow(false);
    tray_.onMouse = [this](unsigned message) { Tray_Mouse(message); };
}

void TrayCommands::BuildFavouritesMenu() {
    for (size_t i = 0; i < program_.favourites.size(); ++i)
        mnuPUTrayIcon.SetCaption(mnuPUTrayIcon_Fav + static_cast<int>(i),
                                 DoubleAmpersands(program_.favourites[i].name));
}

void TrayCommands::Tray_Mouse(unsigned message) {
    // The icon answers while a dialog is open too: the menu would end or play from under it.
    if (mainWindow_.IsBlocked()) {
        if (message == kMouseLeftDoubleClick || message == kMouseRightDown) mainWindow_.BringToFront();
        return;
    }
    if (message == kMouseLeftDoubleClick) mnuPUTrayIcon_Open_Click();
    if (message == kMouseRightDown) {
        TickFavourites();
        mainWindow_.PopUpMenu(mnuPUTrayIcon, mnuPUTrayIcon_Open);
    }
}

// Which of them the game holds now. A file on another computer is not looked at: the menu must open at once.
void TrayCommands::TickFavourites() {
    const Result<GameSettings> game = ReadGameSettings();
    for (size_t i = 0; i < program_.favourites.size(); ++i) {
        const Favourite& favourite = program_.favourites[i];
        Profile profile;
        InitCatalogue(profile);
        const bool holds = !game.Failed() && !favourite.IsEmpty() && IsOnLocalDisk(AbsolutePath(favourite.path)) &&
                           LoadProfile(profile, favourite.path) <= LoadResult::LoadedFromEarlierVersion &&
                           GameHolds(game.Value(), profile, program_.gameFolder);
        mnuPUTrayIcon.SetChecked(mnuPUTrayIcon_Fav + static_cast<int>(i), holds);
    }
}

void TrayCommands::mnuPUTrayIcon_Open_Click() {
    if (!mainWindow_.Visible()) mainWindow_.Show();
    mainWindow_.BringToFront();
}

void TrayCommands::mnuPUTrayIcon_Fav_Click(size_t slot) {
    const Favourite& favourite = program_.favourites[slot];
    if (favourite.IsEmpty()) {
        mainWindow_.Show();
        onFillFavourite();
        return;
    }
    Play(favourite.path);
}

void TrayCommands::Play(const std::string& path) {
    Profile profile = program_.profile;
    if (!LoadProfileAndTell(profile, path)) return;
    mainWindow_.Hide();
    launcher_.TransferAndLaunch(profile, {path, TransferWay::Tray});
}

void TrayCommands::mnuPUTrayIcon_Exit_Click() {
    mainWindow_.Unload();
}

}  // namespace quirn
