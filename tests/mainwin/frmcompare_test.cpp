#include "mainwin/frmcompare.h"

#include "tests/auxiliary/controlsof.h"
#include "tests/testing/profiles.h"
#include "tests/testing/userinput.h"

namespace quirn {
namespace {

using namespace test;

class FrmCompareTest : public WorldTest {
protected:
    FrmCompareTest() {
        mine_.Value(setting::Find(setting::Group::Options, "MusicVolume")) = "80";
        game_.Dialog.Value(kPlayerName) = "Vex";
        game_.IgnoreList = {"Trill"};
    }

    void Open(std::string_view ticked = "-") {
        compare_.Open(owner_, [=](const CompareRow& row) { return row.caption == ticked; });
    }
    Table& Rows() { return ControlOf<Table>(compare_, ""); }
    Button& Copy() { return ButtonOf(compare_, "&Copy"); }

    Profile mine_ = EmptyProfile(), game_ = EmptyProfile();
    bool canCopy_ = true;
    std::string copied_;
    Form owner_{FormBorder::Fixed, 6000, 3000};
    frmCompare compare_{{"Profile", "Game now"},
                        [this] {
                            return CompareSides{{"a.qrn", mine_, {}}, {"", game_, {}}};
                        },
                        {{"&Copy",
                          [this](const CompareRows& rows, const CompareSides&) {
                              for (const CompareRow& row : rows) copied_ += row.caption + ";";
                          },
                          [this] { return canCopy_; }}}};
};

TEST_F(FrmCompareTest, TicksByKeyboardOutlastRefreshAndAreCopied) {
    owner_.Show();
    Open();
    ASSERT_EQ(Rows().RowCount(), 3u);
    EXPECT_EQ(compare_.Caption(), "Compare - a.qrn");
    EXPECT_EQ(ShownCell(Rows(), 0, 3), "* Vex");
    EXPECT_EQ(ShownCell(Rows(), 1, 2), "80");
    EXPECT_FALSE(Copy().Enabled());
    ClickRow(Rows(), 1);
    Press(compare_, kKeySpace);
    EXPECT_TRUE(ShownTick(Rows(), 1));
    EXPECT_TRUE(Copy().Enabled());
    Press(compare_, 'C', true);
    EXPECT_EQ(Clipboard(), "Music Volume\tOptions\t80\t\r\n");

    game_.Dialog.Value(kPlayerName) = "";
    Press(compare_, kKeyF5);
    ASSERT_EQ(Rows().RowCount(), 2u);
    EXPECT_TRUE(ShownTick(Rows(), 0));
    Press(compare_, 'F', true);
    EXPECT_TRUE(ControlOf<TextBox>(compare_, "").HasFocus());
    Type(ControlOf<TextBox>(compare_, ""), "trill");
    ASSERT_EQ(Rows().RowCount(), 1u);
    EXPECT_EQ(LabelOf(compare_, "ticked").Text(), "1 ticked, 1 of them not shown");
    Rows().SetFocus();
    Press(compare_, 'A', true);
    Press(compare_, kKeyEnter);
    EXPECT_EQ(copied_, "");
    Click(Copy());
    EXPECT_EQ(copied_, "Music Volume;Ignore list: Trill;");
    EXPECT_FALSE(Copy().Enabled()) << "what has been copied is no longer ticked";
    Press(compare_, kKeyEscape);
    EXPECT_FALSE(compare_.IsLoaded());
}

TEST_F(FrmCompareTest, OpensWithTicksAndShowsWhenItCannotCopy) {
    owner_.Show();
    Open("Music Volume");
    EXPECT_TRUE(ShownTick(Rows(), 1));
    canCopy_ = false;
    Click(Copy());
    EXPECT_EQ(copied_, "");
    EXPECT_FALSE(Copy().Enabled());
    Click(ControlOf<CheckBox>(compare_, "&Show"));
    EXPECT_GT(Rows().RowCount(), 100u);
    DragColumn(Rows(), 0, 1800);
    compare_.Unload();
    Rows().SetColumnWidth(0, 900);
    Open();
    EXPECT_EQ(Rows().Columns()[0].width, 1800);
    EXPECT_EQ(Rows().RowCount(), 3u);
    mine_ = game_;
    Press(compare_, kKeyF5);
    EXPECT_EQ(Rows().RowCount(), 0u);
    compare_.Unload();
}

}  // namespace
}  // namespace quirn
