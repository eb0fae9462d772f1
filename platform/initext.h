#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

// The text of an INI file, by the rules that inifile.h tells of, as Windows has them: a change is made in place and
// every other line, blank ones too, stays byte for byte. Lines before the first section belong to the one without a
// name.
namespace quirn {

struct IniEntry {
    std::string key;
    std::string value;
};

// The value of the first entry with this key, quotes and all.
std::optional<std::string> FindIniValue(std::string_view text, std::string_view section, std::string_view key);

// "key=value" and a NUL for each entry, without comments; nothing when there is no such section.
std::optional<std::string> FindIniSection(std::string_view text, std::string_view section);

// The text with these keys of one section set in the order given: in place, or appended to the section, the section
// to the text. It goes over the text once, however many keys there are.
std::string WithIniKeys(std::string_view text, std::string_view section, const std::vector<IniEntry>& entries);

// The text with all of a section replaced.
std::string WithIniSection(std::string_view text, std::string_view section, const std::vector<IniEntry>& entries);

// A value as readers get it: one pair of quotes around it is dropped.
std::string_view WithoutQuotes(std::string_view value);

// Without what counts as a space at the ends of a line, a name or a value.
std::string_view TrimIni(std::string_view text);

}  // namespace quirn
