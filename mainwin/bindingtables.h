#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "profile/profile.h"

// How the controls of the main window and the settings of a profile belong together. The advanced switches have their
// own table, with the config code.
namespace quirn {

// chkSettings by index, and the setting of Options that is each one's tag. 17 stands on the page "Advanced", 26 on
// "Macros R-Shift", all others on "Options".
struct SettingBox {
    const char* caption;
    const char* tag;
};

// clang-format off
inline constexpr std::array<SettingBox, 27> kSettingBoxes{{
    {"Show Clock",            "Clock"},
    {"Show Backgrounds",      "ShowBackground"},
    {"Show Stars",            "ShowStars"},
    {"Gamma Correction",      "GammaCorrect"},
    {"Shaded Boxes",          "ShadedBoxes"},
    {"Opaque Messages",       "OpaqueMessages"},
    {"Wave Messages",         "PlayerReceiveWaveMessages"},
    {"Block Obscenity",       "BlockObscene"},
    {"Message Ticker Help",   "TickerOn"},
    {"Message Alarm",         "Alarm"},
    {"De-dupe Messages",      "StripMessages"},
    {"Message Entry Box",     "MessageEntryBox"},
    {"Detailed Explosions",   "ShowShipExplosions"},
    {"Rolling Ship",          "ShipRolls"},
    {"Joystick",              "Joystick"},
    {"Translucent Effects",   "Translucent"},
    {"Show Ping Times",       "ShowLatency"},
    {"Software Emulation",    "Emulator"},
    {"Skip Main Menu",        "SkipMainMenu"},
    {"Visible Thrust",        "VisibleThrust"},
    {"Multi-fire Start On",   "MultiFireOn"},
    {"Bomb Trails",           "BombTrails"},
    {"Ignore Public Macros",  "IgnoreMacros"},
    {"Bullet Trails",         "BulletTrails"},
    {"3d Sound Effects",      "3dSound"},
    {"Shrapnel Trails",       "ShrapnelTrails"},
    {"Distinguish L/RSHIFT",  "Distinguish"},
}};
inline constexpr size_t kEmulatorBox = 17;
inline constexpr size_t kDistinguishBox = 26;
static_assert(std::string_view(kSettingBoxes[kEmulatorBox].tag) == "Emulator");
static_assert(std::string_view(kSettingBoxes[kDistinguishBox].tag) == "Distinguish");

// The option groups in the order in which they are shown and collected; the index of the selected button is the
// setting's value.
struct OptionGroupRow {
    const char* setting;  // of Options
    const char* caption;  // of the frame
    std::array<const char*, 3> buttons;
};
inline constexpr std::array<OptionGroupRow, 6> kOptionGroups{{
    {"WeaponsState",   "Weapon Gauge", {"Standard",   "Subtle",      "Off"}},
    {"StatusState",    "Status Gauge", {"Standard",   "Subtle",      "Off"}},
    {"EnergyBarState", "Energy Bar",   {"Standard",   "Subtle",      "Off"}},
    {"RadarState",     "Radar",        {"Small",      "Large",       "Off"}},
    {"FontState",      "Font",         {"Short",      "Legible",     "Large"}},
    {"SoundState",     "Sound",        {"All Sounds", "Engines Off", "Off"}},
}};
// clang-format on

// The ship types; the index is the value of PlayerShipType.
inline constexpr std::array<const char*, 9> kShipTypes{"Warbird", "Javelin",   "Spider", "Leviathan",     "Terrier",
                                                       "Weasel",  "Lancaster", "Shark",  "Spectator Mode"};

inline constexpr std::array<const char*, 7> kResolutions{"640 x 480",   "800 x 600",   "1024 x 768", "1152 x 864",
                                                         "1280 x 1024", "1600 x 1200", "1800 x 1440"};

// What to look up of a setting by its name, letter by letter.
enum class SettingMode {
    CheckState = 1,  // 0 when the number in its value is 0, else 1
    Index = 2,       // counted from 1
};

// 0 when the section has no setting of that name.
int OptionsSetting(const Profile& profile, std::string_view name, SettingMode mode);
int AdvancedSetting(const Profile& profile, std::string_view name, SettingMode mode);

// The list index or option button that a value stands for. A list or group that has no such item selects nothing.
int IndexOf(const std::string& value);

// The value of the selected item; with nothing selected the profile keeps what it had, since no control can show it.
std::string SelectedValue(int selected, const std::string& current);

// The index of the first resolution whose text contains the width; 0 when none does. The height does not count, on
// purpose: the item of the list decides both.
int ResolutionIndex(std::string_view width);

// The two numbers of a resolution's text. Without an "x" in the text they stay.
void SplitResolution(std::string_view text, std::string& width, std::string& height);

// The four parts of a proxy address, what follows the third point all in the last.
using ProxyParts = std::array<std::string, 4>;
ProxyParts SplitProxyAddress(std::string_view address);

// The parts of an address that is pasted: four numbers of up to three digits, with points between. Blanks around them
// and what follows the last one, such as a port, are passed over. Nothing for any other text.
std::optional<ProxyParts> PastedProxyAddress(std::string_view text);

// The parts with points between; the current address when the parts are still exactly its own, because joining
// would change one that has fewer than four.
std::string JoinProxyAddress(const ProxyParts& parts, const std::string& current);

}  // namespace quirn
