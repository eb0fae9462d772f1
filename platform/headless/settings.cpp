#include "platform/settings.h"

#include "platform/headless/headless.h"
#include "platform/registry.h"
#include "platform/version.h"

namespace quirn {

namespace {

std::string SectionPath(const std::string& section) {
    return std::string("Software\\") + kTitle + "\\" + section;
}

constexpr auto kText = static_cast<uint32_t>(RegistryType::Text);

}  // namespace

std::string GetSetting(const std::string& section, const std::string& key, const std::string& defaultValue) {
    const auto& registry = headless::TheWorld().registry;
    const auto folder = registry.find(SectionPath(section));
    if (folder == registry.end()) return defaultValue;
    const auto value = folder->second.find(key);
    if (value == folder->second.end() || value->second.type != kText) return defaultValue;
    return value->second.bytes.substr(0, value->second.bytes.find('\0'));
}

void SaveSetting(const std::string& section, const std::string& key, const std::string& value) {
    const std::string text = value.c_str();
    headless::MakeKey(SectionPath(section))[key] = {kText, text + '\0'};
}

}  // namespace quirn
