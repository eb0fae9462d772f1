#include "game/transfer.h"

#include "tests/testing/profiles.h"

namespace quirn {
namespace {

using namespace test;
using namespace std::string_literals;

class TransferTest : public WorldTest {};

TEST_F(TransferTest, WhatFailsIsToldAndAllElseIsWritten) {
    const std::string key = "Software\\Virgin\\SubSpace\\";
    const std::string game = Scratch() + "\\game";
    const std::string wave = Scratch() + "\\ping.wav";
    Profile profile = SampleProfile();
    for (const Section* section : profile.Sections())
        if (section != &profile.Messages) MakeKey(key + section->name);
    MakeFolder(game);
    PutFile(game + "\\ignore.txt", "old");
    PutFile(wave, "ping");
    PutValue(key + "Dialog", "PlayerName", 3, "\1\2\3"s);
    PutValue(key + "Options", "ShowStars", 4, "\7\0\0\0"s);
    profile.Options.Value(2) = "2147483648";
    profile.Advanced.Value(5) = "-99999999999";
    profile.WaveFiles = {Scratch() + "\\gone.wav", wave};

    TransferResult result;
    {
        const HeldFile held(game + "\\ignore.txt");
        result = TransferToGame(profile, game, TransferLog(""), {});
    }
    std::vector<int> errors;
    for (const RuntimeError& error : result.errors) errors.push_back(error.number);
    EXPECT_EQ(errors, (std::vector{6, 70, 53}));  // one overflow, the held file, the missing wave
    ASSERT_EQ(result.refused.size(), 1u + static_cast<size_t>(profile.Messages.Count()));
    EXPECT_EQ(result.refused[0].name, "PlayerName");
    EXPECT_EQ(result.refused[0].status, kUnsupportedType);
    EXPECT_EQ(result.refused[1].section, "Messages");
    EXPECT_EQ(GetValue(key + "Options", "ShowStars"), (StoredValue{4, "\7\0\0\0"s}));
    EXPECT_FALSE(GetValue(key + "Advanced", profile.Advanced.Name(5)));
    EXPECT_TRUE(GetValue(key + "Dialog", "PlayerPassword"));
    EXPECT_TRUE(GetValue(key + "HiddenOptions", profile.HiddenOptions.Name(3)));
    EXPECT_EQ(FileBytes(game + "\\ignore.txt"), "old");
    EXPECT_EQ(FileBytes(game + "\\record1.wav"), "ping");

    EXPECT_EQ(TransferToGame(profile, kNotSet, TransferLog(""), {}).errors.size(),
              1u);  // nowhere to write files: not a word of them
}

}  // namespace
}  // namespace quirn
