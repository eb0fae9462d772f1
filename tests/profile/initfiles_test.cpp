#include "profile/initfiles.h"

#include "platform/files.h"
#include "tests/testing/world.h"

namespace quirn {
namespace {

using namespace test;

class InitFilesTest : public WorldTest {};

TEST_F(InitFilesTest, ReplacesAShortFileNameAtTheFirstAccess) {
    const std::string ownFile = ProgramFolder() + "\\QUIRN.ini";
    for (const char* name : {"", "a.ini"}) {
        clsIniTFiles file;
        file.InitFileName = name;
        file.SectionName = "Nothing";
        EXPECT_EQ(file.ReadKey("key", "default"), "default");
        EXPECT_EQ(file.InitFileName, ownFile);
    }
    clsIniTFiles file;
    file.InitFileName = "ab.ini";
    EXPECT_EQ(file.ReadEntireSection(), "");
    EXPECT_EQ(file.InitFileName, "ab.ini");
}

TEST_F(InitFilesTest, ReadsWhatItWroteUpToItsBuffers) {
    clsIniTFiles file;
    file.InitFileName = Scratch() + "\\test.ini";
    file.SectionName = "One";
    EXPECT_EQ(file.WriteKey("long", std::string(300, 'x')), "True");
    EXPECT_EQ(file.ReadKey("LONG", ""), std::string(254, 'x'));
    EXPECT_EQ(file.ReadKey("absent", "as given"), "as given");

    file.InitFileName = Scratch() + "\\no folder\\test.ini";
    EXPECT_EQ(file.WriteKey("key", "value"), "True");
}

}  // namespace
}  // namespace quirn
