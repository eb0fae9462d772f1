#include "mainwin/frmoptions.h"

#include "mainwin/favourites.h"
#include "platform/headless/dialogs.h"
#include "tests/auxiliary/controlsof.h"
#include "tests/testing/userinput.h"
#include "tests/testing/world.h"

namespace quirn::test {
namespace {

class OptionsTest : public WorldTest {
protected:
    OptionsTest() {
        program_.gameFolder = Scratch();
        for (size_t i = 0; i < program_.favourites.size(); ++i) program_.favourites[i].name = EmptyFavouriteName(i);
        dialog_.Load();
        dialog_.Show();
    }

    template <class Kind>
    Kind& On(int page, size_t nth) {
        return dynamic_cast<Kind&>(
            *ControlOf<TabStrip>(dialog_, "").Pages()[static_cast<size_t>(page)]->Controls()[nth]);
    }

    Program program_;
    frmOptions dialog_{program_, [] {}};
};

TEST_F(OptionsTest, AnEmptyRowTakesTheOpenProfileAndOnlyWhatWorksIsOffered) {
    auto& apply = ControlOf<Button>(dialog_, "Apply");
    auto& remove = On<Button>(1, 2);
    PutFile(Scratch() + "\\duel.qrn", "[Dialog]\r\nPlayerName=Ace\r\nServerArena=Alpha\r\n");
    program_.CurrentFile = Scratch() + "\\duel.qrn";
    dialog_.SelectTab(frmOptions::kFavourites);
    EXPECT_FALSE(apply.Enabled() || remove.Enabled());
    auto& rows = On<ListBox>(1, 0);
    headless::ExpectOpenFile("Add Favourite QRN File", program_.CurrentFile);
    DoubleClickItem(rows, 2);
    EXPECT_EQ(headless::LastFileDialog().fileName, "duel.qrn");
    EXPECT_EQ(rows.Items()[2], "Ace - Alpha");
    DoubleClickItem(rows, 2);  // it is set: nothing to ask
    EXPECT_TRUE(remove.Enabled());
    Click(apply);
    EXPECT_EQ(program_.favourites[2].path, program_.CurrentFile);
    EXPECT_FALSE(apply.Enabled());
}

TEST_F(OptionsTest, TellsWhatALocationHas) {
    const auto found = [this] { return On<Label>(0, 3).Text(); };
    EXPECT_EQ(found(), "There is no subspace.exe.");
    PutFile(Scratch() + "\\subspace.exe", "game");
    PutFile(Scratch() + "\\favorite.lst", "Alpha Reach,a.example,5000\r\n-First\r\n");
    headless::ExpectOpenFile("Locate Subspace.EXE", Scratch() + "\\subspace.exe");
    Click(On<Button>(0, 2));
    EXPECT_EQ(found(), "Found: subspace.exe, 1 zone");
    On<TextBox>(0, 6).UserEdits("C:\\Typed");
    EXPECT_EQ(On<Label>(0, 8).Text(), "A typed folder is not kept: use Browse.");
}

// The next transfer would write into the root of the current drive.
TEST_F(OptionsTest, ALocationThatIsEmptiedIsNotSet) {
    headless::ExpectOpenFile("Locate Subspace.EXE", Scratch() + "\\subspace.exe");
    Click(On<Button>(0, 2));
    On<TextBox>(0, 1).UserEdits(" ");
    Click(ControlOf<Button>(dialog_, "Apply"));
    EXPECT_EQ(program_.gameFolder, kNotSet);
}

TEST_F(OptionsTest, OnlyWhatIsChosenAndConfirmedCounts) {
    On<TextBox>(0, 1).UserEdits("C:\\Typed");
    headless::ExpectOpenFile("Default QRN File Location", Scratch() + "\\any.txt");
    Click(On<Button>(0, 7));
    PutFile(Scratch() + "\\nobody.qrn", "[Other]\r\n");
    dialog_.SelectTab(frmOptions::kFavourites);
    auto& rows = On<ListBox>(1, 0);
    for (int i = 0; i < 2; ++i) {
        headless::ExpectOpenFile("Add Favourite QRN File", Scratch() + "\\nobody.qrn");
        Click(On<Button>(1, 1));
        // A name in "<" counts as an empty row, so there is room still.
        EXPECT_EQ(rows.Items()[0], "<invalid> - <invalid>");
        EXPECT_EQ(rows.Items()[1], EmptyFavouriteName(1));
    }
    Click(ControlOf<Button>(dialog_, "Apply"));
    EXPECT_EQ(program_.gameFolder, Scratch());
    EXPECT_EQ(program_.qrnFolder, Scratch());
    Click(On<Button>(1, 3));
    EXPECT_EQ(rows.Items()[0], EmptyFavouriteName(0));
    Click(ControlOf<Button>(dialog_, "Cancel"));
    EXPECT_EQ(program_.favourites[0].path, Scratch() + "\\nobody.qrn");
}

}  // namespace
}  // namespace quirn::test
