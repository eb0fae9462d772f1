#include "game/settingsstore.h"

#include "game/transfer.h"
#include "tests/testing/profiles.h"

namespace quirn {
namespace {

using namespace test;
using namespace std::string_literals;

const std::string kRoot = "Software\\Virgin\\SubSpace\\";

class SettingsStoreTest : public WorldTest {
protected:
    SettingsStoreTest() {
        for (const Section* section : profile_.Sections()) MakeKey(kRoot + section->name);
        MakeFolder(game_);
    }

    static std::optional<StoredValue> Stored(const Section& section, int index) {
        return GetValue(kRoot + section.name, section.Name(index));
    }

    const std::string game_ = Scratch() + "\\game";
    Profile profile_ = SampleProfile();
};

TEST_F(SettingsStoreTest, ReadsTextsAndNumbersOnly) {
    const struct {
        int index;
        uint32_t type;
        std::string bytes;
        const char* shown;
    } rows[] = {{1, 1, "Ace\0"s, "Ace"},   {2, 1, "no end"s, "no end"},
                {3, 1, "\0"s, ""},         {4, 4, "\xFB\xFF\xFF\xFF"s, "-5"},
                {5, 3, "\1\2\3"s, ""},     {6, 1, "Caf\xE9 \x80\0"s, "Caf\xE9 \x80"},
                {7, 4, "\x08\0\0\0"s, "8"}};
    for (const auto& row : rows) PutValue(kRoot + "Dialog", profile_.Dialog.Name(row.index), row.type, row.bytes);
    ReadProfileFromGame(profile_, game_);
    for (const auto& row : rows) EXPECT_EQ(profile_.Dialog.Value(row.index), row.shown) << row.index;
    for (int i = 1; i <= profile_.Options.Count(); ++i) EXPECT_EQ(profile_.Options.Value(i), "");
    EXPECT_TRUE(profile_.IgnoreList.empty());
    EXPECT_EQ(profile_.WaveFiles[0], kNotSet);
}

TEST_F(SettingsStoreTest, EverySettingComesBack) {
    profile_.WaveFiles = {kNotSet, kNotSet};
    TransferToGame(profile_, game_, TransferLog(""), {});
    EXPECT_EQ(Stored(profile_.Dialog, 1), (StoredValue{1, "D1\0"s}));
    EXPECT_EQ(Stored(profile_.Options, 39), (StoredValue{4, "\x28\0\0\0"s}));
    Profile read = EmptyProfile();
    ReadProfileFromGame(read, game_);
    ExpectSame(read, profile_);
}

TEST_F(SettingsStoreTest, TextsBecomeNumbersByTheirStart) {
    const struct {
        const char* text;
        int32_t number;
    } rows[] = {{"", 0}, {"none", 0}, {" 12 apples", 12}, {"-7.9", -7}, {"2147483647", 2147483647}, {"1e3", 1000}};
    int index = 0;
    for (const auto& row : rows) profile_.Options.Value(++index) = row.text;
    profile_.WaveFiles = {kNotSet, kNotSet};
    TransferToGame(profile_, game_, TransferLog(""), {});
    index = 0;
    for (const auto& row : rows) {
        const std::string bytes(reinterpret_cast<const char*>(&row.number), sizeof(row.number));
        EXPECT_EQ(Stored(profile_.Options, ++index), (StoredValue{4, bytes})) << row.text;
    }
}

class NoGameTest : public WorldTest {};

TEST_F(NoGameTest, CreatesNoKeys) {
    Profile profile = SampleProfile();
    TransferToGame(profile, kNotSet, TransferLog(""), {});
    EXPECT_FALSE(KeyExists("Software\\Virgin"));
    ReadProfileFromGame(profile, kNotSet);
    ExpectSame(profile, EmptyProfile());
}

}  // namespace
}  // namespace quirn
