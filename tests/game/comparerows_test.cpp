#include "game/comparerows.h"

#include <algorithm>
#include <random>

#include "game/transfer.h"
#include "tests/testing/profiles.h"

namespace quirn {
namespace {

using namespace test;

std::vector<CompareRow> Differing(const CompareSide& a, const CompareSide& b) {
    std::vector<CompareRow> rows = Compare({a, b});
    std::erase_if(rows, [](const CompareRow& row) { return !row.Differs(); });
    return rows;
}

class CompareRowsTest : public WorldTest {
protected:
    CompareRowsTest() {
        MakeFolder(game_);
        for (const char* section : setting::kGroupNames) MakeKey(std::string("Software\\Virgin\\SubSpace\\") + section);
        PutFile(Scratch() + "\\ping.wav", "ping");
    }

    Profile RandomProfile() {
        Profile profile = EmptyProfile();
        for (const SettingRow& row : setting::kRows) profile.Value(row) = std::to_string(random_() % 3);
        for (const char* name : {"Mole", "trill", "Caf\xE9 Bot", "Orla"})
            if (random_() % 2 == 0) profile.IgnoreList.emplace_back(name);
        if (random_() % 2 == 0) profile.WaveFiles[random_() % 2] = Scratch() + "\\ping.wav";
        return profile;
    }

    void Write(const std::vector<CompareRow>& rows, const Profile& profile) {
        const RowsPlan plan = PlanRows(rows, ReadGameSettings().Value(), profile, game_);
        EXPECT_TRUE(plan.errors.empty());
        EXPECT_TRUE(PutIntoGame(plan.state, game_, TransferLog({}), {}).errors.empty());
    }

    const std::string game_ = Scratch() + "\\game";
    std::mt19937 random_{7};
};

TEST_F(CompareRowsTest, WhatIsCopiedEitherWayNoLongerDiffersAndTheRestStays) {
    for (int round = 0; round < 40; ++round) {
        PutFile(game_ + "\\ignore.txt", "# friends\r\nMole\nTRILL\r\r\n orla ");
        Profile profile = RandomProfile();
        std::vector<CompareRow> ticked = Differing(SideOf("", profile), GameSide(game_));
        std::shuffle(ticked.begin(), ticked.end(), random_);
        std::vector<CompareRow> others(ticked.begin() + static_cast<int>(ticked.size() / 2), ticked.end());
        ticked.resize(ticked.size() / 2);
        Write(ticked, profile);
        std::vector<CompareRow> left = Differing(SideOf("", profile), GameSide(game_));
        EXPECT_EQ(left.size(), others.size());
        for (const CompareRow& row : left)
            EXPECT_TRUE(std::any_of(others.begin(), others.end(), [&](auto& other) { return other.IsSameRowAs(row); }))
                << row.caption;
        EXPECT_TRUE(FileBytes(game_ + "\\ignore.txt")->starts_with("# friends\r\n"));
        TakeRows(left, GameSide(game_).profile, profile);
        EXPECT_TRUE(Differing(SideOf("", profile), GameSide(game_)).empty());
    }
}

TEST_F(CompareRowsTest, WhatCannotBeWrittenIsToldAndTheRestPlanned) {
    Profile profile = EmptyProfile();
    profile.WaveFiles[0] = Scratch() + "\\gone.wav";
    profile.IgnoreList = {"Orla"};
    PutFile(game_ + "\\record0.wav", "pong");
    const RowsPlan plan = PlanRows(Differing(SideOf("", profile), GameSide(game_)), {}, profile, game_);
    EXPECT_EQ(plan.errors.size(), 1u);
    EXPECT_EQ(plan.state.files, (GameFiles{{"ignore.txt", "Orla\r\n"}}));
}

}  // namespace
}  // namespace quirn
