#pragma once

#include <array>
#include <string>
#include <vector>

#include "profile/settingtable.h"

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
inline constexpr int kPlayerName = setting::IndexOf(setting::Find(setting::Group::Dialog, "PlayerName"));
inline constexpr int kPlayerPassword = setting::IndexOf(setting::Find(setting::Group::Dialog, "PlayerPassword"));
inline constexpr int kServerName = setting::IndexOf(setting::Find(setting::Group::Dialog, "ServerName"));
inline constexpr int kServerPort = setting::IndexOf(setting::Find(setting::Group::Dialog, "ServerPort"));
inline constexpr int kServerArena = setting::IndexOf(setting::Find(setting::Group::Dialog, "ServerArena"));
inline constexpr int kProxyIP = setting::IndexOf(setting::Find(setting::Group::Dialog, "ProxyIP"));
inline constexpr int kPlayerShipType = setting::IndexOf(setting::Find(setting::Group::Dialog, "PlayerShipType"));
inline constexpr int kChatName = setting::IndexOf(setting::Find(setting::Group::Messages, "ChatName"));
inline constexpr int kResolutionX = setting::IndexOf(setting::Find(setting::Group::Options, "ResolutionX"));
inline constexpr int kResolutionY = setting::IndexOf(setting::Find(setting::Group::Options, "ResolutionY"));
inline constexpr int kSkipSplash = setting::IndexOf(setting::Find(setting::Group::Advanced, "SkipSplash"));
inline constexpr int kGammaPercent = setting::IndexOf(setting::Find(setting::Group::Advanced, "GammaPercent"));
inline constexpr int kMacroCount = 16;  // ShiftF1..ShiftF8, RShiftF1..RShiftF8, in Messages from index 1

// The settings catalogue and the current profile in one record.
struct Profile {
    Section Dialog, Messages, Options, Advanced, HiddenOptions;
    std::array<std::string, 2> WaveFiles{kNotSet, kNotSet};  // for F11 and F12: full paths or kNotSet
    std::vector<std::string> IgnoreList;                     // player names; Ignore1 of a QRN file is element 0
    bool ignoreFileUnread = false;  // the game's file could not be read: an empty list does not mean an empty file

    static constexpr size_t kSections = setting::kGroupNames.size();

    // All of them in catalogue order.
    std::array<Section*, kSections> Sections() { return {&Dialog, &Messages, &Options, &Advanced, &HiddenOptions}; }
    std::array<const Section*, kSections> Sections() const {
        return {&Dialog, &Messages, &Options, &Advanced, &HiddenOptions};
    }

    // Of a row of the table.
    std::string& Value(const SettingRow& row) {
        return Sections()[static_cast<size_t>(row.group)]->Value(setting::IndexOf(row));
    }
    const std::string& Value(const SettingRow& row) const {
        return Sections()[static_cast<size_t>(row.group)]->Value(setting::IndexOf(row));
    }
};

// Fills the names and types of all five sections and leaves the values empty.
void InitCatalogue(Profile& profile);

// What New clears: macros, chat name, player, proxy and wave files. All other settings and the ignore list stay, so a
// new profile starts from the game's current settings.
void ResetProfile(Profile& profile);

}  // namespace quirn
