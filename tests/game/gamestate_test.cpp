#include "game/gamestate.h"

#include "game/regfile.h"
#include "game/transfer.h"
#include "tests/testing/profiles.h"

namespace quirn {
namespace {

using namespace test;
using namespace std::string_literals;

constexpr char kDialog[] = "Software\\Virgin\\SubSpace\\Dialog";

// A game that keeps some of everything and has no key for the hidden options.
class GameStateTest : public WorldTest {
protected:
    GameStateTest() {
        MakeFolder(game_);
        for (const char* section : {"Dialog", "Messages", "Options", "Advanced"})
            MakeKey("Software\\Virgin\\SubSpace\\"s + section);
        PutValue(kDialog, "PlayerName", 1, "C:\\\"Caf\xE9\"\0"s);
        PutValue(kDialog, "PlayerPassword", 1, "two\r\nlines\0"s);
        PutValue(kDialog, "ServerName", 1, "\0"s);
        PutValue(kDialog, "ServerPort", 1, "no NUL"s);
        PutValue(kDialog, "ServerArena", 1, "a\0b\0"s);
        PutValue(kDialog, "ProxyIP", 3, "\0\1\xFF"s);
        PutValue(kDialog, "PlayerShipType", 4, "\x44\x33\x22\xF1"s);
        PutValue(kDialog, "Foreign", 1, "x\0"s);
        PutValue("Software\\Virgin\\SubSpace\\Options", "ResolutionX", 4, "12345678");
        PutValue("Software\\Virgin\\SubSpace\\Messages", "ShiftF1", 3, "");
        PutFile(game_ + "\\ignore.txt", "Mole\n");
        PutFile(game_ + "\\record1.wav", "pong");
    }

    GameState State() { return ReadGameState(game_).Take(); }

    const std::string game_ = Scratch() + "\\game";
};

TEST_F(GameStateTest, WhatFailsIsToldAndTheRestDone) {
    GameState wanted = State();
    wanted.settings["HiddenOptions"]["Force60"] = RegistryValue{RegistryType::Number, "\1\0\0\0"s};
    wanted.settings["Options"]["ResolutionX"] = RegistryValue{RegistryType::Number, "\2\0\0\0"s};
    wanted.files["ignore.txt"] = std::nullopt;
    wanted.files["record1.wav"] = "new";
    SetReadOnly(game_ + "\\ignore.txt");
    EXPECT_EQ(WriteGameState(wanted, game_).size(), 2u);
    EXPECT_EQ(GetValue("Software\\Virgin\\SubSpace\\Options", "ResolutionX")->bytes, "\2\0\0\0"s);
    EXPECT_EQ(FileBytes(game_ + "\\record1.wav"), "new");
    const HeldFile held(game_ + "\\record1.wav");
    EXPECT_EQ(ReadGameFiles(game_), (GameFiles{{"ignore.txt", "Mole\n"}, {"record0.wav", std::nullopt}}));
}

TEST_F(GameStateTest, SurvivesTheRegistryEditorsText) {
    const GameState state = State();
    const std::string text = RegFileText(state.settings);
    EXPECT_EQ(ReadRegFile(text), state.settings);
    for (const char* part : {"REGEDIT4\r\n\r\n[HKEY_CURRENT_USER\\Software\\Virgin\\SubSpace\\Advanced]\r\n",
                             "\"PlayerName\"=\"C:\\\\\\\"Caf\xE9\\\"\"\r\n", "\"ServerName\"=\"\"\r\n",
                             "\"PlayerShipType\"=dword:f1223344\r\n", "\"ProxyIP\"=hex(3):00,01,ff\r\n",
                             "\"PlayerPassword\"=hex(1):74,77,6f,0d,", "\"GammaPercent\"=-\r\n"})
        EXPECT_NE(text.find(part), std::string::npos) << part << " in\n" << text;

    const std::string head = "REGEDIT4\r\n[HKEY_CURRENT_USER\\Software\\Virgin\\SubSpace\\Dialog]\r\n";
    EXPECT_TRUE(ReadRegFile(head));
    for (const char* line : {"x", "\"a\"", "\"a\"=", "\"a\"=1", "\"a\"=\"b", "\"a\"=\"b\"c", "\"a\"=dword:12g",
                             "[Other]", "\"a\"=hex(1)", "\"a\"=hex(1):1,2x", "\"a\"=hex(1):012", "\"a\\"})
        EXPECT_FALSE(ReadRegFile(head + line)) << line;
    EXPECT_FALSE(ReadRegFile(""));
}

}  // namespace
}  // namespace quirn
