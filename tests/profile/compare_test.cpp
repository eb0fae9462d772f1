#include "profile/compare.h"

#include <algorithm>

#include "tests/testing/profiles.h"

namespace quirn {
namespace {

using Cells = std::vector<std::string>;

std::vector<CompareRow> Differing(std::vector<CompareRow> rows) {
    std::erase_if(rows, [](const CompareRow& row) { return !row.Differs(); });
    return rows;
}

TEST(CompareTest, OnlyWhatAPlayerWouldCallADifferenceIsOne) {
    Profile mine = test::EmptyProfile(), game = mine;
    mine.Options.Value(kResolutionX) = "800";
    mine.Options.Value(kResolutionY) = game.Options.Value(kResolutionY) = "600";
    game.Options.Value(kResolutionX) = "1024";
    mine.Value(setting::Find(setting::Group::Options, "Clock")) = "0";
    mine.Value(setting::Find(setting::Group::Options, "MusicVolume")) = "080";
    game.Value(setting::Find(setting::Group::Options, "MusicVolume")) = "80";
    mine.Dialog.Value(kPlayerPassword) = "moth";
    game.Dialog.Value(kPlayerPassword) = "lamp";
    mine.IgnoreList = {"Trill", "", "mole"};
    game.IgnoreList = {"Mole"};
    mine.WaveFiles = {"C:\\a\\hello.wav", kNotSet};
    game.WaveFiles = {"C:\\game\\hello.wav", "C:\\game\\record1.wav"};
    const std::vector<CompareRow> rows =
        Differing(Compare({{"Profile", mine, {"1", {}}}, {"Game now", game, {"2", "3"}}, {"Saved", {}, {}, false}}));
    ASSERT_EQ(rows.size(), 4u);
    EXPECT_EQ(rows[0].cells, (Cells{"(set)", "(another)", ""}));
    EXPECT_EQ(rows[1].caption, "Resolution");
    EXPECT_EQ(rows[1].cells, (Cells{"800 x 600", "1024 x 600", ""}));
    EXPECT_EQ(rows[2].caption, "Ignore list: Trill");
    EXPECT_EQ(rows[2].cells, (Cells{"yes", "-", ""}));
    EXPECT_EQ(rows[3].cells, (Cells{"hello.wav", "(another)", ""}));
    EXPECT_TRUE(rows[2].Holds("TRILL"));
    EXPECT_FALSE(rows[0].Holds("moth")) << "a password is never shown";

    TakeRows(rows, mine, game);
    EXPECT_TRUE(Differing(Compare({{"", mine, {}}, {"", game, {}}})).empty());
}

}  // namespace
}  // namespace quirn
