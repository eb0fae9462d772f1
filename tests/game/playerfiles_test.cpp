#include "game/playerfiles.h"

#include "tests/testing/profiles.h"

namespace quirn {
namespace {

using namespace test;

class PlayerFilesTest : public WorldTest {
protected:
    PlayerFilesTest() {
        MakeFolder(game_);
        profile_.WaveFiles = {kNotSet, kNotSet};
    }

    const std::string game_ = Scratch() + "\\game";
    const std::string ignore_ = game_ + "\\ignore.txt";
    const std::string wave0_ = game_ + "\\record0.wav";
    const std::string wave1_ = game_ + "\\record1.wav";
    Profile profile_ = SampleProfile();
};

TEST_F(PlayerFilesTest, ReadsTheIgnoreListWithoutComments) {
    PutFile(ignore_, " Mole \r\n\r\n  # not a player\r\n#x\nCaf\xE9 Bot");
    EXPECT_FALSE(ReadIgnoreFile(profile_, game_));
    EXPECT_EQ(profile_.IgnoreList, (std::vector<std::string>{"Mole", "", "Caf\xE9 Bot"}));
    PutFile(ignore_, std::string("A\rB\r\nC\0D", 9));  // a QRN file would cut "A\rB" to "A"
    EXPECT_FALSE(ReadIgnoreFile(profile_, game_));
    EXPECT_EQ(profile_.IgnoreList, (std::vector<std::string>{"A", "B", "C", "D"}));
    PutFile(ignore_, "1\r\n2\r\n3");
    SetHidden(ignore_);
    EXPECT_FALSE(ReadIgnoreFile(profile_, game_));
    EXPECT_EQ(profile_.IgnoreList.size(), 3u);
    EXPECT_FALSE(ReadIgnoreFile(profile_, Scratch()));
    EXPECT_TRUE(profile_.IgnoreList.empty());
}

TEST_F(PlayerFilesTest, AnIgnoreFileThatCouldNotBeReadIsNotEmptied) {
    PutFile(ignore_, "Mole\r\n");
    {
        const HeldFile held(ignore_);
        EXPECT_TRUE(ReadIgnoreFile(profile_, game_));
    }
    EXPECT_FALSE(WriteIgnoreFile(profile_, game_));
    EXPECT_EQ(FileBytes(ignore_), "Mole\r\n");
    profile_.IgnoreList = {"Bot", "mole"};
    {
        const HeldFile held(ignore_);
        EXPECT_TRUE(WriteIgnoreFile(profile_, game_));
    }
    for (int i = 0; i < 2; ++i) {
        EXPECT_FALSE(WriteIgnoreFile(profile_, game_));
        EXPECT_EQ(FileBytes(ignore_), "Mole\r\nBot\r\n");
    }
}

TEST_F(PlayerFilesTest, WritesNamesAsTheyAreWithoutBlankOnes) {
    profile_.IgnoreList = {"", " Mole ", "   ", "#1"};
    EXPECT_FALSE(WriteIgnoreFile(profile_, game_));
    EXPECT_EQ(FileBytes(ignore_), " Mole \r\n#1\r\n");
    profile_.IgnoreList = {" "};
    EXPECT_FALSE(WriteIgnoreFile(profile_, game_));
    EXPECT_EQ(FileBytes(ignore_), "");
}

TEST_F(PlayerFilesTest, FindsTheGamesOwnWaves) {
    PutFile(wave1_, "pong");
    ReadPlayerFiles(profile_, game_);
    EXPECT_EQ(profile_.WaveFiles[0], kNotSet);
    EXPECT_EQ(profile_.WaveFiles[1], wave1_);
}

// A stranger's profile can name any file, and the game sends it on.
TEST_F(PlayerFilesTest, NamesAWaveThatIsNone) {
    const std::string diary = Scratch() + "\\diary.txt";
    PutFile(diary, "dear diary");
    profile_.WaveFiles = {kNotSet, diary};
    EXPECT_TRUE(WritePlayerFiles(profile_, game_).empty());
    ASSERT_TRUE(FindOddWave(profile_, game_));
    EXPECT_EQ(FindOddWave(profile_, game_)->path, diary);
    PutFile(wave1_, "RIFF\x24\x01\x01\x01WAVEfmt ");
    EXPECT_FALSE(FindOddWave(profile_, game_));
    profile_.WaveFiles[0] = "\\\\server\\share\\x.wav";
    EXPECT_TRUE(FindOddWave(profile_, game_)->elsewhere);
}

TEST_F(PlayerFilesTest, CopiesWavesUnlessNotSetOrTheGamesOwn) {
    const std::string source = Scratch() + "\\ping.wav";
    PutFile(source, "ping");
    PutFile(wave1_, "old");
    std::string sameFile = game_ + "\\RECORD1.Wav";
    for (const std::string& path : {std::string(kNotSet), std::string("<"), std::string("<\\" + source), sameFile}) {
        profile_.WaveFiles = {source, path};
        WritePlayerFiles(profile_, game_);
        EXPECT_EQ(FileBytes(wave0_), "ping");
        EXPECT_EQ(FileBytes(wave1_), "old") << path;
    }
    profile_.WaveFiles[1] = source;
    WritePlayerFiles(profile_, game_);
    EXPECT_EQ(FileBytes(wave1_), "ping");
    EXPECT_EQ(FileBytes(source), "ping");
}

TEST_F(PlayerFilesTest, AFolderThatIsGoneIsOneError) {
    const std::vector<FileTrouble> errors = WritePlayerFiles(profile_, Scratch() + "\\no game");
    ASSERT_EQ(errors.size(), 1u);
    EXPECT_EQ(errors[0].error.number, 76);
}

}  // namespace
}  // namespace quirn
