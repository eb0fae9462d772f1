#pragma once

#include <array>
#include <span>
#include <string_view>

// Every setting that the program handles, one row each: what it is called in the registry and in QRN files, what its
// page calls it, and how it is shown there. Who adds a setting adds its row; check boxes stand in their page's grid by
// their place, and the compiler stops when that is full.
namespace quirn::setting {

// Registry key and QRN section, in the order in which everything goes by them.
enum class Group { Dialog, Messages, Options, Advanced, HiddenOptions };
inline constexpr std::array<const char*, 5> kGroupNames{"Dialog", "Messages", "Options", "Advanced", "HiddenOptions"};

enum class Page { Identity, Options, Advanced, Hidden, MacrosShift, MacrosRShift };
constexpr const char* NameOf(Page page) {
    constexpr const char* kNames[] = {"Identity", "Options", "Advanced", "Hidden", "Macros Shift", "Macros R-Shift"};
    return kNames[static_cast<size_t>(page)];
}

// How a setting is shown. Those up to Proxy are texts in the registry, the others 32-bit numbers.
enum class Kind {
    Text,
    Password,
    Zone,         // through the list of zones
    Proxy,        // in four parts
    Number,       // with arrows, low to high
    CheckBox,     // 0 off, else on
    OptionGroup,  // the value is the index of a word
    List,         // the same
    Resolution,   // width and height in one list
};

using Words = std::span<const char* const>;

struct Row {
    Group group;
    const char* name;     // registry value name and QRN key
    const char* caption;  // as its page words it
    Page page;
    Kind kind;
    int place = 0;          // among the controls of its kind: the index of chkSettings, chkAdvanced and the like
    const char* cell = "";  // in the config code; "xx": not part of it
    int low = 0, high = 0;
    Words words = {};

    constexpr bool IsNumber() const { return kind > Kind::Proxy; }
};

// clang-format off
inline constexpr const char* kShipTypes[] = {"Warbird", "Javelin", "Spider", "Leviathan", "Terrier", "Weasel",
                                             "Lancaster", "Shark", "Spectator Mode"};
inline constexpr const char* kResolutions[] = {"640 x 480", "800 x 600", "1024 x 768", "1152 x 864", "1280 x 1024",
                                               "1600 x 1200", "1800 x 1440"};
inline constexpr const char* kGaugeWords[] = {"Standard",   "Subtle",      "Off"};
inline constexpr const char* kRadarWords[] = {"Small",      "Large",       "Off"};
inline constexpr const char* kFontWords[]  = {"Short",      "Legible",     "Large"};
inline constexpr const char* kSoundWords[] = {"All Sounds", "Engines Off", "Off"};

// Within a group in the order that the registry, QRN files and the program's indexes go by.
inline constexpr Row kRows[] = {
    {Group::Dialog, "PlayerName",     "Pilot Name :",        Page::Identity, Kind::Text},
    {Group::Dialog, "PlayerPassword", "Pilot Password :",    Page::Identity, Kind::Password},
    {Group::Dialog, "ServerName",     "Server Address",      Page::Identity, Kind::Zone},
    {Group::Dialog, "ServerPort",     "Port :",              Page::Identity, Kind::Zone},
    {Group::Dialog, "ServerArena",    "Zone to Start In :",  Page::Identity, Kind::Zone},
    {Group::Dialog, "ProxyIP",        "Use Proxy Address :", Page::Identity, Kind::Proxy},
    {Group::Dialog, "PlayerShipType", "Ship Type :",         Page::Identity, Kind::List, 0, "", 0, 0, kShipTypes},

    {Group::Messages, "ShiftF1",  "Shift F1 -",   Page::MacrosShift,  Kind::Text, 0},
    {Group::Messages, "ShiftF2",  "Shift F2 -",   Page::MacrosShift,  Kind::Text, 1},
    {Group::Messages, "ShiftF3",  "Shift F3 -",   Page::MacrosShift,  Kind::Text, 2},
    {Group::Messages, "ShiftF4",  "Shift F4 -",   Page::MacrosShift,  Kind::Text, 3},
    {Group::Messages, "ShiftF5",  "Shift F5 -",   Page::MacrosShift,  Kind::Text, 4},
    {Group::Messages, "ShiftF6",  "Shift F6 -",   Page::MacrosShift,  Kind::Text, 5},
    {Group::Messages, "ShiftF7",  "Shift F7 -",   Page::MacrosShift,  Kind::Text, 6},
    {Group::Messages, "ShiftF8",  "Shift F8 -",   Page::MacrosShift,  Kind::Text, 7},
    {Group::Messages, "RShiftF1", "R-Shift F1 -", Page::MacrosRShift, Kind::Text, 0},
    {Group::Messages, "RShiftF2", "R-Shift F2 -", Page::MacrosRShift, Kind::Text, 1},
    {Group::Messages, "RShiftF3", "R-Shift F3 -", Page::MacrosRShift, Kind::Text, 2},
    {Group::Messages, "RShiftF4", "R-Shift F4 -", Page::MacrosRShift, Kind::Text, 3},
    {Group::Messages, "RShiftF5", "R-Shift F5 -", Page::MacrosRShift, Kind::Text, 4},
    {Group::Messages, "RShiftF6", "R-Shift F6 -", Page::MacrosRShift, Kind::Text, 5},
    {Group::Messages, "RShiftF7", "R-Shift F7 -", Page::MacrosRShift, Kind::Text, 6},
    {Group::Messages, "RShiftF8", "R-Shift F8 -", Page::MacrosRShift, Kind::Text, 7},
    {Group::Messages, "ChatName", "Chat Name :",  Page::Identity,     Kind::Text},

    {Group::Options, "PlayerReceiveWaveMessages", "Wave Messages",         Page::Options,      Kind::CheckBox,    6},
    {Group::Options, "ShowStars",                 "Show Stars",            Page::Options,      Kind::CheckBox,    2},
    {Group::Options, "OpaqueMessages",            "Opaque Messages",       Page::Options,      Kind::CheckBox,    5},
    {Group::Options, "GammaCorrect",              "Gamma Correction",      Page::Options,      Kind::CheckBox,    3},
    {Group::Options, "BlockObscene",              "Block Obscenity",       Page::Options,      Kind::CheckBox,    7},
    {Group::Options, "ShadedBoxes",               "Shaded Boxes",          Page::Options,      Kind::CheckBox,    4},
    {Group::Options, "Emulator",                  "Software Emulation",    Page::Advanced,     Kind::CheckBox,    17},
    {Group::Options, "StripMessages",             "De-dupe Messages",      Page::Options,      Kind::CheckBox,    10},
    {Group::Options, "ResolutionX",               "Resolution :",          Page::Identity,     Kind::Resolution},
    {Group::Options, "ResolutionY",               "Resolution :",          Page::Identity,     Kind::Resolution},
    {Group::Options, "Joystick",                  "Joystick",              Page::Options,      Kind::CheckBox,    14},
    {Group::Options, "TickerOn",                  "Message Ticker Help",   Page::Options,      Kind::CheckBox,    8},
    {Group::Options, "MessageHistorySize",        "Message Lines :",       Page::Options,      Kind::Number,      2, "", 0, 99},
    {Group::Options, "TargetBounty",              "Target Bounty :",       Page::Options,      Kind::Number,      3, "", 0, 9999},
    {Group::Options, "SoundState",                "Sound",                 Page::Options,      Kind::OptionGroup, 5, "", 0, 0, kSoundWords},
    {Group::Options, "RadarState",                "Radar",                 Page::Options,      Kind::OptionGroup, 3, "", 0, 0, kRadarWords},
    {Group::Options, "FontState",                 "Font",                  Page::Options,      Kind::OptionGroup, 4, "", 0, 0, kFontWords},
    {Group::Options, "EnergyBarState",            "Energy Bar",            Page::Options,      Kind::OptionGroup, 2, "", 0, 0, kGaugeWords},
    {Group::Options, "StatusState",               "Status Gauge",          Page::Options,      Kind::OptionGroup, 1, "", 0, 0, kGaugeWords},
    {Group::Options, "WeaponsState",              "Weapon Gauge",          Page::Options,      Kind::OptionGroup, 0, "", 0, 0, kGaugeWords},
    {Group::Options, "ShowBackground",            "Show Backgrounds",      Page::Options,      Kind::CheckBox,    1},
    {Group::Options, "ShowShipExplosions",        "Detailed Explosions",   Page::Options,      Kind::CheckBox,    12},
    {Group::Options, "Alarm",                     "Message Alarm",         Page::Options,      Kind::CheckBox,    9},
    {Group::Options, "Clock",                     "Show Clock",            Page::Options,      Kind::CheckBox,    0},
    {Group::Options, "MultiFireOn",               "Multi-fire Start On",   Page::Options,      Kind::CheckBox,    20},
    {Group::Options, "IgnoreMacros",              "Ignore Public Macros",  Page::Options,      Kind::CheckBox,    22},
    {Group::Options, "ShipRolls",                 "Rolling Ship",          Page::Options,      Kind::CheckBox,    13},
    {Group::Options, "MessageEntryBox",           "Message Entry Box",     Page::Options,      Kind::CheckBox,    11},
    {Group::Options, "SkipMainMenu",              "Skip Main Menu",        Page::Options,      Kind::CheckBox,    18},
    {Group::Options, "ShowLatency",               "Show Ping Times",       Page::Options,      Kind::CheckBox,    16},
    {Group::Options, "VisibleThrust",             "Visible Thrust",        Page::Options,      Kind::CheckBox,    19},
    {Group::Options, "BombTrails",                "Bomb Trails",           Page::Options,      Kind::CheckBox,    21},
    {Group::Options, "BulletTrails",              "Bullet Trails",         Page::Options,      Kind::CheckBox,    23},
    {Group::Options, "ShrapnelTrails",            "Shrapnel Trails",       Page::Options,      Kind::CheckBox,    25},
    {Group::Options, "Translucent",               "Translucent Effects",   Page::Options,      Kind::CheckBox,    15},
    {Group::Options, "3dSound",                   "3d Sound Effects",      Page::Options,      Kind::CheckBox,    24},
    {Group::Options, "MusicVolume",               "Music Volume :",        Page::Options,      Kind::Number,      1, "", 0, 100},
    {Group::Options, "MessageNameLen",            "Message Name Length :", Page::Options,      Kind::Number,      0, "", 0, 24},
    {Group::Options, "Distinguish",               "Distinguish L/RSHIFT",  Page::MacrosRShift, Kind::CheckBox,    26},

    {Group::Advanced, "SkipSplash",           "Skip Splash Screen",            Page::Advanced, Kind::CheckBox, 52, "xx"},
    {Group::Advanced, "GammaPercent",         "Gamma Correction Percentage :", Page::Advanced, Kind::Number,   0,  "", 1, 400},
    {Group::Advanced, "TripleBuffer",         "Triple/System Buffer",          Page::Advanced, Kind::CheckBox, 54, "A4"},
    {Group::Advanced, "AvoidPageFlipping",    "Avoid Page Flipping",           Page::Advanced, Kind::CheckBox, 53, "K1"},
    {Group::Advanced, "SystemFont",           "Fonts",                         Page::Advanced, Kind::CheckBox, 0,  "A3"},
    {Group::Advanced, "SystemTiles",          "Tiles",                         Page::Advanced, Kind::CheckBox, 1,  "A2"},
    {Group::Advanced, "SystemBullets",        "Bullets",                       Page::Advanced, Kind::CheckBox, 2,  "A1"},
    {Group::Advanced, "SystemShrapnel",       "Shrapnel",                      Page::Advanced, Kind::CheckBox, 5,  "B5"},
    {Group::Advanced, "SystemTrails",         "Trails",                        Page::Advanced, Kind::CheckBox, 4,  "B4"},
    {Group::Advanced, "SystemBombs",          "Bombs",                         Page::Advanced, Kind::CheckBox, 3,  "B3"},
    {Group::Advanced, "SystemIcons",          "Weapon Icons",                  Page::Advanced, Kind::CheckBox, 6,  "B2"},
    {Group::Advanced, "SystemExhaust",        "Ship Exhaust",                  Page::Advanced, Kind::CheckBox, 7,  "B1"},
    {Group::Advanced, "SystemShips",          "Ships",                         Page::Advanced, Kind::CheckBox, 8,  "C5"},
    {Group::Advanced, "SystemExplode0",       "Bullet Explosions",             Page::Advanced, Kind::CheckBox, 9,  "C4"},
    {Group::Advanced, "SystemExplode1",       "Ship Explosions",               Page::Advanced, Kind::CheckBox, 10, "C3"},
    {Group::Advanced, "SystemExplode2",       "Bomb Explosions",               Page::Advanced, Kind::CheckBox, 11, "C2"},
    {Group::Advanced, "SystemRadarEdge",      "Radar Trimming",                Page::Advanced, Kind::CheckBox, 13, "C1"},
    {Group::Advanced, "SystemMines",          "Mines",                         Page::Advanced, Kind::CheckBox, 14, "D5"},
    {Group::Advanced, "SystemGoal",           "PowerBall Goals",               Page::Advanced, Kind::CheckBox, 15, "D4"},
    {Group::Advanced, "SystemRocket",         "Rocket Exhaust",                Page::Advanced, Kind::CheckBox, 16, "D3"},
    {Group::Advanced, "SystemSparks",         "EMP Sparks",                    Page::Advanced, Kind::CheckBox, 17, "D2"},
    {Group::Advanced, "SystemTurret",         "Turrets",                       Page::Advanced, Kind::CheckBox, 18, "D1"},
    {Group::Advanced, "SystemBurst",          "EMP Explosion",                 Page::Advanced, Kind::CheckBox, 12, "K2"},
    {Group::Advanced, "SystemRepel",          "Repel",                         Page::Advanced, Kind::CheckBox, 19, "E5"},
    {Group::Advanced, "SystemWarp",           "Warp",                          Page::Advanced, Kind::CheckBox, 20, "E4"},
    {Group::Advanced, "SystemBombFlash",      "Bomb Flash",                    Page::Advanced, Kind::CheckBox, 21, "E3"},
    {Group::Advanced, "SystemHealthBar",      "Energy Bar",                    Page::Advanced, Kind::CheckBox, 22, "E2"},
    {Group::Advanced, "SystemPrizes",         "Prizes",                        Page::Advanced, Kind::CheckBox, 23, "E1"},
    {Group::Advanced, "SystemFlags",          "Flags",                         Page::Advanced, Kind::CheckBox, 24, "F5"},
    {Group::Advanced, "SystemSoccerBall",     "PowerBall",                     Page::Advanced, Kind::CheckBox, 25, "F4"},
    {Group::Advanced, "SystemWalls",          "Walls",                         Page::Advanced, Kind::CheckBox, 26, "F3"},
    {Group::Advanced, "SystemDamage",         "Damage",                        Page::Advanced, Kind::CheckBox, 27, "F2"},
    {Group::Advanced, "SystemShields",        "Shield Expire",                 Page::Advanced, Kind::CheckBox, 28, "F1"},
    {Group::Advanced, "SystemSSShield",       "#1 Insignia",                   Page::Advanced, Kind::CheckBox, 33, "G5"},
    {Group::Advanced, "SystemSuper",          "Super Expire",                  Page::Advanced, Kind::CheckBox, 29, "G4"},
    {Group::Advanced, "SystemDropFlag",       "Drop Flag Expire",              Page::Advanced, Kind::CheckBox, 30, "G3"},
    {Group::Advanced, "SystemKing",           "Crown",                         Page::Advanced, Kind::CheckBox, 32, "G2"},
    {Group::Advanced, "SystemKingExpire",     "Crown Expire",                  Page::Advanced, Kind::CheckBox, 31, "G1"},
    {Group::Advanced, "SystemWarpPoint",      "Portal",                        Page::Advanced, Kind::CheckBox, 34, "H5"},
    {Group::Advanced, "SystemEnergyFont",     "Energy Font",                   Page::Advanced, Kind::CheckBox, 48, "H4"},
    {Group::Advanced, "SystemLEDFont",        "LED Font",                      Page::Advanced, Kind::CheckBox, 49, "H3"},
    {Group::Advanced, "SystemStatusDisplay",  "Status Backdrop",               Page::Advanced, Kind::CheckBox, 50, "H2"},
    {Group::Advanced, "SystemSpectate",       "Ticked Name",                   Page::Advanced, Kind::CheckBox, 51, "H1"},
    {Group::Advanced, "SystemBigTiles",       "Level Objects",                 Page::Advanced, Kind::CheckBox, 35, "I5"},
    {Group::Advanced, "SystemBackgrounds",    "Backgrounds",                   Page::Advanced, Kind::CheckBox, 36, "I4"},
    {Group::Advanced, "SystemJunk",           "Ship Junk",                     Page::Advanced, Kind::CheckBox, 37, "I3"},
    {Group::Advanced, "SystemRolls",          "Ship Rolls",                    Page::Advanced, Kind::CheckBox, 38, "I2"},
    {Group::Advanced, "SystemAdvertisements", "Advertisements",                Page::Advanced, Kind::CheckBox, 39, "I1"},
    {Group::Advanced, "SystemPopups",         "Popup Messages",                Page::Advanced, Kind::CheckBox, 40, "J5"},
    {Group::Advanced, "SystemStatus",         "Status Guage",                  Page::Advanced, Kind::CheckBox, 41, "J4"},  // spelled so on purpose
    {Group::Advanced, "SystemWeapons",        "Weapons (text)",                Page::Advanced, Kind::CheckBox, 42, "J3"},
    {Group::Advanced, "SystemRadar",          "Radar",                         Page::Advanced, Kind::CheckBox, 43, "J2"},
    {Group::Advanced, "SystemMessages",       "Messages",                      Page::Advanced, Kind::CheckBox, 44, "J1"},
    {Group::Advanced, "SystemMap",            "Full Map",                      Page::Advanced, Kind::CheckBox, 45, "K5"},
    {Group::Advanced, "SystemBanners",        "Banners",                       Page::Advanced, Kind::CheckBox, 46, "K4"},
    {Group::Advanced, "SystemStatBox",        "Stat Box",                      Page::Advanced, Kind::CheckBox, 47, "K3"},

    {Group::HiddenOptions, "Force60",           "Force 60 (forces 60Hz refresh rate)",                      Page::Hidden, Kind::CheckBox, 1},
    {Group::HiddenOptions, "ShowFrameRate",     "Show Frame Rate (displays framerate info on game screen)", Page::Hidden, Kind::CheckBox, 0},
    {Group::HiddenOptions, "FlickSystemMemory", "Flick System Memory (your guess is as good as mine)",      Page::Hidden, Kind::CheckBox, 2},
};
// clang-format on

// The row of a setting. A name that is in no row does not compile.
consteval const Row& Find(Group group, std::string_view name) {
    for (const Row& row : kRows)
        if (row.group == group && row.name == name) return row;
    throw "no such setting";
}

// The row at an index of a group, counted from 1.
constexpr const Row& RowAt(Group group, int index) {
    const Row* row = kRows;
    while (row->group != group) ++row;
    return row[index - 1];
}

// The index of a row in its group, counted from 1.
constexpr int IndexOf(const Row& row) {
    return static_cast<int>(&row - &RowAt(row.group, 1)) + 1;
}

constexpr size_t CountOf(Group group, Kind kind) {
    size_t count = 0;
    for (const Row& row : kRows)
        if (row.group == group && row.kind == kind) ++count;
    return count;
}

// The rows of a group that are shown in one way, by their places. A place without a row or with two does not compile.
template <Group group, Kind kind>
consteval auto RowsByPlace() {
    std::array<const Row*, CountOf(group, kind)> rows{};
    for (const Row& row : kRows) {
        if (row.group != group || row.kind != kind) continue;
        if (rows.at(static_cast<size_t>(row.place)) != nullptr) throw "two settings in one place";
        rows[static_cast<size_t>(row.place)] = &row;
    }
    return rows;
}

inline constexpr auto kSettingBoxes = RowsByPlace<Group::Options, Kind::CheckBox>();       // chkSettings
inline constexpr auto kAdvancedSwitches = RowsByPlace<Group::Advanced, Kind::CheckBox>();  // chkAdvanced
inline constexpr auto kHiddenBoxes = RowsByPlace<Group::HiddenOptions, Kind::CheckBox>();
inline constexpr auto kOptionGroups = RowsByPlace<Group::Options, Kind::OptionGroup>();
inline constexpr auto kNumbers = RowsByPlace<Group::Options, Kind::Number>();

}  // namespace quirn::setting

namespace quirn {

using SettingRow = setting::Row;

}  // namespace quirn
