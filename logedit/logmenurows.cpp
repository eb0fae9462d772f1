#include "logedit/logmenurows.h"

#include "logedit/frmlogedit.h"

// The log editor's menu bar and its two pop-up menus: all that there is to say of a command stands in its row.
namespace quirn {

using namespace logmenu;

namespace {

constexpr char kFontHelp[] = "Change the font for the log edit window";

}  // namespace

// clang-format off
std::vector<MenuRow> frmLogEdit::MenuRows() {
    // Each of these five shows while it has a file, the bar below with any of them.
    const auto recent = [this](size_t i) {
        return MenuRow{mnuFileMRU + static_cast<int>(i), 1, "", "", "", [this, i] { mnuFileMRU_Click(i); }};
    };
    return {
        {mnuFile, 0, "&File"},
        {mnuFile_Open, 1, "&Open...", "Ctrl+O", "Opens an existing log file",
            [this] { mnuFile_Open_Click(); }},
        {mnuFile_SaveAs, 1, "Save &As...", "Ctrl+S", "Save the current log file with a new name",
            [this] { mnuFile_SaveAs_Click(); }},
        {mnuFileBar1, 1, "-"},
        recent(0), recent(1), recent(2), recent(3), recent(4),
        {mnuFileBarMRU, 1, "-"},
        {mnuFile_Close, 1, "Close", "", "Close the LogEdit window",
            [this] { mnuFile_Close_Click(); }},

        {mnuOptions, 0, "&Options"},
        {mnuOptions_Font, 1, "Change Font...", "", kFontHelp,
            [this] { ChooseLogFont(); }},
        {mnuOptions_Color, 1, "Change Color"},
        {mnuOptions_Color_Foreground, 2, "Foreground Color...", "",
            "Change the foreground color for the log edit window",
            [this] { ChooseLogColor(true); }},
        {mnuOptions_Color_Background, 2, "Background Color...", "",
            "Change the background color for the log edit window",
            [this] { ChooseLogColor(false); }},
        {mnuOptions_Apply, 1, "Apply Filter Immediately", "", "Apply any filter changes immediately",
            [this] { mnuOptions_Apply_Click(); }},
        {mnuOptions_LineNums, 1, "Display Line Numbers", "", "Display line numbers on log list",
            [this] { mnuOptions_LineNums_Click(); }},

        {mnuSearch, 0, "&Search"},
        {mnuSearch_Find, 1, "&Find...", "Ctrl+F", "Find text within the log",
            [this] { mnuSearch_Find_Click(); }},
    };
}

// Over the log.
std::vector<MenuRow> frmLogEdit::LogPopupRows() {
    return {
        {mnuLogEditPopup, 0, "LogEditPopup"},
        {mnuLogEditPopup_Delete, 1, "Delete Selected", "Del", "Delete the selected (highlighted) lines",
            [this] { mnuLogEditPopup_Delete_Click(); }},
        {mnuLogEditPopup_Font, 1, "Change Font...", "", kFontHelp,
            [this] { ChooseLogFont(); }},
    };
}

// Over the two lists of players.
std::vector<MenuRow> frmLogEdit::PlayersPopupRows() {
    return {
        {mnuInExPopup, 0, "InExPopup"},
        {mnuInExPopup_All, 1, "Select All", "Ctrl+A", "Select (highlight) all items in this list",
            [this] { players_.mnuInExPopup_All_Click(); }},
        {mnuInExPopup_Invert, 1, "Invert Selection", "", "Invert all selected (highlighted) items in this list",
            [this] { players_.mnuInExPopup_Invert_Click(); }},
    };
}
// clang-format on

}  // namespace quirn
