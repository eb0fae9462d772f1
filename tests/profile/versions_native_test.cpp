#include "platform/headless/headless.h"
#include "profile/versions.h"
#include "tests/testing/profiles.h"

namespace quirn {
namespace {

using namespace test;

class VersionsClockTest : public WorldTest {};

// Ten versions from a wrong year would push out each new one at once.
TEST_F(VersionsClockTest, AClockThatIsSetBackLosesNoVersion) {
    const std::string file = Scratch() + "\\a.qrn";
    const ProfileVersions versions(Scratch() + "\\data", file);
    headless::TheWorld().sortableTime = "2099-01-01 00.00.00";
    PutFile(file, "0");
    for (int i = 1; i <= 12; ++i) {
        if (i == 11) headless::TheWorld().sortableTime = "2004-03-14 21.26.53";
        const std::string kept = versions.KeepPresent().Take();
        PutFile(file, std::to_string(i));
        versions.Settle(kept);
        EXPECT_EQ(FileBytes(versions.List().front().file), std::to_string(i - 1));
    }
    EXPECT_EQ(versions.List().size(), ProfileVersions::kKept);
}

}  // namespace
}  // namespace quirn
