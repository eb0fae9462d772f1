#include "profile/sectionreader.h"

#include <algorithm>

#include "platform/inifile.h"
#include "platform/initext.h"

namespace quirn {

SectionReader::SectionReader(const std::string& file, const std::string& section) : file_(file), section_(section) {
    size_t size = 0x10000;
    while ((entries_ = ReadIniSection(file, section, size)).size() == size - 2) size *= 8;

    std::string_view rest = entries_;
    // Windows documents this limit, without a word on what happens to a longer section. Its last entry may be cut.
    constexpr size_t kDocumentedLimit = 32767;
    if (rest.size() > kDocumentedLimit - 3) rest = rest.substr(0, rest.find_last_of('\0', rest.size() - 2) + 1);
    while (!rest.empty()) {
        const std::string_view entry = rest.substr(0, rest.find('\0'));
        rest.remove_prefix(std::min(entry.size() + 1, rest.size()));
        if (const size_t equals = entry.find('='); equals != std::string_view::npos)
            values_.emplace(TrimIni(entry.substr(0, equals)), TrimIni(entry.substr(equals + 1)));
    }
}

std::string SectionReader::Read(const std::string& key, const std::string& defaultValue, size_t size) const {
    const auto found = values_.find(key);
    if (found == values_.end()) return ReadIniValue(file_, section_, key, defaultValue, size);
    return std::string(WithoutQuotes(found->second).substr(0, size - 1));
}

}  // namespace quirn
