#pragma once

#include <array>
#include <string>
#include <string_view>

// The advanced display switches, and the config code: their states as a short text that players pass to each other.
// Each switch has a cell, a row A..K and a column 1..5; a row is one 5-bit number (column 1 its lowest bit) and one
// character of the code: "GZZZ-ZZZZ-ZZZ0". The last character is always "0".
namespace quirn {

struct AdvancedSwitch {
    const char* cell;  // "xx": not part of the code
    const char* caption;
    const char* name;  // of its setting in Advanced

    constexpr bool HasCell() const { return cell[0] != 'x'; }
    std::string Tag() const { return std::string(cell) + ":" + name; }
};

// In the order of the check boxes, index 0 to 54.
// clang-format off
inline constexpr std::array<AdvancedSwitch, 55> kAdvancedSwitches{{
    {"A3", "Fonts",                "SystemFont"},
    {"A2", "Tiles",                "SystemTiles"},
    {"A1", "Bullets",              "SystemBullets"},
    {"B3", "Bombs",                "SystemBombs"},
    {"B4", "Trails",               "SystemTrails"},
    {"B5", "Shrapnel",             "SystemShrapnel"},
    {"B2", "Weapon Icons",         "SystemIcons"},
    {"B1", "Ship Exhaust",         "SystemExhaust"},
    {"C5", "Ships",                "SystemShips"},
    {"C4", "Bullet Explosions",    "SystemExplode0"},
    {"C3", "Ship Explosions",      "SystemExplode1"},
    {"C2", "Bomb Explosions",      "SystemExplode2"},
    {"K2", "EMP Explosion",        "SystemBurst"},
    {"C1", "Radar Trimming",       "SystemRadarEdge"},
    {"D5", "Mines",                "SystemMines"},
    {"D4", "PowerBall Goals",      "SystemGoal"},
    {"D3", "Rocket Exhaust",       "SystemRocket"},
    {"D2", "EMP Sparks",           "SystemSparks"},
    {"D1", "Turrets",              "SystemTurret"},
    {"E5", "Repel",                "SystemRepel"},
    {"E4", "Warp",                 "SystemWarp"},
    {"E3", "Bomb Flash",           "SystemBombFlash"},
    {"E2", "Energy Bar",           "SystemHealthBar"},
    {"E1", "Prizes",               "SystemPrizes"},
    {"F5", "Flags",                "SystemFlags"},
    {"F4", "PowerBall",            "SystemSoccerBall"},
    {"F3", "Walls",                "SystemWalls"},
    {"F2", "Damage",               "SystemDamage"},
    {"F1", "Shield Expire",        "SystemShields"},
    {"G4", "Super Expire",         "SystemSuper"},
    {"G3", "Drop Flag Expire",     "SystemDropFlag"},
    {"G1", "Crown Expire",         "SystemKingExpire"},
    {"G2", "Crown",                "SystemKing"},
    {"G5", "#1 Insignia",          "SystemSSShield"},
    {"H5", "Portal",               "SystemWarpPoint"},
    {"I5", "Level Objects",        "SystemBigTiles"},
    {"I4", "Backgrounds",          "SystemBackgrounds"},
    {"I3", "Ship Junk",            "SystemJunk"},
    {"I2", "Ship Rolls",           "SystemRolls"},
    {"I1", "Advertisements",       "SystemAdvertisements"},
    {"J5", "Popup Messages",       "SystemPopups"},
    {"J4", "Status Guage",         "SystemStatus"},  // spelled so on purpose
    {"J3", "Weapons (text)",       "SystemWeapons"},
    {"J2", "Radar",                "SystemRadar"},
    {"J1", "Messages",             "SystemMessages"},
    {"K5", "Full Map",             "SystemMap"},
    {"K4", "Banners",              "SystemBanners"},
    {"K3", "Stat Box",             "SystemStatBox"},
    {"H4", "Energy Font",          "SystemEnergyFont"},
    {"H3", "LED Font",             "SystemLEDFont"},
    {"H2", "Status Backdrop",      "SystemStatusDisplay"},
    {"H1", "Ticked Name",          "SystemSpectate"},
    {"xx", "Skip Splash Screen",   "SkipSplash"},
    {"K1", "Avoid Page Flipping",  "AvoidPageFlipping"},
    {"A4", "Triple/System Buffer", "TripleBuffer"},
}};
// clang-format on

// The states of the switches by the index of their box: 0 off, 1 on.
using AdvancedStates = std::array<int, kAdvancedSwitches.size()>;

std::string EncodeConfigCode(const AdvancedStates& states);

// Sets the states from a code, in any case. Any text is a code: what is missing or not of the alphabet (an unfilled
// place, say) counts as "0". The switch without a cell keeps its state.
void DecodeConfigCode(std::string_view Code, AdvancedStates& states);

// The code to show once a text has been accepted: its last character has no effect and becomes "0".
std::string AcceptedConfigCode(std::string_view text);

// The 8 binary digits of a value 0..255, the highest first; "ERROR" above that.
std::string ToBinary8(int Value);

}  // namespace quirn
