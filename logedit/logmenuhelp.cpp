#include "logedit/logmenuhelp.h"

#include "logedit/logmenurows.h"

namespace quirn {

using namespace logmenu;

namespace {

constexpr char kFontHelp[] = "Change the font for the log edit window";

// clang-format off
constexpr MenuHelpRow kMenuHelp[] = {
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
// clang-format on

}  // namespace

std::string LogMenuHelpText(int command) {
    return FindMenuHelp(kMenuHelp, command);
}

std::string LogSystemMenuHelpText(int command) {
    return SystemMenuHelp(command, "Close this window");
}

}  // namespace quirn
