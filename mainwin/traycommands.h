#pragma once

#include <functional>

#include "mainwin/launcher.h"
#include "mainwin/menurows.h"
#include "mainwin/program.h"
#include "platform/menu.h"
#include "platform/tray.h"

namespace quirn {

// The icon in the tray and the commands of its menu: the main window, the five favourites, the end of the program.
class TrayCommands {
public:
    TrayCommands(Form& mainWindow, const Program& program, Launcher& launcher);

    TrayIcon& Icon() { return tray_; }
    Menu& IconMenu() { return mnuPUTrayIcon; }

    // Gives the favourites' items their names.
    void BuildFavouritesMenu();

    // Plays a profile without touching what the window shows: that may have edits that are not saved.
    void Play(const std::string& path);

    void ShowKeepRow(bool some) { mnuPUTrayIcon.SetVisible(mnuPUTrayIcon_Keep, some); }

    std::function<void()> onKeepChanges;    // the game's changes are to be kept; the main window is shown
    std::function<void()> onFillFavourite;  // he has chosen an empty favourite; the main window is shown

private:
    void Tray_Mouse(unsigned message);
    void TickFavourites();
    std::vector<MenuRow> MenuRows();
    void mnuPUTrayIcon_Open_Click();
    void mnuPUTrayIcon_Fav_Click(size_t slot);
    void mnuPUTrayIcon_Exit_Click();

    Form& mainWindow_;
    const Program& program_;
    Launcher& launcher_;
    Menu mnuPUTrayIcon;
    TrayIcon tray_;
};

}  // namespace quirn
