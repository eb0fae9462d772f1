#include "logedit/frmlogedit.h"

#include "logedit/logmenurows.h"
#include "platform/headless/dialogs.h"
#include "platform/headless/events.h"
#include "tests/testing/userinput.h"
#include "tests/testing/world.h"

// What the player does while the log editor reads waits until it has read.
namespace quirn::test {
namespace {

class ReadingLogTest : public WorldTest {};

TEST_F(ReadingLogTest, LetsThePlayerWait) {
    PutFile(Scratch() + "\\two.log", "  Ann> x\r\nT Bob> y\r\n");
    const std::string folder = Scratch();
    LogEdit edit;
    frmLogEdit form(folder, edit);
    form.Show();
    size_t linesAtTheClick = 0;
    headless::PostAfter(0, [&] {
        linesAtTheClick = edit.view.Count();
        Choose(form, logmenu::mnuFile_Close);
    });
    headless::ExpectOpenFile("Open", Scratch() + "\\two.log");
    form.MenuBar()->onCommand(logmenu::mnuFile_Open);
    EXPECT_EQ(edit.view.Count(), 2u);
    EXPECT_TRUE(form.IsLoaded());
    DoEvents();
    EXPECT_EQ(linesAtTheClick, 2u);
    EXPECT_FALSE(form.IsLoaded());
}

}  // namespace
}  // namespace quirn::test
