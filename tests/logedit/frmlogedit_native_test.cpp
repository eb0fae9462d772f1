#include "logedit/frmlogedit.h"

#include "logedit/logmenurows.h"
#include "platform/headless/dialogs.h"
#include "platform/headless/events.h"
#include "tests/testing/userinput.h"
#include "tests/testing/world.h"

// What the player sees and does in the one moment in which the log editor lets events in while it reads.
namespace quirn::test {
namespace {

class ReadingLogTest : public WorldTest {};

TEST_F(ReadingLogTest, ShowsThePlayersComingAndDoesNothingElse) {
    PutFile(Scratch() + "\\two.log", "  Ann> x\r\nT Bob> y\r\n");
    const std::string folder = Scratch();
    LogEdit edit;
    frmLogEdit form(folder, edit);
    form.Show();
    const auto find = [&](const std::string& text) {
        for (Control* control : form.Controls())
            if (control->Text() == text) return control;
        throw std::runtime_error("no control " + text);
    };
    bool asked = false;
    headless::PostAfter(0, [&] {
        asked = true;
        EXPECT_TRUE(find("Populating Player List...")->Visible());
        Click(static_cast<Button&>(*find("Apply Filter")));
        Close(form);
        EXPECT_TRUE(form.IsLoaded());
    });
    headless::ExpectOpenFile("Open", Scratch() + "\\two.log");
    Choose(form, logmenu::mnuFile_Open);
    EXPECT_TRUE(asked);
    EXPECT_EQ(edit.view.Count(), 2u);
    EXPECT_FALSE(find("Applying Filter...")->Visible());
    Close(form);
    EXPECT_FALSE(form.IsLoaded());
}

}  // namespace
}  // namespace quirn::test
