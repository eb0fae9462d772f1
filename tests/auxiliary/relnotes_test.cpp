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
    const auto& text = ControlOf<TextBox>(form, "");
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
    const Control& text = ControlOf<TextBox>(form, "");
    EXPECT_EQ(form.Place().width, 721 * 15);
    form.Move({300, 300, 12000, 9000});
    EXPECT_EQ(text.Place().width, form.Place().width - 300);
    EXPECT_EQ(text.Place().height, form.Place().height - 1600);
    EXPECT_EQ(ButtonOf(form, "Close").Place().left, form.Place().width - 1750);
    EXPECT_GT(ButtonOf(form, "readme.txt").Place().top, text.Place().Bottom());
    EXPECT_EQ(form.MinimumWidth(), 721 * 15);
    EXPECT_EQ(form.MinimumHeight(), 506 * 15);
}

}  // namespace
}  // namespace quirn::test
