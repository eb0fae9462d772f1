#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "profile/profile.h"

// How the controls of the main window show the settings of a profile.
namespace quirn {

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

// The parts of an address that is pasted: four numbers of up to three digits, with points between. Spaces around them
// and what follows the last one, such as a port, are passed over. Nothing for any other text.
std::optional<ProxyParts> PastedProxyAddress(std::string_view text);

// The parts with points between; the current address when the parts are still exactly its own, because joining
// would change one that has fewer than four.
std::string JoinProxyAddress(const ProxyParts& parts, const std::string& current);

}  // namespace quirn
