#include "mainwin/favourites.h"
#include "mainwin/menuhelp.h"
#include "mainwin/menurows.h"
#include "mainwin/picklist.h"
#include "tests/testing/profiles.h"

namespace quirn {
namespace {

using namespace test;

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

// The first variable that the typed text selects last, by its name.
std::string Picked(const std::string& typed) {
    PickSearch search;
    int selected = 0;
    for (const char c : typed)
        if (const int found = search.Type(c); found >= 0) selected = found;
    return PickedText(selected);
}

TEST(PickListTest, TypingSelectsByPrefix) {
    const char* const rows[][2] = {{"", "area "},          {"s", "selfname "},    {"red", "red "},
                                   {"redb", "redbounty "}, {"RedN", "redname "},  {"sq", "squad "},
                                   {"killx", "killer "},   {"killed", "killed "}, {"zz", "area "}};
    for (const auto& [typed, text] : rows) EXPECT_EQ(Picked(typed), text) << typed;
    // The 101st character starts anew, and is itself forgotten.
    EXPECT_EQ(Picked(std::string(99, 'x') + "f"), "area ");
    EXPECT_EQ(Picked(std::string(100, 'x') + "f"), "freq ");
    EXPECT_EQ(PickedText(17), "");
}

TEST(PickListTest, OpensAtTheCaretInsideTheWindow) {
    const PickListPlace at{300, {1290, 150, 6810, 285}, 600, 8748, 6456};
    EXPECT_EQ(PlacePickList(at, 1500, 2000), (Bounds{1290 + 600 + 270, 300 + 150 + 75, 1500, 2000}));
    PickListPlace right = at;
    right.caretLeft = 6500;
    EXPECT_EQ(PlacePickList(right, 1500, 2000).left, 8748 - 1500 - 150);
    PickListPlace low = at;
    low.target.top = 4200;
    EXPECT_EQ(PlacePickList(low, 1500, 2000).top, 6456 - 2000);
}

class FavouritesTest : public WorldTest {};

TEST_F(FavouritesTest, AreNamedAfterPlayerAndZone) {
    const std::string file = Scratch() + "\\a.qrn";
    const struct {
        const char *content, *name;
    } rows[] = {{"[Dialog]\r\nPlayerName=Ace\r\nServerArena=Alpha\r\n", "Ace - Alpha"},
                {"[Dialog]\r\nServerArena=Alpha\r\n", "<invalid> - Alpha"},
                {"[Dialog]\r\nPlayerName=\r\n", " - <invalid>"},
                {"nothing", "<invalid> - <invalid>"}};
    for (const auto& row : rows) {
        PutFile(file, row.content);
        EXPECT_EQ(FavouriteName(file), row.name);
    }
    EXPECT_EQ(FirstEmptyRow({"a", "<click to add Favourite 2>", "c", "<", "e"}), 1);
    EXPECT_EQ(FirstEmptyRow({"a", "b", " <", "d", "e"}), -1);
}

}  // namespace
}  // namespace quirn
