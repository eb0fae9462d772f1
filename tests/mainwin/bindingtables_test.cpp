#include "mainwin/bindingtables.h"

#include "tests/testing/profiles.h"

namespace quirn {
namespace {

using namespace test;

TEST(BindingTest, LooksSettingsUpByName) {
    Profile profile = EmptyProfile();
    profile.Options.Value(2) = "5";
    profile.Advanced.Value(1) = "-1";
    EXPECT_EQ(OptionsSetting(profile, "ShowStars", SettingMode::CheckState), 1);
    EXPECT_EQ(OptionsSetting(profile, "ShowStars", SettingMode::Index), 2);
    EXPECT_EQ(OptionsSetting(profile, "showstars", SettingMode::Index), 0);
    EXPECT_EQ(OptionsSetting(profile, "SkipSplash", SettingMode::Index), 0);
    EXPECT_EQ(AdvancedSetting(profile, "SkipSplash", SettingMode::CheckState), 1);
    for (const char* off : {"", "0", "0.0", "on", " -0x"}) {
        profile.Advanced.Value(1) = off;
        EXPECT_EQ(AdvancedSetting(profile, "SkipSplash", SettingMode::CheckState), 0) << off;
    }
}

TEST(BindingTest, ResolutionsFollowTheWidth) {
    const struct {
        const char* width;
        int index;
    } rows[] = {{"640", 0}, {"800", 1}, {"1024", 2}, {"1800", 6}, {"1920", 0}, {"", 0}, {"768", 2}, {"12", 4}};
    for (const auto& row : rows) EXPECT_EQ(ResolutionIndex(row.width), row.index) << row.width;
    std::string width = "1";
    std::string height = "2";
    SplitResolution("", width, height);
    EXPECT_EQ(width + height, "12");
    SplitResolution(setting::kResolutions[3], width, height);
    EXPECT_EQ(width, "1152");
    EXPECT_EQ(height, "864");
}

TEST(BindingTest, ProxyAddressesComeBack) {
    const struct {
        const char* address;
        ProxyParts parts;
    } rows[] = {{"10.0.0.1", {"10", "0", "0", "1"}},
                {"proxy.example", {"proxy", "example", "", ""}},
                {"1.2.3.4.5", {"1", "2", "3", "4.5"}},
                {".", {"", "", "", ""}},
                {"...", {"", "", "", ""}}};
    for (const auto& row : rows) {
        EXPECT_EQ(SplitProxyAddress(row.address), row.parts) << row.address;
        EXPECT_EQ(JoinProxyAddress(row.parts, row.address), row.address);
    }
    EXPECT_EQ(JoinProxyAddress({"10", "0", "0", "2"}, "10.0.0.1"), "10.0.0.2");
    EXPECT_EQ(JoinProxyAddress({"", "", "", ""}, ""), "...");
    EXPECT_EQ(JoinProxyAddress({"", "", "", ""}, "a.b"), "...");
}

TEST(BindingTest, AValueThatNoItemStandsForIsKept) {
    EXPECT_EQ(IndexOf("8"), 8);
    EXPECT_EQ(IndexOf(""), 0);
    EXPECT_EQ(IndexOf("-3"), -3);
    EXPECT_EQ(IndexOf("99999999999"), -1);
    EXPECT_EQ(SelectedValue(-1, "17"), "17");
    EXPECT_EQ(SelectedValue(0, "17"), "0");
}

}  // namespace
}  // namespace quirn
