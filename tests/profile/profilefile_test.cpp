#include "profile/profilefile.h"

#include <chrono>

#include "platform/files.h"
#include "platform/inifile.h"
#include "tests/testing/profiles.h"

namespace quirn {
namespace {

using namespace test;

class ProfileFileTest : public WorldTest {
protected:
    ProfileFileTest() { MakeFolder(game_); }

    Profile Saved(const Profile& profile) {
        EXPECT_FALSE(SaveProfile(profile, game_, file_));
        Profile loaded = EmptyProfile();
        EXPECT_EQ(LoadProfile(loaded, file_), LoadResult::Loaded);
        return loaded;
    }

    const std::string game_ = Scratch() + "\\game";
    const std::string file_ = Scratch() + "\\my.best.qrn";
    Profile profile_ = SampleProfile();
};

TEST_F(ProfileFileTest, RefusesWhatIsNoProfileAndKeepsTheOldOne) {
    const Profile before = profile_;
    const std::string hidden = Scratch() + "\\hidden.qrn";
    PutFile(hidden, "[Dialog]\r\na=1\r\n");
    SetHidden(hidden);
    for (const std::string& path : {file_, game_, game_ + "\\", hidden, std::string()})
        EXPECT_EQ(LoadProfile(profile_, path), LoadResult::NotFound) << path;
    for (const char* content : {"", "[Dialog]\r\n", "[Dialogue]\r\na=1\r\n", "[QUIRN]\r\nVersion=1.61\r\n", "Dialog"}) {
        PutFile(file_, content);
        EXPECT_EQ(LoadProfile(profile_, file_), LoadResult::NotValid) << content;
    }
    ExpectSame(profile_, before);
}

TEST_F(ProfileFileTest, KnowsFilesOfEarlierVersions) {
    const struct {
        const char* version;
        bool earlier;
    } rows[] = {{"1.7", false},  {"1.61", false}, {"1.610", false}, {"2", false}, {"1.6", true},
                {"1.601", true}, {"", true},      {"new", true},    {"-3", true}};
    for (const auto& row : rows) {
        PutFile(file_, std::string("[Dialog]\r\na=1\r\n[QUIRN]\r\nVersion=") + row.version + "\r\n");
        EXPECT_EQ(LoadProfile(profile_, file_), row.earlier ? LoadResult::LoadedFromEarlierVersion : LoadResult::Loaded)
            << row.version;
    }
}

TEST_F(ProfileFileTest, GammaThatIsNoNumberBecomes100) {
    const char* const rows[][2] = {{"0", "100"}, {"", "100"},  {"bright", "100"}, {"0.0", "100"},
                                   {"60", "60"}, {"5x", "5x"}, {"-1", "-1"},      {"0.5", "0.5"}};
    for (const auto& [stored, shown] : rows) {
        PutFile(file_, std::string("[Dialog]\r\na=1\r\n[QUIRN]\r\nVersion=9\r\n[Advanced]\r\nGammaPercent=") + stored);
        EXPECT_EQ(LoadProfile(profile_, file_), LoadResult::Loaded);
        EXPECT_EQ(profile_.Advanced.Value(kGammaPercent), shown) << stored;
    }
}

TEST_F(ProfileFileTest, SavesEveryKeyInOrder) {
    profile_.Messages.Value(1) = "?buy %coord";
    EXPECT_FALSE(SaveProfile(profile_, game_, file_));
    const std::string bytes = FileBytes(file_).value_or("");
    size_t at = 0;
    for (const char* part :
         {"[QUIRN]\r\nVersion=1.61\r\nModified=", "[Dialog]\r\nPlayerName=D1\r\n",
          "PlayerShipType=1\r\nWaveFileF11=C:\\waves\\ping.wav\r\nWaveFileF12=C:\\waves\\pong.wav\r\n",
          "[Messages]\r\nShiftF1=?buy %coord\r\n", "RShiftF8=M16\r\nChatName=M17\r\n",
          "[Options]\r\nPlayerReceiveWaveMessages=2\r\n", "[Advanced]\r\nSkipSplash=41\r\nGammaPercent=42\r\n",
          "[IgnoreList]\r\nIgnore1=Mole\r\nIgnore2=Caf\xE9 Bot\r\nIgnore3=\r\n",
          "[HiddenOptions]\r\nForce60=97\r\nShowFrameRate=98\r\nFlickSystemMemory=99\r\n"}) {
        const size_t found = bytes.find(part, at);
        ASSERT_NE(found, std::string::npos) << part << " in\n" << bytes;
        at = found;
    }
    EXPECT_EQ(FileBytes(game_ + "\\my.ssm"),
              "?buy %coord\r\nM2\r\nM3\r\nM4\r\nM5\r\nM6\r\nM7\r\nM8\r\n"
              "M9\r\nM10\r\nM11\r\nM12\r\nM13\r\nM14\r\nM15\r\nM16\r\n");
    profile_.Dialog.Value(2) = std::string(254, 'x');  // the longest that can be read back
    ExpectSame(Saved(profile_), profile_);
}

TEST_F(ProfileFileTest, AShorterIgnoreListHidesTheRestOfALongerOne) {
    profile_.IgnoreList = {"a", "b", "c", "d", "e"};
    Saved(profile_);
    profile_.IgnoreList = {"x", "y"};
    EXPECT_EQ(Saved(profile_).IgnoreList, (std::vector<std::string>{"x", "y"}));
    EXPECT_NE(FileBytes(file_)->find("Ignore1=x\r\nIgnore2=y\r\nIgnore3=\r\nIgnore4=d\r\nIgnore5=e\r\n"),
              std::string::npos);
    profile_.IgnoreList = {"x", "", "  ", "\t", "\"\"", "z"};  // empty lines of ignore.txt must not end the list
    EXPECT_EQ(Saved(profile_).IgnoreList, (std::vector<std::string>{"x", "z"}));
}

TEST_F(ProfileFileTest, LongIgnoreListsDoNotFreeze) {
    profile_.IgnoreList.clear();
    for (int i = 0; i < 20000; ++i) profile_.IgnoreList.push_back("Player " + std::to_string(i));
    const auto start = std::chrono::steady_clock::now();
    ExpectSame(Saved(profile_), profile_);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(20));
}

TEST_F(ProfileFileTest, AUnicodeFileStaysOne) {
    std::string bytes = "\xFF\xFE";
    for (const char c : std::string("[Dialog]\r\nPlayerName=Old\r\nColour=red\r\n")) bytes += {c, '\0'};
    PutFile(file_, bytes);
    ExpectSame(Saved(profile_), profile_);
    EXPECT_TRUE(FileBytes(file_)->starts_with("\xFF\xFE"));
    EXPECT_EQ(ReadIniValue(file_, "Dialog", "Colour", "", 99), "red");
}

TEST_F(ProfileFileTest, OtherKeysOfTheFileSurvive) {
    PutFile(file_,
            "; my notes\r\n[Team]\r\nname=Nine\r\n[Dialog]\r\nColour=red\r\nplayername=Old\r\n"
            "[IgnoreList]\r\n; friends\r\nIgnore1=Old\r\nsince=May\r\n\r\n[Team 2]\r\n");
    EXPECT_FALSE(SaveProfile(profile_, game_, file_));
    const std::string bytes = FileBytes(file_).value_or("");
    for (const char* part :
         {"; my notes\r\n", "[Team]\r\nname=Nine\r\n", "Colour=red\r\n", "playername=D1\r\n",
          "; friends\r\nIgnore1=Mole\r\nsince=May\r\nIgnore2=Caf\xE9 Bot\r\nIgnore3=\r\n\r\n[Team 2]\r\n"})
        EXPECT_NE(bytes.find(part), std::string::npos) << part;
    EXPECT_EQ(bytes.find("PlayerName="), std::string::npos);
}

TEST_F(ProfileFileTest, AFailingMacroFileStopsBeforeHiddenOptions) {
    Saved(profile_);
    Profile changed = profile_;
    changed.Dialog.Value(1) = "Someone else";
    changed.HiddenOptions.Value(1) = "12345";
    const Failure failure = SaveProfile(changed, Scratch() + "\\no game", file_);
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->number, 76);

    Profile loaded = EmptyProfile();
    EXPECT_EQ(LoadProfile(loaded, file_), LoadResult::Loaded);
    EXPECT_EQ(loaded.Dialog.Value(1), "Someone else");
    EXPECT_EQ(loaded.HiddenOptions.Value(1), profile_.HiddenOptions.Value(1));

    const std::string fresh = Scratch() + "\\fresh.qrn";
    EXPECT_TRUE(SaveProfile(changed, Scratch() + "\\no game", fresh));
    EXPECT_EQ(FileBytes(fresh)->find("[HiddenOptions]"), std::string::npos);
    EXPECT_FALSE(FileBytes(UnfinishedPath(fresh)));
}

TEST_F(ProfileFileTest, AProfileNamedAsItsMacroFileIsWhole) {
    const std::string path = game_ + "\\ace.SSM";
    EXPECT_FALSE(SaveProfile(profile_, game_, path));
    Profile loaded = EmptyProfile();
    EXPECT_EQ(LoadProfile(loaded, path), LoadResult::Loaded);
    EXPECT_EQ(loaded.Dialog.Value(1), profile_.Dialog.Value(1));
    EXPECT_EQ(loaded.HiddenOptions.Value(1), profile_.HiddenOptions.Value(1));
}

TEST_F(ProfileFileTest, AFileThatCannotBeReplacedStaysWhole) {
    Saved(profile_);
    const auto before = FileBytes(file_);
    profile_.Dialog.Value(1) = "Someone else";
    const auto expectFailure = [&](int number, const std::string& path) {
        const Failure failure = SaveProfile(profile_, game_, path);
        ASSERT_TRUE(failure) << path;
        EXPECT_EQ(failure->number, number) << path;
        EXPECT_FALSE(FileBytes(UnfinishedPath(path))) << path;
    };
    expectFailure(76, Scratch() + "\\no folder\\a.qrn");
    expectFailure(75, game_);
    {
        const HeldFile held(file_);
        expectFailure(70, file_);
    }
    EXPECT_EQ(FileBytes(file_), before);
    SetReadOnly(file_);
    expectFailure(75, file_);
    EXPECT_EQ(FileBytes(file_), before);
}

}  // namespace
}  // namespace quirn
