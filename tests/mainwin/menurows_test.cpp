#include "mainwin/menurows.h"

#include <gtest/gtest.h>

#include "mainwin/menuhelp.h"

namespace quirn {
namespace {

TEST(MainMenuTest, ItemsHaveTheirNumbersCaptionsAndHelp) {
    const struct {
        int command;
        const char *caption, *help;
    } rows[] = {
        {1, "&File", ""},
        {2, "&New", "Clear macros and set defaults for a new profile"},
        {7, "&Import SS Macro file...", "Import a SubSpace macro or text file"},
        {10, "-", ""},
        {11, "", ""},
        {18, "E&xit", "Exit QUIRN"},
        {20, "Set &Options", "View/Change the QUIRN options"},
        {21, "&Log Utility", ""},
        {27, "Goto the SubSpace Web Site...", "Start your web browser and visit the official SubSpace Web Site"}};
    for (const auto& row : rows) {
        EXPECT_STREQ(kMainMenuRows[static_cast<size_t>(row.command) - 1].caption, row.caption);
        EXPECT_EQ(MenuHelpText(row.command), row.help) << row.command;
    }
    for (const int command : {-1, 0, 30, 61440, 101}) EXPECT_EQ(MenuHelpText(command), "") << command;
    EXPECT_EQ(SystemMenuHelpText(61728), "Restore window to normal position and size");
    EXPECT_EQ(SystemMenuHelpText(2), "");
}

}  // namespace
}  // namespace quirn
