#include "platform/registry.h"

namespace quirn {

long RegistryKey::Read(const std::string& name, RegistryValue& value) const {
    constexpr uint32_t kShort = 512;
    auto size = kShort;
    std::string bytes(kShort, '\0');
    long status = Query(name, &value.type, bytes.data(), &size);
    while (status == kRegistryMoreData) {
        bytes.resize(size);
        status = Query(name, &value.type, bytes.data(), &size);
    }
    if (status == kRegistrySuccess) value.bytes = bytes.substr(0, size);
    return status;
}

long RegistryKey::Write(const std::string& name, const RegistryValue& value) const {
    // Setting a text counts a NUL in that it finds right behind it; this letter keeps it as it is.
    const std::string guarded = value.bytes + "x";
    return Set(name, value.type, guarded.data(), static_cast<uint32_t>(value.bytes.size()));
}

}  // namespace quirn
