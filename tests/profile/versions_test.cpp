#include "profile/versions.h"

#include "platform/folders.h"
#include "tests/testing/profiles.h"

namespace quirn {
namespace {

using namespace test;

class ProfileVersionsTest : public WorldTest {
protected:
    void Save(const std::string& bytes) {
        const Result<std::string> kept = versions_.KeepPresent();
        ASSERT_FALSE(kept.Failed());
        PutFile(file_, bytes);
        versions_.Settle(kept.Value());
    }

    const std::string file_ = Scratch() + "\\N\xF8rd.qrn", data_ = Scratch() + "\\data";
    ProfileVersions versions_{data_, file_};
};

TEST_F(ProfileVersionsTest, TenOfWhatSavesReplacedAreKept) {
    for (int i = 0; i < 12; ++i) Save("[Dialog]\r\nPlayerName=" + std::to_string(i) + "\r\n");
    const std::vector<ProfileVersion> kept = ProfileVersions(data_, Scratch() + "\\x\\..\\N\xD8RD.QRN").List();
    ASSERT_EQ(kept.size(), ProfileVersions::kKept);
    EXPECT_EQ(FileBytes(kept.front().file), "[Dialog]\r\nPlayerName=10\r\n");
    EXPECT_EQ(FileBytes(kept.back().file), "[Dialog]\r\nPlayerName=1\r\n");
    EXPECT_TRUE(ProfileVersions(data_, Scratch() + "\\other\\N\xF8rd.qrn").List().empty());
    EXPECT_FALSE(versions_.ForgetAll());
    EXPECT_TRUE(versions_.List().empty());
}

TEST_F(ProfileVersionsTest, OnlySoManyFilesHaveVersions) {
    for (size_t i = 0; i < ProfileVersions::kFiles + 3; ++i)
        MakeFolders(data_ + "\\Versions\\gone " + std::to_string(i));
    for (const char* pilot : {"a", "b", "c"}) Save(std::string("[Dialog]\r\nPlayerName=") + pilot + "\r\n");
    EXPECT_EQ(versions_.List().size(), 2u);
    EXPECT_EQ(ListFolder(data_ + "\\Versions").Value().size(), ProfileVersions::kFiles);
}

TEST_F(ProfileVersionsTest, ASaveThatChangesNothingKeepsNothing) {
    Save("[QUIRN]\r\nModified=1.1.04 21:26\r\n[Dialog]\r\nPlayerName=Bo\r\n");
    Save("[QUIRN]\r\nModified=2.1.04 11:00\r\n[Dialog]\r\nPlayerName=Bo\r\n");
    EXPECT_TRUE(versions_.List().empty());
    PutFile(Scratch() + "\\blocked", "");
    EXPECT_TRUE(ProfileVersions(Scratch() + "\\blocked", file_).KeepPresent().Failed());
}

}  // namespace
}  // namespace quirn
