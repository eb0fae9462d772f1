#include "platform/registry.h"

#include <windows.h>

#include "platform/win32/handle.h"

namespace quirn {

namespace {

constexpr REGSAM kAccess = 63;  // query, set, create subkey, enumerate, notify, create link

}  // namespace

RegistryKey::RegistryKey(const std::string& path) {
    HKEY key = nullptr;
    if (RegOpenKeyExA(HKEY_CURRENT_USER, path.c_str(), 0, kAccess, &key) == ERROR_SUCCESS) handle_ = key;
}

RegistryKey::~RegistryKey() {
    if (IsOpen()) RegCloseKey(static_cast<HKEY>(handle_));
}

long RegistryKey::Query(const std::string& name, RegistryType* type, void* data, uint32_t* size) const {
    DWORD typeFound = 0;
    DWORD bytes = *size;
    const long status = RegQueryValueExA(static_cast<HKEY>(handle_), name.c_str(), nullptr, &typeFound,
                                         static_cast<BYTE*>(data), &bytes);
    *type = static_cast<RegistryType>(typeFound);
    *size = bytes;
    return status;
}

long RegistryKey::Set(const std::string& name, RegistryType type, const void* data, uint32_t size) const {
    return RegSetValueExA(static_cast<HKEY>(handle_), name.c_str(), 0, static_cast<DWORD>(type),
                          static_cast<const BYTE*>(data), size);
}

long RegistryKey::Remove(const std::string& name) const {
    return RegDeleteValueA(static_cast<HKEY>(handle_), name.c_str());
}

std::string ReadMachineText(const std::string& path, const std::string& name) {
    HKEY opened = nullptr;
    if (RegOpenKeyExA(HKEY_LOCAL_MACHINE, path.c_str(), 0, KEY_QUERY_VALUE, &opened) != ERROR_SUCCESS) return {};
    const win32::RegistryHandle key(opened);
    char text[MAX_PATH * 2] = {};
    DWORD size = sizeof(text) - 1;
    DWORD type = 0;
    const long status = RegQueryValueExA(key.Get(), name.c_str(), nullptr, &type, reinterpret_cast<BYTE*>(text), &size);
    if (status != ERROR_SUCCESS || (type != REG_SZ && type != REG_EXPAND_SZ)) return {};
    if (type == REG_SZ) return text;
    char expanded[MAX_PATH * 2] = {};
    const DWORD length = ExpandEnvironmentStringsA(text, expanded, sizeof(expanded));
    return length > 0 && length <= sizeof(expanded) ? expanded : std::string();
}

}  // namespace quirn
