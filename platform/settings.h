#pragma once

#include <string>

// The program's own settings: texts by section and key, per user. On Windows they are text values under
// HKEY_CURRENT_USER\Software\<the program's title>\<section>. Names are case-blind.
namespace quirn {

// The sections that windows share.
inline constexpr char kSettings[] = "Settings";
inline constexpr char kRecentList[] = "MRUList";

// The stored text, or the default when it is missing, unreadable or not a text.
std::string GetSetting(const std::string& section, const std::string& key, const std::string& defaultValue);

// The same for a whole number; the default also when the text is none that fits.
int GetNumberSetting(const std::string& section, const std::string& key, int defaultValue);

// Stores it, making the section when it is missing. A store that cannot be written keeps what it had.
void SaveSetting(const std::string& section, const std::string& key, const std::string& value);

}  // namespace quirn
