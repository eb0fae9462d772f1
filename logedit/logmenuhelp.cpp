#include "logedit/logmenuhelp.h"

#include <span>

#include "logedit/logmenurows.h"

namespace quirn {

using namespace logmenu;

namespace {

struct HelpRow {
    int command;
    const char* text;
};

constexpr char kFontHelp[] = "Change the font for the log edit window";

// clang-format off
constexpr HelpRow kMenuHelp[] = {
    {mnuFile_Open,             "Opens an existing log file"},
    {mnuFile_SaveAs,           "Save the current log file with a new name"},
    {mnuFile_Close,            "Close the LogEdit window"},
    {mnuOptions_Font,             kFontHelp},
    {mnuLogEditPopup_Font,        kFontHelp},
    {mnuOptions_Color_Foreground, "Change the foreground color for the log edit window"},
    {mnuOptions_Color_Background, "Change the background color for the log edit window"},
    {mnuOptions_Apply,            "Apply any filter changes immediately"},
    {mnuOptions_LineNums,         "Display line numbers on log list"},
    {mnuSearch_Find,              "Find text within the log"},
    {mnuLogEditPopup_Delete,      "Delete the selected (highlighted) lines"},
    {mnuInExPopup_All,            "Select (highlight) all items in this list"},
    {mnuInExPopup_Invert,         "Invert all selected (highlighted) items in this list"},
};

constexpr HelpRow kSystemMenuHelp[] = {
    {61440, "Size the window using the keyboard"},
    {61456, "Move the window using the keyboard"},
    {61472, "Minimize the window"},
    {61488, "Maximize the window"},
    {61536, "Close this window"},
    {61728, "Restore window to normal position and size"},
};
// clang-format on

std::string Find(std::span<const HelpRow> rows, int command) {
    for (const HelpRow& row : rows)
        if (row.command == command) return row.text;
    return {};
}

}  // namespace

std::string LogMenuHelpText(int command) {
    return Find(kMenuHelp, command);
}

std::string LogSystemMenuHelpText(int command) {
    return Find(kSystemMenuHelp, command);
}

}  // namespace quirn
