#include "platform/inifile.h"

#include <windows.h>

#include <algorithm>

namespace quirn {

std::string ReadIniValue(const std::string& file, const std::string& section, const std::string& key,
                         const std::string& defaultValue, size_t size) {
    if (size == 0) return {};
    std::string buffer(size, '\0');
    const DWORD length = GetPrivateProfileStringA(section.c_str(), key.c_str(), defaultValue.c_str(), buffer.data(),
                                                  static_cast<DWORD>(size), file.c_str());
    return buffer.substr(0, std::min<size_t>(length, size - 1));
}

std::string ReadIniSection(const std::string& file, const std::string& section, size_t size) {
    // Some systems crash on a size of 0 and none has room for an entry in less than 3 bytes.
    if (size < 3) return {};
    std::string buffer(size, '\0');
    const DWORD length =
        GetPrivateProfileSectionA(section.c_str(), buffer.data(), static_cast<DWORD>(size), file.c_str());
    return buffer.substr(0, std::min<size_t>(length, size - 2));
}

bool WriteIniValue(const std::string& file, const std::string& section, const std::string& key,
                   const std::string& value) {
    return WritePrivateProfileStringA(section.c_str(), key.c_str(), value.c_str(), file.c_str()) != FALSE;
}

bool WriteIniSection(const std::string& file, const std::string& section, const std::string& entries) {
    const std::string list = entries + '\0';  // with c_str's own, two NULs end it even when the caller gave none
    return WritePrivateProfileSectionA(section.c_str(), list.c_str(), file.c_str()) != FALSE;
}

}  // namespace quirn
