#include "auxiliary/frmrelnotes.h"
#include "platform/files.h"
#include "tests/auxiliary/controlsof.h"
#include "tests/testing/userinput.h"
#include "tests/testing/world.h"

namespace quirn::test {
namespace {

class NotesTest : public WorldTest {};

TEST_F(NotesTest, AMissingFileIsSaidInTheBox) {
    frmRelNotes form;
    form.Show();
    const auto& text = ControlOf<TextBox>(form, ControlKind::TextBox, "");
    for (const char* name : {"readme.txt", "revision.txt"}) {
        Click(ButtonOf(form, name));
        const std::string expected = "----\r\nERROR - Could not find " + ProgramFolder() + "\\" + name + "\r\n----";
        EXPECT_EQ(text.Text(), expected);
        EXPECT_EQ(ShownText(text), expected);
    }
    Click(ButtonOf(form, "Close"));
    EXPECT_FALSE(form.IsLoaded());
}

TEST_F(NotesTest, TheControlsFollowTheSizeAndTheSmallestIsKept) {
    frmRelNotes form;
    form.Show();
    const Control& text = ControlOf<TextBox>(form, ControlKind::TextBox, "");
    const auto fits = [&] {
        const Bounds window = form.Place();
        EXPECT_EQ(text.Place().height, window.height - 1600);
        EXPECT_EQ(text.Place().width, window.width - 300);
        EXPECT_EQ(ButtonOf(form, "Close").Place().left, window.width - 1750);
        for (const char* name : {"readme.txt", "revision.txt", "Close"})
            EXPECT_EQ(ButtonOf(form, name).Place().top, window.height - 930) << name;
        EXPECT_LE(ButtonOf(form, "revision.txt").Place().Right(), ButtonOf(form, "Close").Place().left);
    };
    EXPECT_EQ(form.Place().width, 721 * 15);
    EXPECT_EQ(form.Place().height, 506 * 15);
    fits();
    form.Move({300, 300, 12000, 9000});
    EXPECT_EQ(form.Place().width, 12000);
    fits();
    EXPECT_EQ(form.MinimumWidth(), 721 * 15);
    EXPECT_EQ(form.MinimumHeight(), 506 * 15);
}

}  // namespace
}  // namespace quirn::test
