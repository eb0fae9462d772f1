#pragma once

#include <array>
#include <string>
#include <vector>

namespace quirn {

// What the game folder or a wave file holds when it is not configured. A game folder is tested for it letter by letter,
// a wave file by its first character.
inline constexpr char kNotSet[] = "<not set>";

// One group of game settings: three parallel arrays, indexed from 1 to Count(); slot 0 is unused. The order is fixed:
// the registry, QRN files and the main window all go by it.
struct Section {
    std::string name;                 // registry key and QRN section
    std::vector<std::string> values;  // always text; a number is its decimal digits
    std::vector<std::string> names;   // registry value name and QRN key
    std::vector<std::string> types;   // registry type: "1" text, "4" 32-bit number

    int Count() const { return static_cast<int>(names.size()) - 1; }
    bool IsNumber(int index) const { return types[static_cast<size_t>(index)] == "4"; }
    std::string& Value(int index) { return values[static_cast<size_t>(index)]; }
    const std::string& Value(int index) const { return values[static_cast<size_t>(index)]; }
    const std::string& Name(int index) const { return names[static_cast<size_t>(index)]; }
};

// Indexes of the settings that the program treats one by one.
// clang-format off
inline constexpr int kPlayerName = 1, kPlayerPassword = 2, kServerName = 3, kServerPort = 4, kServerArena = 5,
                     kProxyIP = 6, kPlayerShipType = 7;                                           // Dialog
inline constexpr int kMacroCount = 16;  // ShiftF1..ShiftF8, RShiftF1..RShiftF8 from index 1         Messages
inline constexpr int kChatName = 17;                                                              // Messages
inline constexpr int kResolutionX = 9, kResolutionY = 10, kMessageHistorySize = 13, kTargetBounty = 14,
                     kMusicVolume = 37, kMessageNameLen = 38;                                     // Options
inline constexpr int kSkipSplash = 1, kGammaPercent = 2;                                          // Advanced
inline constexpr int kForce60 = 1, kShowFrameRate = 2, kFlickSystemMemory = 3;                    // HiddenOptions
// clang-format on

// The settings catalogue and the current profile in one record.
struct Profile {
    Section Dialog, Messages, Options, Advanced, HiddenOptions;
    std::array<std::string, 2> WaveFiles{kNotSet, kNotSet};  // for F11 and F12: full paths or kNotSet
    std::vector<std::string> IgnoreList;                     // player names; Ignore1 of a QRN file is element 0
    bool ignoreFileUnread = false;  // the game's file could not be read: an empty list does not mean an empty file

    // All five in catalogue order.
    std::array<Section*, 5> Sections() { return {&Dialog, &Messages, &Options, &Advanced, &HiddenOptions}; }
    std::array<const Section*, 5> Sections() const { return {&Dialog, &Messages, &Options, &Advanced, &HiddenOptions}; }
};

// Fills the names and types of all five sections and leaves the values empty.
void InitCatalogue(Profile& profile);

// What New clears: macros, chat name, player, proxy and wave files. All other settings and the ignore list stay, so a
// new profile starts from the game's current settings.
void ResetProfile(Profile& profile);

}  // namespace quirn
