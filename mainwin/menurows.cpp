#include "mainwin/menurows.h"

#include "mainwin/frmmain.h"
#include "mainwin/traycommands.h"
#include "platform/version.h"

// The main window's menu bar and the menu of the tray icon: all that there is to say of a command stands in its row.
namespace quirn {

// clang-format off
std::vector<MenuRow> frmMain::MenuRows() {
    // These five and the bar below show when there are recent files.
    const auto recent = [this](size_t i) {
        return MenuRow{mnuFileMRU + static_cast<int>(i), 1, "", "", "", [this, i] { fileCommands_.mnuFileMRU_Click(i); }};
    };
    // These five and the bar above show when there are favourites.
    const auto favourite = [this](size_t i) {
        static constexpr const char* kKeys[] = {"Ctrl+1", "Ctrl+2", "Ctrl+3", "Ctrl+4", "Ctrl+5"};
        return MenuRow{mnuProfilesFav + static_cast<int>(i), 1, "", kKeys[i], "Write this favourite into the game and start it",
                       [this, i] { mnuProfilesFav_Click(i); }, [this, i] { return !program_.favourites[i].IsEmpty(); }};
    };
    return {
        {mnuFile, 0, "&File"},
        {mnuFile_New, 1, "&New", "Ctrl+N", "Clear macros and set defaults for a new profile",
            [this] { fileCommands_.mnuFile_New_Click(); }},
        {mnuFile_Open, 1, "&Open...", "Ctrl+O", "Opens an existing profile",
            [this] { fileCommands_.mnuFile_Open_Click(); }},
        {mnuFile_Save, 1, "&Save", "Ctrl+S", "Save the current profile",
            [this] { fileCommands_.mnuFile_Save_Click(); }},
        {mnuFile_SaveAs, 1, "Save &As...", "", "Save the current profile with a new name",
            [this] { fileCommands_.mnuFile_SaveAs_Click(); }},
        {mnuFileBarImport, 1, "-"},
        {mnuFile_Import, 1, "&Import SS Macro file...", "", "Import a SubSpace macro or text file",
            [this] { fileCommands_.mnuFile_Import_Click(); }},
        {mnuFileBarPrint, 1, "-"},
        {mnuFile_Print, 1, "&Print...", "", "Print the current profile (NOT ACTIVE)",
            [this] { mnuFile_Print_Click(); }},
        {mnuFileBarRecent, 1, "-"},
        recent(0), recent(1), recent(2), recent(3), recent(4),
        {mnuFileBarMRU, 1, "-"},
        {mnuFile_Close, 1, "&Close", "", "Close to System Tray",
            [this] { mnuFile_Close_Click(); }},
        {mnuFile_Exit, 1, "E&xit", "", "Exit " QUIRN_TITLE,
            [this] { mnuFile_Exit_Click(); }},

        {mnuOptions, 0, "&Options"},
        {mnuOptions_Set, 1, "Set &Options", "", "View/Change the QUIRN options",
            [this] { mnuOptions_Set_Click(); }},

        // A command in the bar itself.
        {mnuLog, 0, "&Log Utility", "", "",
            [this] { mnuLog_Click(); }},

        {mnuProfiles, 0, "&Profiles"},
        {mnuProfiles_Library, 1, "Profile &Library...", "Ctrl+L", "View, play and sort all profiles",
            [this] { profilesCommands_.mnuProfiles_Library_Click(); }},
        {mnuProfiles_Compare, 1, "Compare With &Game...", "Ctrl+D", "Compare the profile, the game and the saved file",
            [this] { profilesCommands_.mnuProfiles_Compare_Click(); }, [this] { return profilesCommands_.HasGameFolder(); }},
        {mnuProfiles_Transfer, 1, "&Transfer Without Running", "Ctrl+T",
            "Write the profile into the game without starting it",
            [this] { profilesCommands_.mnuProfiles_Transfer_Click(); }, [this] { return profilesCommands_.HasGameFolder(); }},
        {mnuProfilesBarUndo, 1, "-"},
        {mnuProfiles_Undo, 1, "&Undo Last Transfer...", "Ctrl+Shift+Z",
            "Put back what the game had before the last transfer",
            [this] { profilesCommands_.mnuProfiles_Undo_Click(); }, [this] { return profilesCommands_.HasTransfer(); }},
        {mnuProfiles_History, 1, "Transfer &History...", "", "View what QUIRN has changed in the game",
            [this] { profilesCommands_.mnuProfiles_History_Click(); }},
        {mnuProfilesBarVersions, 1, "-"},
        {mnuProfiles_Versions, 1, "&Earlier Versions...", "", "View what saves have replaced of the file",
            [this] { profilesCommands_.mnuProfiles_Versions_Click(); }, [this] { return profilesCommands_.HasVersions(); }},
        {mnuProfiles_Copy, 1, "Copy Without &Password...", "", "Save a copy for a friend",
            [this] { profilesCommands_.mnuProfiles_Copy_Click(); }},
        {mnuProfilesBarFav, 1, "-"},
        favourite(0), favourite(1), favourite(2), favourite(3), favourite(4),

        {mnuHelp, 0, "&Help"},
        {mnuHelp_Contents, 1, "&Contents", "F1", "View the QUIRN Help File",
            [this] { mnuHelp_Contents_Click(); }},
        {mnuHelp_Revision, 1, "&View Readme/Revision Notes...", "", "View the latest release notes",
            [this] { mnuHelp_Revision_Click(); }},
        {mnuHelpBarWeb, 1, "-"},
        {mnuHelp_GotoQUIRNWebSite, 1, "Goto the QUIRN Web Site...", "",
            "Start your web browser and visit the QUIRN Web Site",
            [this] { mnuHelp_GotoQUIRNWebSite_Click(); }},
        {mnuHelp_GotoSSWebSite, 1, "Goto the SubSpace Web Site...", "",
            "Start your web browser and visit the official SubSpace Web Site",
            [this] { mnuHelp_GotoSSWebSite_Click(); }},
        {mnuHelpBarAbout, 1, "-"},
        {mnuHelp_About, 1, "&About...", "", "View the QUIRN About Box",
            [this] { mnuHelp_About_Click(); }},
    };
}

std::vector<MenuRow> TrayCommands::MenuRows() {
    const auto favourite = [this](size_t i) {
        return MenuRow{mnuPUTrayIcon_Fav + static_cast<int>(i), 0, "", "", "", [this, i] { mnuPUTrayIcon_Fav_Click(i); }};
    };
    return {
        {mnuPUTrayIcon_Open, 0, "Open QUIRN", "", "",
            [this] { mnuPUTrayIcon_Open_Click(); }},
        {mnuPUTrayIconBarFav, 0, "-"},
        favourite(0), favourite(1), favourite(2), favourite(3), favourite(4),
        {mnuPUTrayIconBarExit, 0, "-"},
        {mnuPUTrayIcon_Exit, 0, "E&xit", "", "",
            [this] { mnuPUTrayIcon_Exit_Click(); }},
        // Only while there are some.
        {mnuPUTrayIcon_Keep, 0, "Keep the Game's Changes...", "", "",
            [this] { mainWindow_.Show(); onKeepChanges(); }},
    };
}
// clang-format on

}  // namespace quirn
