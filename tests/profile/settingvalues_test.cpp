#include "profile/settingvalues.h"

#include "tests/testing/profiles.h"

namespace quirn {
namespace {

TEST(SettingValuesTest, ValuesReadAsThePagesShowThem) {
    using enum setting::Group;
    const struct {
        const SettingRow& row;
        const char *value, *caption, *shown;
    } rows[] = {{setting::Find(Options, "MusicVolume"), "80", "Music Volume", "80"},
                {setting::Find(Options, "Clock"), "5", "Show Clock", "On"},
                {setting::Find(HiddenOptions, "Force60"), "", "Force 60 (forces 60Hz refresh rate)", "Off"},
                {setting::Find(Options, "EnergyBarState"), "1", "Energy Bar", "Subtle"},
                {setting::Find(Options, "EnergyBarState"), "3", "Energy Bar", "3"},
                {setting::Find(Dialog, "PlayerShipType"), "3", "Ship Type", "Leviathan"},
                {setting::Find(Dialog, "PlayerShipType"), "-1", "Ship Type", "-1"},
                {setting::Find(Dialog, "PlayerPassword"), "moth", "Pilot Password", "(set)"},
                {setting::Find(Dialog, "PlayerPassword"), "", "Pilot Password", "(not set)"},
                {setting::Find(Messages, "RShiftF2"), "hi", "R-Shift F2", "hi"}};
    for (const auto& row : rows) {
        EXPECT_EQ(DisplayCaption(row.row), row.caption);
        EXPECT_EQ(DisplayValue(row.row, row.value), row.shown);
    }
    Profile profile = test::EmptyProfile();
    profile.Options.Value(kResolutionX) = "800";
    profile.Options.Value(kResolutionY) = "600";
    EXPECT_EQ(DisplayValue(setting::Find(Options, "ResolutionY"), profile), "800 x 600");
}

}  // namespace
}  // namespace quirn
