#include "mainwin/frmoptions.h"

#include "platform/headless/dialogs.h"
#include "tests/auxiliary/controlsof.h"
#include "tests/testing/userinput.h"
#include "tests/testing/world.h"

namespace quirn::test {
namespace {

class OptionsTest : public WorldTest {};

// The next transfer would write into the root of the current drive.
TEST_F(OptionsTest, ALocationThatIsEmptiedIsNotSet) {
    Program program;
    program.gameFolder = Scratch();
    frmOptions dialog(program, [] {});
    dialog.Load();
    dialog.Show();
    headless::ExpectOpenFile("Locate Subspace.EXE", Scratch() + "\\subspace.exe");
    const auto& controls = ControlOf<TabStrip>(dialog, "").Pages()[0]->Controls();
    Click(dynamic_cast<Button&>(*controls[2]));
    dynamic_cast<TextBox&>(*controls[1]).UserEdits(" ");
    Click(ControlOf<Button>(dialog, "Apply"));
    EXPECT_EQ(program.gameFolder, kNotSet);
}

}  // namespace
}  // namespace quirn::test
