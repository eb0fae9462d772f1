#pragma once

#include <cstdint>
#include <string>

#include "platform/text.h"

// The current user's registry through the narrow part of it that this program needs. Names are case-blind.
namespace quirn {

enum class RegistryType : uint32_t { None = 0, Text = 1, Number = 4 };  // REG_SZ and REG_DWORD; others pass through

inline constexpr long kRegistrySuccess = 0;
inline constexpr long kRegistryNotFound = 2;    // ERROR_FILE_NOT_FOUND
inline constexpr long kRegistryDeleted = 1018;  // ERROR_KEY_DELETED: the key, while it was open
inline constexpr long kRegistryMoreData = 234;  // ERROR_MORE_DATA: the buffer was too small, nothing was copied

// A value as it is stored, whatever its type.
struct RegistryValue {
    RegistryType type = RegistryType::None;
    std::string bytes;
    bool operator==(const RegistryValue&) const = default;
};

// An open key; closed at the end of its life. Statuses are the registry functions' own, 0 for success.
class RegistryKey {
public:
    // Opens an existing key below the current user's root with query and set rights (mask 63). It is never created.
    explicit RegistryKey(const std::string& path);
    ~RegistryKey();
    RegistryKey(const RegistryKey&) = delete;
    RegistryKey& operator=(const RegistryKey&) = delete;

    bool IsOpen() const { return handle_ != nullptr; }

    // With data null only type and size (bytes) are asked for; otherwise *size is the buffer's size before and the
    // value's after. A text's size counts its NUL when one is stored.
    long Query(const std::string& name, RegistryType* type, void* data, uint32_t* size) const;
    long Set(const std::string& name, RegistryType type, const void* data, uint32_t size) const;

    // The same for whole values, in one call each while they are short: on Wine each is one to another process.
    long Read(const std::string& name, RegistryValue& value) const;
    long Write(const std::string& name, const RegistryValue& value) const;

    long Remove(const std::string& name) const;

private:
    void* handle_ = nullptr;
};

// A text of the whole machine's settings (below HKEY_LOCAL_MACHINE); empty when there is none.
std::string ReadMachineText(const std::string& path, const std::string& name);

}  // namespace quirn
