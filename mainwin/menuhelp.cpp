#include "mainwin/menuhelp.h"

#include <span>

#include "mainwin/menurows.h"
#include "platform/version.h"

namespace quirn {

namespace {

struct HelpRow {
    int command;
    const char* text;
};

// clang-format off
constexpr HelpRow kMenuHelp[] = {
    {mnuFile_New,              "Clear macros and set defaults for a new profile"},
    {mnuFile_Open,             "Opens an existing profile"},
    {mnuFile_Save,             "Save the current profile"},
    {mnuFile_SaveAs,           "Save the current profile with a new name"},
    {mnuFile_Import,           "Import a SubSpace macro or text file"},
    {mnuFile_Print,            "Print the current profile (NOT ACTIVE)"},
    {mnuFile_Close,            "Close to System Tray"},
    {mnuFile_Exit,             "Exit " QUIRN_TITLE},
    {mnuOptions_Set,           "View/Change the QUIRN options"},
    {mnuHelp_Contents,         "View the QUIRN Help File"},
    {mnuHelp_Revision,         "View the latest release notes"},
    {mnuHelp_GotoQUIRNWebSite, "Start your web browser and visit the QUIRN Web Site"},
    {mnuHelp_GotoSSWebSite,    "Start your web browser and visit the official SubSpace Web Site"},
    {mnuHelp_About,            "View the QUIRN About Box"},
};

constexpr HelpRow kSystemMenuHelp[] = {
    {61440, "Size the window using the keyboard"},
    {61456, "Move the window using the keyboard"},
    {61472, "Minimize the window"},
    {61488, "Maximize the window"},
    {61536, "Close this window and terminate this program"},  // it only hides it; the text is kept on purpose
    {61728, "Restore window to normal position and size"},
};
// clang-format on

std::string Find(std::span<const HelpRow> rows, int command) {
    for (const HelpRow& row : rows)
        if (row.command == command) return row.text;
    return {};
}

}  // namespace

std::string MenuHelpText(int command) {
    return Find(kMenuHelp, command);
}

std::string SystemMenuHelpText(int command) {
    return Find(kSystemMenuHelp, command);
}

}  // namespace quirn
