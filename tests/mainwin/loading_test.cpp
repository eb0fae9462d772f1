#include "mainwin/loading.h"

#include "tests/testing/profiles.h"

namespace quirn {
namespace {

using namespace test;

class LoadingTest : public WorldTest {};

TEST_F(LoadingTest, TellsWhatBecomesOfAProfile) {
    const std::string file = Scratch() + "\\my.qrn";
    Profile profile = SampleProfile();
    ExpectMessage("ERROR - Could not find profile named '" + file + "'", kCritical);
    EXPECT_FALSE(LoadProfileAndTell(profile, file));
    PutFile(file, "[QUIRN]\r\nVersion=1.61\r\n");
    ExpectMessage("ERROR - The file '" + file + "' is not a valid QRN file.", kCritical);
    EXPECT_FALSE(LoadProfileAndTell(profile, file));
    PutFile(file, "[Dialog]\r\nPlayerName=Ace\r\n");
    ExpectMessage("WARNING - The file '" + file +
                      "' was created with an earlier version.\rIt is recommended that you review the settings and "
                      "re-save the file.",
                  kExclamation);
    EXPECT_TRUE(LoadProfileAndTell(profile, file));
    EXPECT_EQ(profile.Dialog.Value(kPlayerName), "Ace");
}

TEST_F(LoadingTest, AsksUntilThereAreZones) {
    constexpr char kQuestionText[] =
        "Cannot find FAVORITE.LST, make sure the location of the subspace.exe is set correctly.";
    PutFile(Scratch() + "\\favorite.lst", "A,z,1\n*d\n");
    std::string folder = kNotSet;
    int asked = 0;
    const auto setFolder = [&] { folder = ++asked == 1 ? Scratch() + "\\wrong" : Scratch(); };

    ExpectMessage(kQuestionText, 33, Answer::Cancel);
    EXPECT_FALSE(LoadZoneList(folder, setFolder));
    EXPECT_EQ(asked, 0);

    ExpectMessage(kQuestionText, 33, Answer::Ok);
    ExpectMessage(kQuestionText, 33, Answer::Ok);
    const auto zones = LoadZoneList(folder, setFolder);
    ASSERT_TRUE(zones);
    EXPECT_EQ((*zones)[0].description, "d");
    EXPECT_EQ(asked, 2);
}

}  // namespace
}  // namespace quirn
