#include "profile/profile.h"

#include <set>

#include "profile/splitpath.h"
#include "tests/testing/profiles.h"

namespace quirn {
namespace {

TEST(Catalogue, HasEverySettingInItsPlace) {
    const Profile profile = test::EmptyProfile();
    const struct {
        const Section& section;
        int count;
        int index;
        const char* name;
        bool number;
    } rows[] = {{profile.Dialog, 7, 1, "PlayerName", false},
                {profile.Dialog, 7, 6, "ProxyIP", false},
                {profile.Dialog, 7, 7, "PlayerShipType", true},
                {profile.Messages, 17, 8, "ShiftF8", false},
                {profile.Messages, 17, 9, "RShiftF1", false},
                {profile.Messages, 17, 17, "ChatName", false},
                {profile.Options, 39, 9, "ResolutionX", true},
                {profile.Options, 39, 20, "WeaponsState", true},
                {profile.Options, 39, 39, "Distinguish", true},
                {profile.Advanced, 56, kSkipSplash, "SkipSplash", true},
                {profile.Advanced, 56, kGammaPercent, "GammaPercent", true},
                {profile.Advanced, 56, 38, "SystemKingExpire", true},
                {profile.Advanced, 56, 56, "SystemStatBox", true},
                {profile.HiddenOptions, 3, 1, "Force60", true},
                {profile.HiddenOptions, 3, 3, "FlickSystemMemory", true}};
    for (const auto& row : rows) {
        EXPECT_EQ(row.section.Count(), row.count) << row.section.name;
        EXPECT_EQ(row.section.Name(row.index), row.name);
        EXPECT_EQ(row.section.IsNumber(row.index), row.number) << row.name;
    }
    for (const Section* section : profile.Sections()) {
        const std::set<std::string> names(section->names.begin(), section->names.end());
        EXPECT_EQ(names.size(), section->names.size()) << section->name;
        EXPECT_EQ(section->values.size(), section->names.size()) << section->name;
        EXPECT_EQ(section->types.size(), section->names.size()) << section->name;
    }
}

TEST(SplitPathTest, CutsTheNameAtItsFirstPoint) {
    const struct {
        const char *path, *drive, *folder, *name, *extension;
    } rows[] = {{"C:\\games\\my.best.qrn", "C:", "\\games", "my", "best.qrn"},
                {"  D:a.qrn ", "D:", "", "a", "qrn"},
                {"\\\\host\\share.d\\plain", "", "\\\\host\\share.d", "plain", ""},
                {"C:\\", "C:", "", "", ""},
                {".qrn", "", "", "", "qrn"},
                {"<untitled.qrn>", "", "", "<untitled", "qrn>"},
                {"a:b:c", "a:", "", "b:c", ""},
                {"  ", "", "", "", ""}};
    for (const auto& row : rows) {
        const PathParts parts = SplitPath(row.path);
        EXPECT_EQ(parts.drive, row.drive) << row.path;
        EXPECT_EQ(parts.folder, row.folder) << row.path;
        EXPECT_EQ(parts.name, row.name) << row.path;
        EXPECT_EQ(parts.extension, row.extension) << row.path;
    }
}

}  // namespace
}  // namespace quirn
