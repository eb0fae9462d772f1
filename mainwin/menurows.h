#pragma once

#include <array>
#include <cstddef>
#include <string_view>

#include "platform/form.h"
#include "platform/menu.h"

// The menu bar of the main window and the menu of the tray icon, as rows. In the bar a command's number is its row's,
// counted from 1, headings and separators included: the help texts go by it.
namespace quirn {

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
};

// Other numbers than the bar's, so that none of them has a help text.
enum TrayCommand : int {
    mnuPUTrayIcon_Open = 101,
    mnuPUTrayIconBarFav,
    mnuPUTrayIcon_Fav,  // the first of five
    mnuPUTrayIconBarExit = mnuPUTrayIcon_Fav + 5,
    mnuPUTrayIcon_Exit,
};

// clang-format off
inline constexpr std::array<MenuRow, 29> kMainMenuRows{{
    {mnuFile,                  0, "&File"},
    {mnuFile_New,              1, "&New",                          "Ctrl+N"},
    {mnuFile_Open,             1, "&Open...",                      "Ctrl+O"},
    {mnuFile_Save,             1, "&Save",                         "Ctrl+S"},
    {mnuFile_SaveAs,           1, "Save &As..."},
    {mnuFileBarImport,         1, "-"},
    {mnuFile_Import,           1, "&Import SS Macro file..."},
    {mnuFileBarPrint,          1, "-"},
    {mnuFile_Print,            1, "&Print..."},
    {mnuFileBarRecent,         1, "-"},
    {mnuFileMRU,               1, ""},  // these five and the bar below show when there are recent files
    {mnuFileMRU + 1,           1, ""},
    {mnuFileMRU + 2,           1, ""},
    {mnuFileMRU + 3,           1, ""},
    {mnuFileMRU + 4,           1, ""},
    {mnuFileBarMRU,            1, "-"},
    {mnuFile_Close,            1, "&Close"},
    {mnuFile_Exit,             1, "E&xit"},
    {mnuOptions,               0, "&Options"},
    {mnuOptions_Set,           1, "Set &Options"},
    {mnuLog,                   0, "&Log Utility"},  // a command in the bar itself
    {mnuHelp,                  0, "&Help"},
    {mnuHelp_Contents,         1, "&Contents",                     "F1"},
    {mnuHelp_Revision,         1, "&View Readme/Revision Notes..."},
    {mnuHelpBarWeb,            1, "-"},
    {mnuHelp_GotoQUIRNWebSite, 1, "Goto the QUIRN Web Site..."},
    {mnuHelp_GotoSSWebSite,    1, "Goto the SubSpace Web Site..."},
    {mnuHelpBarAbout,          1, "-"},
    {mnuHelp_About,            1, "&About..."},
}};

// The captions of the favourites are their names.
inline constexpr std::array<MenuRow, 9> kTrayMenuRows{{
    {mnuPUTrayIcon_Open,       0, "Open QUIRN"},
    {mnuPUTrayIconBarFav,      0, "-"},
    {mnuPUTrayIcon_Fav,        0, ""},
    {mnuPUTrayIcon_Fav + 1,    0, ""},
    {mnuPUTrayIcon_Fav + 2,    0, ""},
    {mnuPUTrayIcon_Fav + 3,    0, ""},
    {mnuPUTrayIcon_Fav + 4,    0, ""},
    {mnuPUTrayIconBarExit,     0, "-"},
    {mnuPUTrayIcon_Exit,       0, "E&xit"},
}};

inline constexpr std::array<Shortcut, 4> kMainShortcuts{{
    {'N',    true,  mnuFile_New},
    {'O',    true,  mnuFile_Open},
    {'S',    true,  mnuFile_Save},
    {kKeyF1, false, mnuHelp_Contents},
}};
// clang-format on

constexpr bool CommandsAreRowNumbers() {
    for (size_t i = 0; i < kMainMenuRows.size(); ++i)
        if (kMainMenuRows[i].command != static_cast<int>(i) + 1) return false;
    return true;
}
static_assert(CommandsAreRowNumbers());
static_assert(mnuFile_Print == 9 && mnuFile_Close == 17 && mnuOptions_Set == 20 && mnuHelp_About == 29);

}  // namespace quirn
