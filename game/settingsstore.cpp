#include "game/settingsstore.h"

#include <cstring>

#include "platform/text.h"

namespace quirn {

namespace {

std::string KeyPath(const Section& section) {
    return kGameKey + section.name;
}

bool IsSupported(RegistryType type) {
    return type == RegistryType::Text || type == RegistryType::Number;
}

std::string AsText(const SettingValue& value) {
    if (const auto* text = std::get_if<std::string>(&value)) return *text;
    if (const auto* number = std::get_if<int>(&value)) return std::to_string(*number);
    return {};
}

int AsNumber(const SettingValue& value) {
    if (const auto* number = std::get_if<int>(&value)) return *number;
    return ToInteger(AsText(value)).value_or(0);  // callers write no text that does not fit
}

}  // namespace

SettingValue QueryValue(const RegistryKey& key, const std::string& name) {
    SettingValue value;
    if (key.IsOpen()) QueryValueEx(key, name, value);
    return value;
}

long QueryValueEx(const RegistryKey& key, const std::string& name, SettingValue& value) {
    RegistryType type{};
    uint32_t size = 0;
    if (const long status = key.Query(name, &type, nullptr, &size); status != kRegistrySuccess) return status;

    if (type == RegistryType::Text) {
        std::string text(size, '\0');
        const long status = key.Query(name, &type, text.data(), &size);
        text.resize(status == kRegistrySuccess ? size : 0);
        value = std::move(text);
        return status;
    }
    if (type == RegistryType::Number) {
        int number = 0;
        size = sizeof(number);
        const long status = key.Query(name, &type, &number, &size);
        if (status == kRegistrySuccess) value = number;
        return status;
    }
    return kUnsupportedType;
}

long SetKeyValue(const RegistryKey& key, const std::string& name, const SettingValue& value, RegistryType type) {
    if (!key.IsOpen()) return kRegistryNotFound;
    RegistryType stored{};
    uint32_t size = 0;
    if (key.Query(name, &stored, nullptr, &size) == kRegistrySuccess && !IsSupported(stored)) return kUnsupportedType;
    return SetValueEx(key, name, type, value);
}

long SetValueEx(const RegistryKey& key, const std::string& name, RegistryType type, const SettingValue& value) {
    if (type == RegistryType::Text) {
        const std::string text = AsText(value);
        return key.Set(name, type, text.c_str(), static_cast<uint32_t>(text.size() + 1));
    }
    if (type == RegistryType::Number) {
        const int number = AsNumber(value);
        return key.Set(name, type, &number, sizeof(number));
    }
    return kRegistrySuccess;
}

std::string TextOfStored(const std::optional<RegistryValue>& value) {
    if (!value) return {};
    if (value->type == RegistryType::Text)
        return value->bytes.substr(0, value->bytes.size() - (value->bytes.ends_with('\0') ? 1 : 0));
    int number = 0;
    if (value->type != RegistryType::Number || value->bytes.size() != sizeof(number)) return {};
    std::memcpy(&number, value->bytes.data(), sizeof(number));
    return std::to_string(number);
}

void ReadSettings(Profile& profile) {
    for (Section* section : profile.Sections()) {
        const RegistryKey key(KeyPath(*section));
        for (int i = 1; i <= section->Count(); ++i) {
            std::string text = AsText(QueryValue(key, section->Name(i)));
            // The NUL that ends a stored text is counted in it. A few programs store texts without one.
            if (text.ends_with('\0')) text.pop_back();
            section->Value(i) = std::move(text);
        }
    }
}

WrittenSettings WriteSettings(const Profile& profile) {
    WrittenSettings written;
    for (const Section* section : profile.Sections()) {
        const RegistryKey key(KeyPath(*section));
        const auto write = [&](int i, const SettingValue& value, RegistryType type) {
            const long status = SetKeyValue(key, section->Name(i), value, type);
            if (status != kRegistrySuccess) written.refused.push_back({section->name, section->Name(i), status});
        };
        for (int i = 1; i <= section->Count(); ++i) {
            if (!section->IsNumber(i)) write(i, section->Value(i), RegistryType::Text);
            else if (const auto number = ToInteger(section->Value(i))) write(i, *number, RegistryType::Number);
            else written.overflow = true;
        }
    }
    return written;
}

}  // namespace quirn
