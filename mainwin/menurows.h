#pragma once

// The numbers of the commands in the main window's menu bar and in the menu of the tray icon. The rows stand in
// menurows.cpp.
namespace quirn {

// 1 to 29 never change: they are the numbers that other programs see in menu messages. A new command takes the next
// number from 40 on, wherever its row stands.
enum MainCommand : int {
    mnuFile = 1,
    mnuFile_New,
    mnuFile_Open,
    mnuFile_Save,
    mnuFile_SaveAs,
    mnuFileBarImport,
    mnuFile_Import,
    mnuFileBarPrint,
    mnuFile_Print,
    mnuFileBarRecent,
    mnuFileMRU,  // the first of five
    mnuFileBarMRU = mnuFileMRU + 5,
    mnuFile_Close,
    mnuFile_Exit,
    mnuOptions,
    mnuOptions_Set,
    mnuLog,
    mnuHelp,
    mnuHelp_Contents,
    mnuHelp_Revision,
    mnuHelpBarWeb,
    mnuHelp_GotoQUIRNWebSite,
    mnuHelp_GotoSSWebSite,
    mnuHelpBarAbout,
    mnuHelp_About,

    mnuProfiles = 40,
    mnuProfiles_Transfer,
    mnuProfilesBarUndo,
    mnuProfiles_Undo,
    mnuProfiles_History,
    mnuProfiles_Compare,
    mnuProfilesBarVersions,
    mnuProfiles_Versions,
    mnuProfiles_Library,
    mnuProfiles_Copy,
    mnuProfilesBarFav,
    mnuProfilesFav,  // the first of five
};
static_assert(mnuFile_Print == 9 && mnuFile_Close == 17 && mnuOptions_Set == 20 && mnuHelp_About == 29);

enum TrayCommand : int {
    mnuPUTrayIcon_Open = 101,
    mnuPUTrayIconBarFav,
    mnuPUTrayIcon_Fav,  // the first of five
    mnuPUTrayIconBarExit = mnuPUTrayIcon_Fav + 5,
    mnuPUTrayIcon_Exit,
    mnuPUTrayIcon_Keep,
};

}  // namespace quirn
