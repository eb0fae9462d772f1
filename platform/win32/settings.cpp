#include "platform/settings.h"

#include <windows.h>

#include "platform/version.h"
#include "platform/win32/handle.h"

namespace quirn {

namespace {

std::string SectionPath(const std::string& section) {
    return std::string("Software\\") + kTitle + "\\" + section;
}

}  // namespace

std::string GetSetting(const std::string& section, const std::string& key, const std::string& defaultValue) {
    HKEY opened = nullptr;
    if (RegOpenKeyExA(HKEY_CURRENT_USER, SectionPath(section).c_str(), 0, KEY_QUERY_VALUE, &opened) != ERROR_SUCCESS)
        return defaultValue;
    const win32::RegistryHandle folder(opened);
    DWORD type = 0;
    DWORD size = 0;
    if (RegQueryValueExA(folder.Get(), key.c_str(), nullptr, &type, nullptr, &size) != ERROR_SUCCESS || type != REG_SZ)
        return defaultValue;
    std::string text(size, '\0');
    if (RegQueryValueExA(folder.Get(), key.c_str(), nullptr, &type, reinterpret_cast<BYTE*>(text.data()), &size) !=
            ERROR_SUCCESS ||
        type != REG_SZ)
        return defaultValue;
    return text.substr(0, text.find('\0'));
}

void SaveSetting(const std::string& section, const std::string& key, const std::string& value) {
    HKEY opened = nullptr;
    if (RegCreateKeyExA(HKEY_CURRENT_USER, SectionPath(section).c_str(), 0, nullptr, 0, KEY_SET_VALUE, nullptr, &opened,
                        nullptr) != ERROR_SUCCESS)
        return;
    const win32::RegistryHandle folder(opened);
    const std::string text = value.c_str();
    RegSetValueExA(folder.Get(), key.c_str(), 0, REG_SZ, reinterpret_cast<const BYTE*>(text.c_str()),
                   static_cast<DWORD>(text.size() + 1));
}

}  // namespace quirn
