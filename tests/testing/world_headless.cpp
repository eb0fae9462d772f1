#include "platform/headless/events.h"
#include "platform/headless/headless.h"
#include "tests/testing/world.h"

namespace quirn::test {

using headless::TheWorld;

namespace {

constexpr char kScratch[] = "C:\\Scratch";

}  // namespace

void OpenWorld() {}
void CloseWorld() {}

void ResetWorld() {
    headless::ResetEvents();
    headless::ResetWorld();
    headless::MakeFolder(kScratch);
}

std::string Scratch() {
    return kScratch;
}

void PutFile(const std::string& path, std::string_view bytes) {
    headless::PutFile(path, bytes);
}

void PutHugeFile(const std::string& path, uint64_t size) {
    headless::PutFile(path, {}).hollow = size;
}

std::optional<std::string> FileBytes(const std::string& path) {
    if (const headless::File* file = headless::FindFile(path)) return file->bytes;
    return std::nullopt;
}

void MakeFolder(const std::string& path) {
    headless::MakeFolder(path);
}
void SetReadOnly(const std::string& path) {
    headless::FindFile(path)->readOnly = true;
}
void SetHidden(const std::string& path) {
    headless::FindFile(path)->hidden = true;
}

HeldFile::HeldFile(const std::string& path) : handle_(headless::FindFile(path)) {
    ++static_cast<headless::File*>(handle_)->holders;
}

HeldFile::~HeldFile() {
    --static_cast<headless::File*>(handle_)->holders;
}

void MakeKey(const std::string& path) {
    headless::MakeKey(path);
}

void PutValue(const std::string& path, const std::string& name, uint32_t type, std::string_view bytes) {
    headless::MakeKey(path)[name] = {type, std::string(bytes)};
}

std::optional<StoredValue> GetValue(const std::string& path, const std::string& name) {
    const auto key = TheWorld().registry.find(path);
    if (key == TheWorld().registry.end() || !key->second.contains(name)) return std::nullopt;
    const headless::RegistryValue& value = key->second.at(name);
    return StoredValue{value.type, value.bytes};
}

bool KeyExists(const std::string& path) {
    return TheWorld().registry.contains(path);
}

}  // namespace quirn::test
