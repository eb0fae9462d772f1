#include "startup/commandline.h"

#include "tests/testing/profiles.h"

namespace quirn {
namespace {

using namespace test;

TEST(SplitCommandLineTest, TakesTenWordsAndKnowsNoQuotes) {
    using Words = std::vector<std::string>;
    EXPECT_EQ(SplitCommandLine(""), Words{""});
    EXPECT_EQ(SplitCommandLine(" \t "), Words{""});
    EXPECT_EQ(SplitCommandLine(" /Q\t\t/lr:a.qrn "), (Words{"", "/Q", "/lr:a.qrn"}));
    EXPECT_EQ(SplitCommandLine("\"C:\\My Files\\a\""), (Words{"", "\"C:\\My", "Files\\a\""}));
    EXPECT_EQ(SplitCommandLine("1 2 3 4 5 6 7 8 9 10 11 12"),
              (Words{"", "1", "2", "3", "4", "5", "6", "7", "8", "9", "10"}));
    EXPECT_EQ(SplitCommandLine("1 2 3", 2), (Words{"", "1", "2"}));
}

class CommandLineTest : public WorldTest {
protected:
    CommandLineTest() {
        program_.profile = SampleProfile();
        program_.gameFolder = kNotSet;
        program_.qrnFolder = Scratch();
    }

    Program program_;
};

TEST_F(CommandLineTest, OnlyAQuietThatComesLastStays) {
    const char* const quiet[] = {"/q", " /Q ", "/QUIET", "/qxyz"};
    for (const char* argument : quiet) {
        program_.quiet = false;
        EXPECT_FALSE(HandleCommandLineArg(program_, argument));
        EXPECT_TRUE(program_.quiet) << argument;
    }
    EXPECT_FALSE(HandleCommandLineArg(program_, ""));
    EXPECT_FALSE(program_.quiet);
    program_.quiet = true;
    ExpectMessage("ERROR - Invalid command line option '-Q\xC9'", kCritical);
    EXPECT_FALSE(HandleCommandLineArg(program_, " -q\xE9 "));
    EXPECT_FALSE(program_.quiet);
}

TEST_F(CommandLineTest, LooksForABareNameInTheProfileFolder) {
    const std::string elsewhere = "Q:\\X\\MY.BEST.QRN";
    const struct {
        const char* argument;
        std::string path;
    } rows[] = {{"/LR:mine.qrn", Scratch() + "\\MINE.QRN"},
                {"/lr:name", Scratch() + "\\NAME."},
                {"/lr:", Scratch() + "\\."},
                {"/lr:q:\\x\\my.best.qrn", elsewhere},
                {"/lr:saves\\a.qrn", "SAVES\\A.QRN"}};
    for (const auto& row : rows) {
        program_.quiet = true;
        ExpectMessage("ERROR - Could not find profile named '" + row.path + "'", kCritical);
        EXPECT_FALSE(HandleCommandLineArg(program_, row.argument));
        EXPECT_FALSE(program_.quiet);
    }
}

TEST_F(CommandLineTest, StartGoesOnWhenTheGameCannotBeLaunched) {
    PutFile(Scratch() + "\\MINE.QRN", "[Dialog]\r\nPlayerName=Ace\r\n[QUIRN]\r\nVersion=1.61\r\n");
    ExpectMessage("You must set the location of the SUBSPACE.EXE file in the Options.", kExclamation);
    EXPECT_FALSE(HandleCommandLineArg(program_, "/LR:mine.qrn"));
    EXPECT_EQ(program_.profile.Dialog.Value(1), "Ace");
}

}  // namespace
}  // namespace quirn
