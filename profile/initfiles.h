#pragma once

#include <string>

namespace quirn {

inline constexpr size_t kValueBuffer = 255;  // bytes that a value is read into, its NUL included

// Reads and writes one section of one INI file at a time, through the private-profile functions and without a cache.
// No operation reports an error: a missing file reads as empty, writing makes it. Who must know what the disk holds
// reads it back.
class clsIniTFiles {
public:
    // Full or relative path. A name shorter than 6 characters (an empty one too) is replaced for good, at the first
    // access, by "<program folder>\QUIRN.ini".
    std::string InitFileName;
    std::string SectionName;

    // Always "True", on purpose: callers never test it.
    std::string WriteKey(const std::string& key, const std::string& value);

    // The value, cut to 254 bytes; the default when the key is absent.
    std::string ReadKey(const std::string& key, const std::string& defaultValue);

    // Replaces the section by "key=value" entries, a NUL after each and one more at the end. False when refused.
    bool WriteEntireSection(const std::string& text);

    // The section as such entries, cut to 4094 bytes; empty when the file has no such section.
    std::string ReadEntireSection();

private:
    void ApplyDefaultFile();
};

}  // namespace quirn
