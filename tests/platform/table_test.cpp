#include "platform/table.h"

#include <string>
#include <utility>
#include <vector>

#include "tests/testing/userinput.h"
#include "tests/testing/world.h"

// A table as a form's code and the player see it, with and without a real window.
namespace quirn::test {
namespace {

using Rows = std::vector<size_t>;
using Log = std::vector<std::string>;

struct TableForm : Form {
    explicit TableForm(ListStyle style)
        : Form(FormBorder::Fixed, 6000, 4200),
          table(*this, {0, 0, 5400, 2700}, "Settings",
                {{"Setting", 2400}, {"Profile", 1200, Alignment::Right}, {"Game", 1200}}, style) {
        table.cellText = [](size_t row, int column) {
            return std::string(1, static_cast<char>('a' + row % 26)) + std::to_string(row) + "/" +
                   std::to_string(column);
        };
        table.isTicked = [this](size_t row) { return ticked.at(row); };
        table.onTick = [this](size_t row, bool tick) { ticked.at(row) = tick; };
        table.onSelect = [this] { log.push_back("select"); };
        table.onActivate = [this] { log.push_back("activate " + std::to_string(*table.Current())); };
        table.onSort = [this](int column) { log.push_back("sort " + std::to_string(column)); };
        table.onRightMouseDown = [this] { log.push_back("right"); };
        ok.onClick = [this] { log.push_back("ok"); };
        SetButtons(&ok, nullptr);
    }
    Log Take() { return std::exchange(log, {}); }

    Table table;
    Button ok{*this, {0, 2800, 900, 375}, "OK"};
    std::vector<bool> ticked = std::vector<bool>(100000);
    Log log;
};

class TableTest : public WorldTest {};

TEST_F(TableTest, ThePlayerSelectsAndActivates) {
    TableForm form(ListStyle::Extended);
    form.table.SetRowCount(1000);
    form.Show();
    EXPECT_EQ(ShownCell(form.table, 999, 2), "l999/2");
    form.table.SetFocus();
    Press(form, kKeyEnter);
    EXPECT_EQ(form.Take(), Log{"ok"}) << "there is no row to activate";
    ClickRow(form.table, 3);
    EXPECT_EQ(ShownSelection(form.table), Rows{3});
    EXPECT_EQ(form.table.Current(), 3u);
    ClickRow(form.table, 5, true);
    ClickRow(form.table, 4, false, true);
    EXPECT_EQ(ShownSelection(form.table), (Rows{3, 5}));
    EXPECT_EQ(form.table.Selection().SelectedCount(), 2u);
    EXPECT_EQ(form.Take(), (Log{"select", "select", "select"})) << "once for each click";
    DoubleClickRow(form.table, 6);
    Press(form, kKeyEnter);
    EXPECT_EQ(form.Take(), (Log{"select", "activate 6", "activate 6"}));
    RightClickRow(form.table, 2);
    EXPECT_EQ(form.table.Current(), 2u);
    EXPECT_EQ(form.Take(), (Log{"select", "right"}));
}

TEST_F(TableTest, WhatTheFormSelectsTheWindowHasAndNobodyIsTold) {
    TableForm form(ListStyle::Single);
    form.table.SetRowCount(30000);
    form.table.SetCurrent(7);
    form.Show();
    EXPECT_EQ(ShownSelection(form.table), Rows{7});
    form.table.SetCurrent(29000);
    EXPECT_EQ(ShownSelection(form.table), Rows{29000});
    form.table.SetRowCount(20);
    DoEvents();
    EXPECT_EQ(ShownSelection(form.table), Rows{});
    EXPECT_FALSE(form.table.Current());
    EXPECT_EQ(form.Take(), Log{});
    EXPECT_EQ(form.table.FindRow("C", 3), 2u);
    EXPECT_EQ(form.table.FindRow("z", 3), std::nullopt);
    form.table.SetRowCount(1);
    form.table.SetCurrent(0);
    EXPECT_EQ(ShownSelection(form.table), Rows{0}) << "also the only one";
}

TEST_F(TableTest, TheSpaceBarAndClicksTickAndTheSelectedRowsGoTogether) {
    TableForm form(ListStyle::Extended);
    form.table.SetRowCount(100);
    form.Show();
    ClickTick(form.table, 1);
    EXPECT_TRUE(ShownTick(form.table, 1));
    ClickRow(form.table, 2);
    ClickRow(form.table, 4, true);
    Press(form, kKeySpace);
    EXPECT_TRUE(ShownTick(form.table, 2) && ShownTick(form.table, 3) && ShownTick(form.table, 4));
    ClickTick(form.table, 1);
    EXPECT_FALSE(ShownTick(form.table, 1));
    EXPECT_TRUE(ShownTick(form.table, 3));
    EXPECT_EQ(ShownSelection(form.table), (Rows{2, 3, 4})) << "a tick selects nothing";
}

TEST_F(TableTest, HeadsSortAndKeepTheirWidths) {
    TableForm form(ListStyle::Single);
    form.table.SetRowCount(10);
    form.table.SetSortArrow(0, true);
    form.Show();
    ClickHead(form.table, 1);
    EXPECT_EQ(form.Take(), Log{"sort 1"});
    DragColumn(form.table, 2, 1500);
    EXPECT_EQ(form.table.Columns()[2].width, 1500);
    EXPECT_EQ(form.table.Columns()[0].width, 2400);
    form.Unload();
    EXPECT_EQ(form.table.Columns()[2].width, 1500);
}

}  // namespace
}  // namespace quirn::test
