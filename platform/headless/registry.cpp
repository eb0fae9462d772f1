#include "platform/registry.h"

#include <cstring>

#include "platform/headless/headless.h"

namespace quirn {

using headless::TheWorld;

namespace headless {

RegistryValues& MakeKey(const std::string& path) {
    for (size_t end = path.find('\\'); end != std::string::npos; end = path.find('\\', end + 1))
        TheWorld().registry[path.substr(0, end)];
    return TheWorld().registry[path];
}

}  // namespace headless

namespace {

// A handle is the key's path, so that it outlives a key that is deleted or a world that is reset.
headless::RegistryValues* ValuesOf(void* handle) {
    const auto key = TheWorld().registry.find(*static_cast<std::string*>(handle));
    return key == TheWorld().registry.end() ? nullptr : &key->second;
}

}  // namespace

RegistryKey::RegistryKey(const std::string& path) {
    if (TheWorld().registry.contains(path)) handle_ = new std::string(path);
}

RegistryKey::~RegistryKey() {
    delete static_cast<std::string*>(handle_);
}

long RegistryKey::Query(const std::string& name, RegistryType* type, void* data, uint32_t* size) const {
    const headless::RegistryValues* values = ValuesOf(handle_);
    if (values == nullptr) return kRegistryDeleted;
    const auto found = values->find(name);
    if (found == values->end()) return kRegistryNotFound;
    const auto& [itsType, bytes] = found->second;
    const uint32_t room = *size;
    *type = static_cast<RegistryType>(itsType);
    *size = static_cast<uint32_t>(bytes.size());
    if (data == nullptr) return kRegistrySuccess;
    if (room < bytes.size()) return kRegistryMoreData;
    std::memcpy(data, bytes.data(), bytes.size());
    return kRegistrySuccess;
}

long RegistryKey::Set(const std::string& name, RegistryType type, const void* data, uint32_t size) const {
    headless::RegistryValues* values = ValuesOf(handle_);
    if (values == nullptr) return kRegistryDeleted;
    (*values)[name] = {static_cast<uint32_t>(type), std::string(static_cast<const char*>(data), size)};
    return kRegistrySuccess;
}

long RegistryKey::Remove(const std::string& name) const {
    headless::RegistryValues* values = ValuesOf(handle_);
    if (values == nullptr) return kRegistryDeleted;
    const auto found = values->find(name);
    if (found == values->end()) return kRegistryNotFound;
    values->erase(found);
    return kRegistrySuccess;
}

std::string ReadMachineText(const std::string& path, const std::string& name) {
    const auto& texts = headless::TheWorld().machineTexts;
    const auto found = texts.find(path + "\\" + name);
    return found == texts.end() ? std::string() : found->second;
}

}  // namespace quirn
