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
        {mnuFile_Several, 1, "Open Se&veral...", "Ctrl+Shift+O", "Opens several log files as if they were one",
            [this] { mnuFile_Several_Click(); }},
        {mnuFile_SaveAs, 1, "Save &As...", "Ctrl+S", "Save the current log file with a new name",
            [this] { mnuFile_SaveAs_Click(); }},
        {mnuFileBar1, 1, "-"},
        recent(0), recent(1), recent(2), recent(3), recent(4),
        {mnuFileBarMRU, 1, "-"},
        {mnuFile_Close, 1, "Close", "", "Close the LogEdit window",
            [this] { mnuFile_Close_Click(); }},

        {mnuEdit, 0, "&Edit"},
        {mnuEdit_Undo, 1, "&Undo Delete", "Ctrl+Z", "Bring back the lines that were deleted last",
            [this] { commands_.Undo(); }, [this] { return commands_.CanUndo(); }},
        {mnuEdit_Redo, 1, "&Redo Delete", "Ctrl+Y", "Delete again what was brought back last",
            [this] { commands_.Redo(); }, [this] { return commands_.CanRedo(); }},
        {mnuEditBarCopy, 1, "-"},
        {mnuEdit_Copy, 1, "&Copy", "Ctrl+C", "Copy the selected lines or players",
            [this] { CopySelected(); }, [this] { return commands_.HasLog(); }},
        {mnuEdit_All, 1, "Select &All", "Ctrl+A", "Select all lines or players",
            [this] { SelectAll(); }, [this] { return commands_.HasLog(); }},
        {mnuEditBarKeep, 1, "-"},
        {mnuEdit_Keep, 1, "&Keep Deleted Lines Out", "", "Applying the filter does not bring deleted lines back",
            [this] { Toggle(mnuEdit_Keep, edit_.keepDeletedOut); }},

        {mnuView, 0, "&View"},
        {mnuView_Text, 1, "Text &Filter", "Ctrl+Shift+F", "Show only lines with certain words",
            [this] { row_.FocusText(); }},
        {mnuView_All, 1, "Show &All", "Ctrl+Shift+A", "Show all lines, or again what the filters leave",
            [this] { row_.ShowAll(); }, [this] { return commands_.HasLog(); }},
        {mnuView_Statistics, 1, "&Player Statistics...", "Ctrl+T", "Count lines, kills and deaths of each player",
            [this] { mnuView_Statistics_Click(); }, [this] { return commands_.HasLog(); }},
        {mnuViewBarUnknown, 1, "-"},
        {mnuView_Reload, 1, "&Reload", "F5", "Read the log again",
            [this] { follow_.Reload(); }, [this] { return follow_.HasFile(); }},
        {mnuView_Follow, 1, "F&ollow Growing Log", "F9", "Show what the game goes on writing into the log",
            [this] { follow_.Follow(); }, [this] { return follow_.HasFile(); }},
        {mnuViewBarLogs, 1, "-"},
        {mnuView_Previous, 1, "Pre&vious Log", "Ctrl+PgUp", "Go to the log before, of several that are shown as one",
            [this] { commands_.GoToPreviousLog(), ShowFile(); }, [this] { return commands_.HasSeveral(); }},
        {mnuView_Next, 1, "&Next Log", "Ctrl+PgDn", "Go to the next log, of several that are shown as one",
            [this] { commands_.GoToNextLog(), ShowFile(); }, [this] { return commands_.HasSeveral(); }},
        {mnuViewBarColors, 1, "-"},
        {mnuView_Unknown, 1, "Show Lines of &Unknown Kind", "", "Show lines that no check box stands for",
            [this] { mnuView_Unknown_Click(); }},
        {mnuView_Colors, 1, "&Colors By Message Type", "", "Show each kind of message in a color of its own",
            [this] { mnuView_Colors_Click(); }},

        {mnuOptions, 0, "&Options"},
        {mnuOptions_Font, 1, "Change Font...", "", kFontHelp,
            [this] { commands_.ChooseLogFont(); }},
        {mnuOptions_Color, 1, "Change Color"},
        {mnuOptions_Color_Foreground, 2, "Foreground Color...", "",
            "Change the foreground color for the log edit window",
            [this] { commands_.ChooseLogColor(true); }},
        {mnuOptions_Color_Background, 2, "Background Color...", "",
            "Change the background color for the log edit window",
            [this] { commands_.ChooseLogColor(false); }},
        {mnuOptions_Apply, 1, "Apply Filter Immediately", "", "Apply any filter changes immediately",
            [this] { Toggle(mnuOptions_Apply, edit_.applyAtOnce); }},
        {mnuOptions_LineNums, 1, "Display Line Numbers", "", "Display line numbers on log list",
            [this] { mnuOptions_LineNums_Click(); }},

        {mnuSearch, 0, "&Search"},
        {mnuSearch_Find, 1, "&Find...", "Ctrl+F", "Find text within the log",
            [this] { mnuSearch_Find_Click(); }},
        {mnuSearch_Next, 1, "Find &Next", "F3", "Find the same text again, downwards",
            [this] { FindAgain(false); }, [this] { return commands_.HasLog(); }},
        {mnuSearch_Previous, 1, "Find &Previous", "Shift+F3", "Find the same text again, upwards",
            [this] { FindAgain(true); }, [this] { return commands_.HasLog(); }},
    };
}

// Over the log.
std::vector<MenuRow> frmLogEdit::LogPopupRows() {
    return {
        {mnuLogEditPopup, 0, "LogEditPopup"},
        {mnuLogEditPopup_Delete, 1, "Delete Selected", "Del", "Delete the selected (highlighted) lines",
            [this] { mnuLogEditPopup_Delete_Click(); }},
        {mnuLogEditPopup_Font, 1, "Change Font...", "", kFontHelp,
            [this] { commands_.ChooseLogFont(); }},
        {mnuLogEditPopupBarCopy, 1, "-"},
        {mnuLogEditPopup_Copy, 1, "Copy", "Ctrl+C", "Copy the selected lines",
            [this] { CopyLines(); }},
        {mnuLogEditPopup_Only, 1, "Only This Player", "", "Show only this player's lines and those of nobody",
            [this] { commands_.OnlySpeaker(); }, [this] { return commands_.HasSpeaker(); }},
        {mnuLogEditPopup_Hide, 1, "Hide This Player", "", "Hide this player's lines",
            [this] { commands_.HideSpeaker(); }, [this] { return commands_.CanHideSpeaker(); }},
        {mnuLogEditPopup_Everyone, 1, "Everyone Again", "", "Show the lines of all players",
            [this] { commands_.Everyone(); }, [this] { return edit_.exclude.Count() > 0 || !edit_.awaited.empty(); }},
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
        {mnuInExPopup_Only, 1, "Only These", "", "Include the selected players only",
            [this] { mnuInExPopup_Only_Click(); }, [this] { return players_.CanShowOnly(); }},
    };
}
// clang-format on

}  // namespace quirn
