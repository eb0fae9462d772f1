#include <initializer_list>

#include "profile/profile.h"

namespace quirn {

namespace {

constexpr char kText[] = "1";    // REG_SZ
constexpr char kNumber[] = "4";  // REG_DWORD

Section MakeSection(const char* name, const char* type, std::initializer_list<const char*> names) {
    Section section;
    section.name = name;
    section.names.emplace_back();
    section.names.insert(section.names.end(), names.begin(), names.end());
    section.types.assign(section.names.size(), type);
    section.values.resize(section.names.size());
    return section;
}

}  // namespace

// clang-format off
void InitCatalogue(Profile& profile) {
    profile.Dialog = MakeSection("Dialog", kText,
                                 {"PlayerName", "PlayerPassword", "ServerName", "ServerPort", "ServerArena", "ProxyIP",
                                  "PlayerShipType"});
    profile.Dialog.types.back() = kNumber;  // PlayerShipType, the one number among them

    profile.Messages = MakeSection("Messages", kText, {});
    for (int i = 1; i <= kMacroCount; ++i)
        profile.Messages.names.push_back(i <= 8 ? "ShiftF" + std::to_string(i) : "RShiftF" + std::to_string(i - 8));
    profile.Messages.names.emplace_back("ChatName");
    profile.Messages.types.assign(profile.Messages.names.size(), kText);
    profile.Messages.values.resize(profile.Messages.names.size());

    profile.Options = MakeSection(
        "Options", kNumber,
        {"PlayerReceiveWaveMessages", "ShowStars",      "OpaqueMessages",     "GammaCorrect",  "BlockObscene",
         "ShadedBoxes",               "Emulator",       "StripMessages",      "ResolutionX",   "ResolutionY",
         "Joystick",                  "TickerOn",       "MessageHistorySize", "TargetBounty",  "SoundState",
         "RadarState",                "FontState",      "EnergyBarState",     "StatusState",   "WeaponsState",
         "ShowBackground",            "ShowShipExplosions", "Alarm",          "Clock",         "MultiFireOn",
         "IgnoreMacros",              "ShipRolls",      "MessageEntryBox",    "SkipMainMenu",  "ShowLatency",
         "VisibleThrust",             "BombTrails",     "BulletTrails",       "ShrapnelTrails", "Translucent",
         "3dSound",                   "MusicVolume",    "MessageNameLen",     "Distinguish"});

    profile.Advanced = MakeSection(
        "Advanced", kNumber,
        {"SkipSplash",       "GammaPercent",        "TripleBuffer",     "AvoidPageFlipping", "SystemFont",
         "SystemTiles",      "SystemBullets",       "SystemShrapnel",   "SystemTrails",      "SystemBombs",
         "SystemIcons",      "SystemExhaust",       "SystemShips",      "SystemExplode0",    "SystemExplode1",
         "SystemExplode2",   "SystemRadarEdge",     "SystemMines",      "SystemGoal",        "SystemRocket",
         "SystemSparks",     "SystemTurret",        "SystemBurst",      "SystemRepel",       "SystemWarp",
         "SystemBombFlash",  "SystemHealthBar",     "SystemPrizes",     "SystemFlags",       "SystemSoccerBall",
         "SystemWalls",      "SystemDamage",        "SystemShields",    "SystemSSShield",    "SystemSuper",
         "SystemDropFlag",   "SystemKing",          "SystemKingExpire", "SystemWarpPoint",   "SystemEnergyFont",
         "SystemLEDFont",    "SystemStatusDisplay", "SystemSpectate",   "SystemBigTiles",    "SystemBackgrounds",
         "SystemJunk",       "SystemRolls",         "SystemAdvertisements", "SystemPopups",  "SystemStatus",
         "SystemWeapons",    "SystemRadar",         "SystemMessages",   "SystemMap",         "SystemBanners",
         "SystemStatBox"});

    profile.HiddenOptions = MakeSection("HiddenOptions", kNumber, {"Force60", "ShowFrameRate", "FlickSystemMemory"});
}
// clang-format on

void ResetProfile(Profile& profile) {
    for (std::string& text : profile.Messages.values) text.clear();
    for (const int index : {kPlayerName, kPlayerPassword, kProxyIP}) profile.Dialog.Value(index).clear();
    profile.WaveFiles.fill(kNotSet);
}

}  // namespace quirn
