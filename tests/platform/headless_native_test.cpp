#include "platform/headless/headless.h"

#include "platform/files.h"
#include "platform/inifile.h"
#include "tests/testing/world.h"

// What a test cannot bring about on a real machine.
namespace quirn {
namespace {

using namespace test;
using headless::TheWorld;

class MemoryTest : public WorldTest {
protected:
    const std::string file_ = Scratch() + "\\file";
    const std::string unfinished_ = file_ + kUnfinishedSuffix;
};

TEST_F(MemoryTest, FullDiskLeavesTheOldFileWhole) {
    PutFile(file_, "old content");
    TheWorld().diskRoom = 10;
    EXPECT_TRUE(DiskIsFull(file_, 11));
    EXPECT_FALSE(DiskIsFull(file_, 10));
    EXPECT_EQ(WriteWholeFile(file_, "twelve bytes")->number, 61);
    EXPECT_EQ(FileBytes(file_), "old content");
    EXPECT_FALSE(FileBytes(unfinished_));
    EXPECT_EQ(TheWorld().diskRoom, 10u);
}

TEST_F(MemoryTest, IniFunctionsReportSuccessAndCutTheFile) {
    PutFile(file_, "[s]\r\na=1\r\n");
    TheWorld().diskRoom = 2;
    EXPECT_TRUE(WriteIniValue(file_, "s", "k", "value"));
    EXPECT_EQ(FileBytes(file_), "[s]\r\na=1\r\nk=");
}

}  // namespace
}  // namespace quirn
