#include "platform/virtuallist.h"

#include <string>
#include <vector>

#include "tests/testing/userinput.h"
#include "tests/testing/world.h"

// A list of many items as a form's code and the player see it, with and without a real window.
namespace quirn::test {
namespace {

constexpr size_t kMany = 200000;

struct ListForm : Form {
    VirtualList list{*this, {0, 0, 4000, 2500}, "Lines"};

    ListForm() : Form(FormBorder::Fixed, 4400, 3600) {
        list.itemText = [](size_t item) { return "item " + std::to_string(item); };
        list.itemData = [](size_t item) { return static_cast<int32_t>(item) * 3; };
        list.SetCount(kMany, 11);
    }

    std::vector<size_t> Selected() const {
        std::vector<size_t> items;
        list.Selection().ForEach([&](size_t item) { items.push_back(item); });
        return items;
    }
};

class VirtualListTest : public WorldTest {};

using Items = std::vector<size_t>;

TEST_F(VirtualListTest, ThePlayerSelectsAndTheFormKnows) {
    ListForm form;
    form.Show();
    EXPECT_FALSE(form.list.Current());
    ClickItem(form.list, 3);
    EXPECT_EQ(form.Selected(), Items{3});
    EXPECT_EQ(form.list.Current(), 3u);
    ClickItem(form.list, 5, true);
    EXPECT_EQ(form.Selected(), (Items{3, 4, 5}));
    ClickItem(form.list, 4, false, true);
    EXPECT_EQ(form.Selected(), (Items{3, 5}));
    ClickItem(form.list, kMany - 1, false, true);
    EXPECT_EQ(form.Selected(), (Items{3, 5, kMany - 1}));
    EXPECT_EQ(form.list.Current(), kMany - 1);
    EXPECT_EQ(ShownItem(form.list, kMany - 1), "item 199999");
}

TEST_F(VirtualListTest, AListThatGrowsStaysWhereItIs) {
    ListForm form;
    form.Show();
    ClickItem(form.list, 100);
    ClickItem(form.list, 103, false, true);
    form.list.SetTopIndex(90);
    for (size_t more = 1; more < 4; ++more) {
        form.list.Grow(kMany + more, 11);
        EXPECT_EQ(ShownTop(form.list), 90u);
        EXPECT_EQ(form.Selected(), (Items{100, 103}));
        EXPECT_EQ(form.list.Current(), 103u);
    }
    ClickItem(form.list, 105, true);
    EXPECT_EQ(form.Selected(), (Items{103, 104, 105})) << "Shift goes on from where it would have";
}

TEST_F(VirtualListTest, WhatTheFormSelectsTheWindowHas) {
    ListForm form;
    form.Show();
    ListSelection odd;
    odd.Reset(kMany);
    for (size_t i = 1; i < kMany; i += 2) odd.Select(i, true);
    form.list.SetTopIndex(70001);
    form.list.SetSelection(odd);
    EXPECT_EQ(ShownTop(form.list), 70001u) << "selecting scrolls nothing";
    ClickItem(form.list, 70002, false, true);  // read back from the window now
    EXPECT_EQ(form.list.Selection().SelectedCount(), kMany / 2 + 1);
    EXPECT_TRUE(form.list.Selection().IsSelected(70001) && form.list.Selection().IsSelected(70002));
    odd.SelectAll();
    form.list.SetSelection(odd);
    ClickItem(form.list, 70003, false, true);
    EXPECT_EQ(form.list.Selection().SelectedCount(), kMany - 1);
}

TEST_F(VirtualListTest, TheListKeepsItsPlaceWhenItemsGoOrTheFontChanges) {
    ListForm form;
    form.Show();
    ListSelection some;
    some.Reset(kMany);
    some.SelectRange(10, 100009, true);
    some.Select(150002, true);
    form.list.SetTopIndex(150000);
    form.list.SetCurrent(150001);
    form.list.SetSelection(some);
    form.list.SetFont({.face = "Courier New", .points = 14});
    EXPECT_EQ(ShownTop(form.list), 150000u);
    EXPECT_EQ(form.list.Selection().SelectedCount(), 100001u);
    form.list.SelectionRemoved(11);
    EXPECT_EQ(form.list.Count(), 99999u);
    EXPECT_EQ(ShownTop(form.list), 50000u);
    EXPECT_EQ(form.list.Current(), 50001u);
    EXPECT_EQ(form.Selected(), Items{});
    form.list.SetTopIndex(99998);
    EXPECT_LT(ShownTop(form.list), 99998u) << "the last items fill the list";
    form.list.SetCount(0, 0);
    EXPECT_EQ(ShownTop(form.list), 0u);
    EXPECT_FALSE(form.list.Current());
}

TEST_F(VirtualListTest, AProgressBarShowsStepsThatCanBeSeen) {
    ListForm form;
    ProgressBar bar(form, {0, 2600, 1500, 270});
    bar.SetRange(uint64_t{1} << 31);
    bar.SetValue(uint64_t{1} << 30);
    EXPECT_EQ(bar.Step(), ProgressBar::kSteps / 2);
    bar.SetRange(0);  // as for a log of one line
    bar.SetValue(5);
    EXPECT_EQ(bar.Step(), ProgressBar::kSteps);
}

}  // namespace
}  // namespace quirn::test
