#include "mainwin/frmoptions.h"
#include "platform/headless/headless.h"
#include "tests/auxiliary/controlsof.h"
#include "tests/testing/userinput.h"
#include "tests/testing/world.h"

namespace quirn::test {
namespace {

class FoundGameTest : public WorldTest {};

// The first minute of a new player: the program lies in a folder of its own.
TEST_F(FoundGameTest, AGameInTheStartMenuIsOffered) {
    Program program;
    program.gameFolder = Scratch() + "\\empty";
    for (const char* folder : {"\\half", "\\games & more"}) PutFile(Scratch() + folder + "\\subspace.exe", "game");
    PutFile(Scratch() + "\\games & more\\favorite.lst", "Alpha,a.example,5000\r\n-First\r\n");
    headless::TheWorld().startMenuPrograms = {"C:\\Tools\\other.exe", Scratch() + "\\half\\subspace.exe",
                                              Scratch() + "\\games & more\\SUBSPACE.EXE"};
    frmOptions options(program, [] {});
    options.Load();
    options.Show();
    const auto& page = ControlOf<TabStrip>(options, "").Pages()[0]->Controls();
    EXPECT_EQ(page[3]->Text(), "Found a game in " + Scratch() + "\\games & more");
    Click(*page[4]);
    Click(ButtonOf(options, "OK"));
    EXPECT_EQ(program.gameFolder, Scratch() + "\\games & more");
}

}  // namespace
}  // namespace quirn::test
