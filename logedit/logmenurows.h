#pragma once

#include <array>

#include "platform/form.h"
#include "platform/menu.h"

// The menu bar and the two pop-up menus of the log editor, as rows.
namespace quirn {

// The main window's menu has some of these names too.
namespace logmenu {

enum Command : int {
    mnuFile = 1,
    mnuFile_Open,
    mnuFile_SaveAs,
    mnuFileBar1,
    mnuFileMRU,  // the first of five
    mnuFileBarMRU = mnuFileMRU + 5,
    mnuFile_Close,
    mnuOptions,
    mnuOptions_Font,
    mnuOptions_Color,
    mnuOptions_Color_Foreground,
    mnuOptions_Color_Background,
    mnuOptions_Apply,
    mnuOptions_LineNums,
    mnuSearch,
    mnuSearch_Find,
    mnuLogEditPopup,
    mnuLogEditPopup_Delete,
    mnuLogEditPopup_Font,
    mnuInExPopup,
    mnuInExPopup_All,
    mnuInExPopup_Invert,
};

// clang-format off
inline constexpr std::array<MenuRow, 20> kLogMenuRows{{
    {mnuFile,                   0, "&File"},
    {mnuFile_Open,              1, "&Open...",                 "Ctrl+O"},
    {mnuFile_SaveAs,            1, "Save &As...",              "Ctrl+S"},
    {mnuFileBar1,               1, "-"},
    {mnuFileMRU,                1, ""},  // each of these five shows while it has a file, the bar with any of them
    {mnuFileMRU + 1,            1, ""},
    {mnuFileMRU + 2,            1, ""},
    {mnuFileMRU + 3,            1, ""},
    {mnuFileMRU + 4,            1, ""},
    {mnuFileBarMRU,             1, "-"},
    {mnuFile_Close,             1, "Close"},
    {mnuOptions,                0, "&Options"},
    {mnuOptions_Font,              1, "Change Font..."},
    {mnuOptions_Color,             1, "Change Color"},
    {mnuOptions_Color_Foreground,  2, "Foreground Color..."},
    {mnuOptions_Color_Background,  2, "Background Color..."},
    {mnuOptions_Apply,             1, "Apply Filter Immediately"},
    {mnuOptions_LineNums,          1, "Display Line Numbers"},
    {mnuSearch,                    0, "&Search"},
    {mnuSearch_Find,               1, "&Find...",                 "Ctrl+F"},
}};

// Over the log.
inline constexpr std::array<MenuRow, 3> kLogEditPopupRows{{
    {mnuLogEditPopup,              0, "LogEditPopup"},
    {mnuLogEditPopup_Delete,       1, "Delete Selected",          "Del"},
    {mnuLogEditPopup_Font,         1, "Change Font..."},
}};

// Over the two lists of players.
inline constexpr std::array<MenuRow, 3> kInExPopupRows{{
    {mnuInExPopup,                 0, "InExPopup"},
    {mnuInExPopup_All,             1, "Select All",               "Ctrl+A"},
    {mnuInExPopup_Invert,          1, "Invert Selection"},
}};

inline constexpr std::array<Shortcut, 3> kLogShortcuts{{
    {'O', true, mnuFile_Open},
    {'S', true, mnuFile_SaveAs},
    {'F', true, mnuSearch_Find},
}};
// clang-format on

}  // namespace logmenu

}  // namespace quirn
