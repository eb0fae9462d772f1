#pragma once

#include <string>

#include "profile/profile.h"

// Settings in a player's words.
namespace quirn {

// The caption without what leads on to its control: "Music Volume".
std::string DisplayCaption(const SettingRow& row);

// A value as its page shows it: On and Off, Leviathan, Subtle. Of a password only whether it is set. What no control
// can show stays as it is.
std::string DisplayValue(const SettingRow& row, const std::string& value);

// The same from a profile, where width and height make one value: 800 x 600.
std::string DisplayValue(const SettingRow& row, const Profile& profile);

}  // namespace quirn
