#include "mainwin/bindingtables.h"

#include <algorithm>

#include "platform/text.h"

namespace quirn {

namespace {

int Find(const Section& section, std::string_view name, SettingMode mode) {
    for (int i = 1; i <= section.Count(); ++i) {
        if (section.Name(i) != name) continue;
        return mode == SettingMode::Index ? i : Val(section.Value(i)) != 0 ? 1 : 0;
    }
    return 0;
}

}  // namespace

int OptionsSetting(const Profile& profile, std::string_view name, SettingMode mode) {
    return Find(profile.Options, name, mode);
}

int AdvancedSetting(const Profile& profile, std::string_view name, SettingMode mode) {
    return Find(profile.Advanced, name, mode);
}

int IndexOf(const std::string& value) {
    return ToInteger(value).value_or(-1);
}

std::string SelectedValue(int selected, const std::string& current) {
    return selected < 0 ? current : std::to_string(selected);
}

int ResolutionIndex(std::string_view width) {
    for (size_t i = 0; i < std::size(setting::kResolutions); ++i)
        if (std::string_view(setting::kResolutions[i]).find(width) != std::string_view::npos)
            return static_cast<int>(i);
    return 0;
}

void SplitResolution(std::string_view text, std::string& width, std::string& height) {
    const size_t x = text.find('x');
    if (x == std::string_view::npos) return;
    width = Trim(text.substr(0, x));
    height = Trim(text.substr(x + 1));
}

ProxyParts SplitProxyAddress(std::string_view address) {
    ProxyParts parts;
    for (size_t i = 0; i < parts.size(); ++i) {
        const size_t point = i + 1 < parts.size() ? address.find('.') : std::string_view::npos;
        parts[i] = address.substr(0, point);
        if (point == std::string_view::npos) break;
        address.remove_prefix(point + 1);
    }
    return parts;
}

std::optional<ProxyParts> PastedProxyAddress(std::string_view text) {
    constexpr size_t kMostDigits = 3;
    const auto skip = [&text](const char* characters) {
        const size_t count = std::min(text.find_first_not_of(characters), text.size());
        const std::string_view skipped = text.substr(0, count);
        text.remove_prefix(count);
        return std::string(skipped);
    };
    ProxyParts parts;
    for (std::string& part : parts) {
        skip(" \t\r\n");
        if (&part != &parts.front()) {
            if (skip(".").size() != 1) return std::nullopt;
            skip(" \t\r\n");
        }
        part = skip("0123456789");
        if (part.empty() || part.size() > kMostDigits) return std::nullopt;
    }
    return parts;
}

std::string JoinProxyAddress(const ProxyParts& parts, const std::string& current) {
    if (current.find('.') != std::string::npos && SplitProxyAddress(current) == parts) return current;
    return parts[0] + "." + parts[1] + "." + parts[2] + "." + parts[3];
}

}  // namespace quirn
