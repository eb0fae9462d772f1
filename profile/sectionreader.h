#pragma once

#include <map>
#include <string>
#include <string_view>

#include "platform/text.h"

namespace quirn {

// The keys of one section of an INI file, fetched at once: each call of the private-profile functions goes through the
// whole file.
class SectionReader {
public:
    SectionReader(const std::string& file, const std::string& section);
    SectionReader(const SectionReader&) = delete;
    SectionReader& operator=(const SectionReader&) = delete;

    // What ReadIniValue gives.
    std::string Read(const std::string& key, const std::string& defaultValue, size_t size) const;

private:
    std::string file_;
    std::string section_;
    std::string entries_;
    std::map<std::string_view, std::string_view, LessNoCase> values_;
};

}  // namespace quirn
