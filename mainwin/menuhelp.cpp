#include "mainwin/menuhelp.h"

#include "mainwin/menurows.h"
#include "platform/version.h"

namespace quirn {

namespace {

// clang-format off
constexpr MenuHelpRow kMenuHelp[] = {
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
// clang-format on

}  // namespace

std::string MenuHelpText(int command) {
    return FindMenuHelp(kMenuHelp, command);
}

std::string SystemMenuHelpText(int command) {
    // It only hides the window; the text is kept on purpose.
    return SystemMenuHelp(command, "Close this window and terminate this program");
}

}  // namespace quirn
