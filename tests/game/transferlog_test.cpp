#include "game/transferlog.h"

#include <random>

#include "game/transfer.h"
#include "platform/files.h"
#include "platform/folders.h"
#include "tests/testing/profiles.h"

namespace quirn {
namespace {

using namespace test;
using namespace std::string_literals;

constexpr char kKey[] = "Software\\Virgin\\SubSpace\\";

// A game with some of everything, and no key for the hidden options.
class TransferLogTest : public WorldTest {
protected:
    TransferLogTest() {
        MakeFolder(game_);
        for (const char* section : {"Dialog", "Messages", "Options", "Advanced"}) MakeKey(kKey + std::string(section));
        PutValue(kKey + "Dialog"s, "PlayerName", 1, "C:\\\"Caf\xE9\"\0"s);
        PutValue(kKey + "Dialog"s, "ProxyIP", 3, "\0\1\xFF"s);
        PutValue(kKey + "Options"s, "ResolutionX", 4, "\1\2\3\4"s);
        PutFile(game_ + "\\ignore.txt", "# mine\r\nMole\n");
        PutFile(game_ + "\\record1.wav", "pong");
        PutFile(Scratch() + "\\new.wav", "ping");
        profile_.WaveFiles = {Scratch() + "\\new.wav", kNotSet};
    }

    GameState State() const { return ReadGameState(game_).Take(); }
    TransferResult Transfer(const Profile& profile) {
        return TransferToGame(profile, game_, log_, {"C:\\nova.qrn", TransferWay::Tray});
    }
    void GameSets(const std::string& name, const std::string& text) {
        PutValue(kKey + "Messages"s, name, 1, text + '\0');
    }

    const std::string game_ = Scratch() + "\\game";
    TransferLog log_{Scratch() + "\\data"};
    Profile profile_ = SampleProfile();
};

TEST_F(TransferLogTest, WhatWasBeforeIsPutBackByteForByte) {
    const GameState found = State();
    EXPECT_TRUE(Transfer(profile_).kept);
    const auto entry = log_.Last();
    ASSERT_TRUE(entry);
    EXPECT_TRUE(entry->finished);
    EXPECT_EQ(entry->note.profile, "C:\\nova.qrn");
    EXPECT_EQ(entry->note.way, TransferWay::Tray);
    EXPECT_EQ(entry->settings, 118u);  // 122 but three without a key and one of another type
    EXPECT_EQ(entry->files, (std::vector{"ignore.txt"s, "record0.wav"s}));
    EXPECT_EQ(log_.WholeBefore(*entry).Value(), found);  // of the first all is kept, record1.wav too

    Transfer(profile_);  // changes nothing
    EXPECT_EQ(log_.Entries().size(), 1u);

    const GameState first = State();
    GameSets("ShiftF1", "by the game");
    GameSets("ShiftF2", "too");
    EXPECT_EQ(FindGameChanges(log_, game_).now.SettingCount(), 2u);
    Profile other = profile_;
    other.Messages.Value(2) = "too";
    other.Messages.Value(3) = "other";
    Transfer(other);
    EXPECT_EQ(log_.Last()->settings, 2u);
    EXPECT_EQ(log_.Last()->overwrote, 1u);  // the other one it would have written itself
    EXPECT_TRUE(FindGameChanges(log_, game_).now.IsEmpty());

    // What the game changes afterwards stays when the transfer is undone.
    GameSets("ShiftF3", "later");
    const Undo undo = PlanUndo(log_, *log_.Last()).Take();
    EXPECT_EQ(undo.back.SettingCount(), 1u);
    EXPECT_EQ(undo.changedSince.settings.at("Messages").at("ShiftF3")->bytes, "M3\0"s);
    EXPECT_TRUE(PutIntoGame(undo.back, game_, log_, {"", TransferWay::Undo}).errors.empty());
    EXPECT_EQ(GetValue(kKey + "Messages"s, "ShiftF1")->bytes, "by the game\0"s);
    EXPECT_EQ(GetValue(kKey + "Messages"s, "ShiftF3")->bytes, "later\0"s);
    EXPECT_EQ(log_.Entries().size(), 3u);

    // Any state of the history comes back whole, and that can be undone like all others.
    const std::vector<TransferEntry> entries = log_.Entries();
    EXPECT_TRUE(log_.WholeBefore(entries[1]).Value().files.empty());  // no transfer has changed any since
    EXPECT_TRUE(PutIntoGame(log_.WholeBefore(entries[2]).Value(), game_, log_, {"", TransferWay::PutBack}).kept);
    EXPECT_EQ(State(), found);
    PutIntoGame(PlanUndo(log_, *log_.Last()).Value().back, game_, log_, {"", TransferWay::Undo});
    EXPECT_EQ(State().files, first.files);
}

TEST_F(TransferLogTest, ATransferThatWasCutOffGoesBackWhole) {
    const GameState found = State();
    const GameState plan = Over(found, PlanTransfer(found.settings, profile_, game_));
    TransferEntry entry;
    entry.time = "2026-11-23 14.05.10";
    entry.gameFolder = game_;
    ASSERT_FALSE(log_.Begin(entry, found, plan).Failed());
    ASSERT_FALSE(log_.Begin(entry, found, plan).Failed());  // in the same second
    WriteGameState({{{"Messages", plan.settings.at("Messages")}}, {{"record0.wav", "pi"}}}, game_);
    EXPECT_FALSE(log_.Last()->finished);
    EXPECT_EQ(log_.Last()->time, entry.time + " 0002");
    const Undo undo = PlanUndo(log_, *log_.Last()).Take();
    EXPECT_TRUE(undo.changedSince.IsEmpty());
    PutIntoGame(undo.back, game_, log_, {"", TransferWay::Undo});
    EXPECT_EQ(State(), found);
}

TEST_F(TransferLogTest, AProfileDoesWhatWasPlanned) {
    std::mt19937 random(7);
    const std::vector<std::string> texts{"", "0", "1", " 12x", "-3", "99999999999", "two\r\nlines", "\xE9\"\\", "a=b"};
    for (int i = 0; i < 20; ++i) {
        for (Section* section : profile_.Sections())
            for (int at = 1; at <= section->Count(); ++at) section->Value(at) = texts[random() % texts.size()];
        profile_.IgnoreList = {texts[random() % texts.size()], "Mole"};
        const GameState now = State();
        const GameState plan = PlanTransfer(now.settings, profile_, game_);
        TransferToGame(profile_, game_, log_, {});
        ASSERT_EQ(State(), Over(now, plan));
        ASSERT_TRUE(FindGameChanges(log_, game_).now.IsEmpty());
    }
}

TEST_F(TransferLogTest, IsSweptAndDoesNotStopATransfer) {
    for (int i = 0; i < 40; ++i) {
        profile_.Messages.Value(1) = std::to_string(i);
        Transfer(profile_);
        log_.Sweep();
    }
    std::vector<TransferEntry> entries = log_.Entries();
    EXPECT_EQ(entries.size(), TransferLog::kKept + 1);
    EXPECT_GT(entries.back().settings, 1u);  // the first
    EXPECT_FALSE(log_.ForgetAll());
    EXPECT_TRUE(log_.IsEmpty());

    PutFile(Scratch() + "\\file", "");
    profile_.Messages.Value(1) = "last";
    const TransferResult result = TransferToGame(profile_, game_, TransferLog(Scratch() + "\\file"), {});
    EXPECT_FALSE(result.kept);
    EXPECT_TRUE(result.errors.empty());
    EXPECT_EQ(GetValue(kKey + "Messages"s, "ShiftF1")->bytes, "last\0"s);
}

}  // namespace
}  // namespace quirn
