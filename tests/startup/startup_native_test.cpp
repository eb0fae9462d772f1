#include "platform/headless/events.h"
#include "platform/headless/headless.h"
#include "startup/instance.h"
#include "startup/main.h"
#include "tests/testing/profiles.h"

namespace quirn {
namespace {

using namespace test;
using headless::TheWorld;

class StartupTest : public WorldTest {
protected:
    StartupTest() { headless::ResetEvents(); }
};

TEST_F(StartupTest, ASecondCopyHandsOverToTheFirst) {
    TheWorld().otherCopyRuns = true;
    ExpectMessage("QUIRN is already running.", kInformation);
    Main();

    TheWorld().windows = {{"Other", ""}, {"Other", "QUIRN v1.6"}, {"Main", "quirn V1.61 - MY.QRN"}};
    Main();
    EXPECT_TRUE(TheWorld().windows[2].shownNormal);
    EXPECT_EQ(TheWorld().broughtToFront, 2u);
    EXPECT_FALSE(TheWorld().windows[1].shownNormal);
    EXPECT_EQ(FindWindowContaining("nothing like it"), 0u);

    TheWorld().windows[2].answers = false;
    ExpectMessage("QUIRN is already running.", kInformation);
    Main();
}

TEST_F(StartupTest, LoadAndRunEndsTheProgramBeforeTheMainWindow) {
    const std::string game = Scratch() + "\\Game";
    PutFile(game + "\\subspace.exe", "game");
    PutFile(Scratch() + "\\ACE.QRN", "[Dialog]\r\nPlayerName=Ace\r\n[QUIRN]\r\nVersion=1.61\r\n");
    MakeKey("Software\\Virgin\\SubSpace\\Dialog");
    PutValue("Software\\QUIRN\\File Locations", "SubSpace", 1, game + '\0');
    PutValue("Software\\QUIRN\\File Locations", "QRN Files", 1, Scratch() + '\0');
    TheWorld().windows = {{"SubSpaceClass", "Game"}};
    TheWorld().commandLineTail = "/LR:ace.qrn /what";  // the rest is never looked at
    Main();
    EXPECT_EQ(TheWorld().startedPrograms.size(), 1u);
    EXPECT_EQ(GetValue("Software\\Virgin\\SubSpace\\Dialog", "PlayerName")->bytes, std::string("Ace\0", 4));
    EXPECT_FALSE(KeyExists("Software\\QUIRN\\Settings"));  // the main window was never there to be unloaded
}

}  // namespace
}  // namespace quirn
