#include "platform/listselection.h"

#include <gtest/gtest.h>

#include <string>

namespace quirn {
namespace {

TEST(ListSelectionTest, FollowsTheClicks) {
    ListSelection selection;
    const auto selected = [&] {
        std::string items;
        selection.ForEach([&](size_t item) { items += std::to_string(item) + " "; });
        return items;
    };
    selection.Reset(200);
    selection.Click(3, false, false);
    selection.Click(5, false, true);
    EXPECT_EQ(selected(), "3 5 ");
    selection.Click(7, true, false);
    EXPECT_EQ(selected(), "5 6 7 ");
    selection.Click(4, true, false);
    EXPECT_EQ(selected(), "4 5 ");
    selection.Click(130, false, true);
    selection.Click(132, true, true);
    EXPECT_EQ(selected(), "4 5 130 131 132 ");
    selection.Click(131, false, true);  // turned off: now the range is given that
    selection.Click(5, true, true);
    EXPECT_EQ(selected(), "4 132 ");
    selection.Invert();
    EXPECT_EQ(selection.SelectedCount(), 198u);
    EXPECT_EQ(selection.SelectedBefore(133), 131u);
    selection.SelectAll();
    EXPECT_EQ(selection.SelectedCount(), 200u);
    selection.SelectRange(0, 199, false);
    EXPECT_EQ(selected(), "");
    selection.Reset(0);
    selection.SelectAll();
    selection.Invert();
    EXPECT_EQ(selection.SelectedCount(), 0u);
}

}  // namespace
}  // namespace quirn
