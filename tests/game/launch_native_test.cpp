#include "game/launch.h"

#include "platform/headless/events.h"
#include "platform/headless/headless.h"
#include "tests/testing/profiles.h"

namespace quirn {
namespace {

using namespace test;
using headless::TheWorld;

class LaunchTest : public WorldTest {
protected:
    LaunchTest() {
        headless::ResetEvents();
        program_.profile = SampleProfile();
        program_.gameFolder = Scratch() + "\\game";
        PutFile(program_.gameFolder + "\\subspace.exe", "game");
        mainWindow_.Show();
    }

    void GameWindowAppearsAfter(int milliseconds) {
        headless::PostAfter(milliseconds, [] { TheWorld().windows.push_back({"subspaceclass", "Game"}); });
    }

    Program program_;
    Form mainWindow_{FormBorder::Fixed, 1000, 1000};
};

TEST_F(LaunchTest, RefusesWithoutAGameFolder) {
    program_.gameFolder = kNotSet;
    ExpectMessage("You must set the location of the SUBSPACE.EXE file in the Options.", kExclamation);
    EXPECT_EQ(LaunchGame(program_, program_.profile, LaunchMode::Interactive, &mainWindow_), LaunchResult::Refused);
    EXPECT_TRUE(mainWindow_.Visible());
}

TEST_F(LaunchTest, SaysWhenTheGameCannotBeStarted) {
    for (const char* skipSplash : {"0", "1"}) {
        program_.profile.Advanced.Value(kSkipSplash) = skipSplash;
        TheWorld().programsFailToStart = true;
        ExpectMessage("ERROR - Could not start Subspace, but Macros were transfered.", kCritical);
        EXPECT_EQ(LaunchGame(program_, program_.profile, LaunchMode::CommandLine, &mainWindow_), LaunchResult::Failed);
        EXPECT_TRUE(mainWindow_.Visible());
    }
}

TEST_F(LaunchTest, WaitsForTheGameAndOneSecondMore) {
    program_.profile.Advanced.Value(kSkipSplash) = "0";
    const long slow = 600'000;  // no time-out
    GameWindowAppearsAfter(slow);
    EXPECT_EQ(LaunchGame(program_, program_.profile, LaunchMode::Interactive, &mainWindow_), LaunchResult::Done);
    EXPECT_GE(headless::Now(), slow + 1000);
    EXPECT_LE(headless::Now(), slow + 1100);
    const std::pair<std::string, std::string> started{program_.gameFolder + "\\subspace.exe", program_.gameFolder};
    EXPECT_EQ(TheWorld().startedPrograms, std::vector{started});
    EXPECT_TRUE(mainWindow_.IsLoaded());
    EXPECT_FALSE(mainWindow_.Visible());

    // The game runs already: its window is there at once.
    const long before = headless::Now();
    EXPECT_EQ(LaunchGame(program_, program_.profile, LaunchMode::CommandLine, &mainWindow_), LaunchResult::Done);
    EXPECT_LE(headless::Now(), before + 1100);
    EXPECT_FALSE(mainWindow_.IsLoaded());
}

TEST_F(LaunchTest, EndingTheProgramEndsTheWait) {
    headless::PostAfter(5000, [this] { program_.ending = true; });
    EXPECT_EQ(LaunchGame(program_, program_.profile, LaunchMode::Interactive, &mainWindow_), LaunchResult::Done);
    EXPECT_LE(headless::Now(), 5100);
}

}  // namespace
}  // namespace quirn
