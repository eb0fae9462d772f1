#include "mainwin/appsettings.h"

#include "platform/files.h"
#include "tests/testing/profiles.h"

namespace quirn {
namespace {

using namespace test;

class AppSettingsTest : public WorldTest {};

TEST_F(AppSettingsTest, FirstStartHasDefaults) {
    Program program;
    ReadFileLocations(program);
    ReadLists(program);
    EXPECT_EQ(program.gameFolder, kNotSet);
    EXPECT_EQ(program.qrnFolder, ProgramFolder());
    EXPECT_EQ(program.recentFiles[4], "");
    EXPECT_EQ(program.favourites[4].name, "<click to add Favourite 5>");
    EXPECT_TRUE(program.favourites[0].IsEmpty());
    EXPECT_EQ(ReadMainPlace({0, 0, 8748, 6456}), (Bounds{1000, 1000, 8748, 6456}));
}

TEST_F(AppSettingsTest, EverythingComesBackUnderItsKey) {
    Program program;
    program.gameFolder = "C:\\Game";
    program.qrnFolder = "C:\\Profiles";
    for (size_t i = 0; i < 5; ++i) {
        const std::string number = std::to_string(i);
        program.recentFiles[i] = "recent" + number;
        program.favourites[i] = {"name" + number, "path" + number};
    }
    WriteMainSettings(program, {-15, 2000, 1, 1});
    const char* const stored[][3] = {{"Settings", "MainLeft", "-15"},
                                     {"Settings", "MainTop", "2000"},
                                     {"File Locations", "SubSpace", "C:\\Game"},
                                     {"File Locations", "QRN Files", "C:\\Profiles"},
                                     {"MRUList", "MRU0", "recent0"},
                                     {"MRUList", "MRU4", "recent4"},
                                     {"Favourites", "Fav1Name", "name0"},
                                     {"Favourites", "Fav5Path", "path4"}};
    for (const auto& [section, key, value] : stored) {
        const auto found = GetValue(std::string("Software\\QUIRN\\") + section, key);
        EXPECT_EQ(found, (StoredValue{1, value + std::string(1, '\0')})) << key;
    }
    Program read;
    ReadFileLocations(read);
    ReadLists(read);
    EXPECT_EQ(read.gameFolder, program.gameFolder);
    EXPECT_EQ(read.qrnFolder, program.qrnFolder);
    EXPECT_EQ(read.recentFiles, program.recentFiles);
    EXPECT_EQ(read.favourites[2].path, "path2");
    EXPECT_EQ(ReadMainPlace({}), (Bounds{-15, 2000, 0, 0}));

    PutValue("Software\\QUIRN\\Settings", "MainTop", 1, std::string("99999999999\0", 12));
    EXPECT_EQ(ReadMainPlace({}).top, 1000);
}

}  // namespace
}  // namespace quirn
