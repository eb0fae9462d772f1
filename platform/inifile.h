#pragma once

#include <cstddef>
#include <string>

// Private-profile (INI) files by the rules of GetPrivateProfileString and its kin: section and key names
// are case-blind, spaces around names and values do not count, one pair of quotes around a value is dropped, the
// first of two equal names wins, a line starting with ";" is a comment. A missing file reads as an empty one.
// On Windows these are the functions themselves.
namespace quirn {

// The value, or the default when there is none; cut to size - 1 bytes. size is the buffer's, in bytes, at least 1.
std::string ReadIniValue(const std::string& file, const std::string& section, const std::string& key,
                         const std::string& defaultValue, size_t size);

// "key=value" for each entry, a NUL after each, quotes kept, comments left out; empty when there is no such section.
// Cut to size - 2 bytes.
std::string ReadIniSection(const std::string& file, const std::string& section, size_t size);

// Replaces the key's value in place or appends the key to its section, the section to the file; makes the file
// when it is missing. Other lines keep their content. False when the system refused; true is no promise that the
// disk has it (the functions report success on a full disk).
bool WriteIniValue(const std::string& file, const std::string& section, const std::string& key,
                   const std::string& value);

// Replaces all of a section by entries as ReadIniSection gives them (a NUL after each, one more at the end).
bool WriteIniSection(const std::string& file, const std::string& section, const std::string& entries);

}  // namespace quirn
