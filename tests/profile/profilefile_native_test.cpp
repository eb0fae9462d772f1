#include "platform/files.h"
#include "platform/headless/headless.h"
#include "profile/profilefile.h"
#include "tests/testing/profiles.h"

namespace quirn {
namespace {

using namespace test;

class ProfileDiskTest : public WorldTest {};

// The private-profile functions report success on a full disk, wherever it fills up; and what is cut off need not be
// anything that the program wrote.
TEST_F(ProfileDiskTest, FullDiskKeepsTheOldFile) {
    const std::string file = Scratch() + "\\a.qrn";
    Profile profile = SampleProfile();
    ASSERT_FALSE(SaveProfile(profile, Scratch(), file));
    const std::string before = FileBytes(file).value_or("") + "[Team]\r\nname=Nine\r\n";
    PutFile(file, before);
    profile.Messages.Value(1) = std::string(200, 'x');
    int failed = 0;
    for (size_t room = 0;; room += 97) {
        headless::TheWorld().diskRoom = room;
        const Failure failure = SaveProfile(profile, Scratch(), file);
        EXPECT_FALSE(FileBytes(UnfinishedPath(file)));
        if (!failure) break;
        ++failed;
        EXPECT_EQ(failure->number, 61) << room;
        ASSERT_TRUE(FileBytes(file) == before) << room;
    }
    EXPECT_GT(failed, 20);
    EXPECT_NE(FileBytes(file)->find(profile.Messages.Value(1)), std::string::npos);
    EXPECT_NE(FileBytes(file)->find("name=Nine"), std::string::npos);
}

}  // namespace
}  // namespace quirn
