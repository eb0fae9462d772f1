#pragma once

#include <array>
#include <string>
#include <string_view>

#include "profile/settingtable.h"

// The advanced display switches, and the config code: their states as a short text that players pass to each other.
// Each switch has a cell, a row A..K and a column 1..5; a row is one 5-bit number (column 1 its lowest bit) and one
// character of the code: "GZZZ-ZZZZ-ZZZ0". The last character is always "0".
namespace quirn {

// The tag of a switch's check box: its cell and the name of its setting, as "A3:SystemFont".
std::string AdvancedTag(const SettingRow& row);

// The states of the switches by the index of their box: 0 off, 1 on.
using AdvancedStates = std::array<int, setting::kAdvancedSwitches.size()>;

std::string EncodeConfigCode(const AdvancedStates& states);

// Sets the states from a code, in any case. Any text is a code: what is missing or not of the alphabet (an unfilled
// place, say) counts as "0". The switch without a cell keeps its state.
void DecodeConfigCode(std::string_view Code, AdvancedStates& states);

// How many switches a code would change, of those that have a cell.
inline constexpr size_t kSwitchesInCode = 54;
size_t CountChanges(std::string_view code, const AdvancedStates& states);

// The code to show once a text has been accepted: its last character has no effect and becomes "0".
std::string AcceptedConfigCode(std::string_view text);

// The 8 binary digits of a value 0..255, the highest first; "ERROR" above that.
std::string ToBinary8(int Value);

}  // namespace quirn
