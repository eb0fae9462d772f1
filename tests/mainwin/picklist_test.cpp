#include "mainwin/picklist.h"

#include <gtest/gtest.h>

namespace quirn {
namespace {

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

}  // namespace
}  // namespace quirn
