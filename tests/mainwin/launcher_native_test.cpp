#include "mainwin/launcher.h"

#include "mainwin/frmmain.h"
#include "platform/headless/events.h"
#include "platform/headless/headless.h"
#include "tests/auxiliary/controlsof.h"
#include "tests/testing/profiles.h"
#include "tests/testing/userinput.h"

namespace quirn {
namespace {

using namespace test;
using headless::TheWorld;

class LauncherTest : public WorldTest {
protected:
    LauncherTest() {
        program_.gameFolder = game_;
        PutFile(game_ + "\\subspace.exe", "game");
        profile_.WaveFiles = {kNotSet, kNotSet};
        profile_.Advanced.Value(kSkipSplash) = "0";
    }

    static void GameWindowAppearsAfter(int milliseconds) {
        headless::PostAfter(milliseconds, [] { TheWorld().windows.push_back({"subspaceclass", "Game"}); });
    }

    const std::string game_ = Scratch() + "\\game";
    Profile profile_ = SampleProfile();
    Program program_;
    Launcher launcher_{program_};
};

TEST_F(LauncherTest, SaysWhyTheGameIsNotStarted) {
    program_.gameFolder = kNotSet;
    ExpectMessage("You must set the location of the SUBSPACE.EXE file in the Options.", kExclamation);
    EXPECT_FALSE(launcher_.TransferAndLaunch(profile_, {}));
    program_.gameFolder = game_;
    for (const char* skipSplash : {"0", "1"}) {
        profile_.Advanced.Value(kSkipSplash) = skipSplash;
        TheWorld().programsFailToStart = true;
        ExpectMessage("ERROR - Could not start Subspace, but Macros were transfered.", kCritical);
        EXPECT_FALSE(launcher_.TransferAndLaunch(profile_, {}));
        EXPECT_TRUE(headless::LoadedForms().empty()) << "the run box";
    }
}

TEST_F(LauncherTest, WaitsForTheGameAndOneSecondMore) {
    const long slow = 600'000;  // no time-out
    GameWindowAppearsAfter(slow);
    EXPECT_TRUE(launcher_.TransferAndLaunch(profile_, {}));
    launcher_.WaitForGame();
    EXPECT_GE(headless::Now(), slow + 1000);
    EXPECT_LE(headless::Now(), slow + 1100);
    ASSERT_EQ(TheWorld().startedPrograms.size(), 1u);
    EXPECT_EQ(TheWorld().startedPrograms[0].path, game_ + "\\subspace.exe");
    EXPECT_EQ(TheWorld().startedPrograms[0].folder, game_);

    // The game runs already: its window is there at once.
    const long before = headless::Now();
    EXPECT_TRUE(launcher_.TransferAndLaunch(profile_, {}));
    launcher_.WaitForGame();
    EXPECT_GE(headless::Now(), before + 1000);
    EXPECT_LE(headless::Now(), before + 1100);
}

TEST_F(LauncherTest, ASecondRunTakesThePlaceOfTheFirstAndExitEndsBoth) {
    Program program;
    program.gameFolder = game_;
    InitCatalogue(program.profile);
    PutFile(game_ + "\\favorite.lst", "Alpha Reach,a.example,5000\r\n-First\r\n");
    MakeKey("Software\\Virgin\\SubSpace\\Advanced");
    PutValue("Software\\Virgin\\SubSpace\\Advanced", "SkipSplash", 4, std::string(4, '\0'));
    frmMain window(program);
    window.Show();
    program.dirty = false;
    auto& run = ControlOf<Button>(window, "Transfer Profile And Run Subspace");
    Click(run);
    EXPECT_FALSE(window.Visible());
    window.Show();
    Click(run);
    EXPECT_EQ(TheWorld().startedPrograms.size(), 2u);
    EXPECT_EQ(headless::Now(), 0) << "nothing waits";
    headless::PostAfter(5000, [&] { window.Unload(); });
    RunEventLoop();
    EXPECT_EQ(headless::Now(), 5000);
}

TEST(GameRunTest, FollowsTheGameFromItsStartToItsEnd) {
    ResetWorld();
    PutFile("C:\\game\\subspace.exe", "game");
    GameRun game;
    std::string states;
    game.onState = [&](GameRun::State state) { states += "NSRE"[static_cast<int>(state)]; };
    auto& started = TheWorld().startedPrograms;
    auto& windows = TheWorld().windows;
    ASSERT_TRUE(game.Start("C:\\game"));
    WaitForEvents(5000);
    EXPECT_EQ(states, "S");
    windows.push_back({"SubSpaceClass", "Game"});
    WaitForEvents(5000);
    windows.clear();  // between two windows
    WaitForEvents(5000);
    EXPECT_EQ(states, "SR");
    started[0].running = false;
    WaitForEvents(5000);
    EXPECT_EQ(states, "SRE");

    // A program that starts another one and goes: the game is there when its window is.
    ASSERT_TRUE(game.Start("C:\\game"));
    started[1].running = false;
    WaitForEvents(5000);
    windows.push_back({"SubSpaceClass", "Game"});
    WaitForEvents(5000);
    EXPECT_EQ(states, "SRESER");
}

}  // namespace
}  // namespace quirn
