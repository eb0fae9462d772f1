#include "profile/settingvalues.h"

#include "platform/text.h"

namespace quirn {

using setting::Kind;

namespace {

std::string WordOf(const SettingRow& row, const std::string& value) {
    const auto index = ToInteger(value);
    if (!index || *index < 0 || static_cast<size_t>(*index) >= row.words.size()) return value;
    return row.words[static_cast<size_t>(*index)];
}

}  // namespace

std::string DisplayCaption(const SettingRow& row) {
    std::string_view caption = row.caption;
    if (caption.ends_with(" :") || caption.ends_with(" -")) caption.remove_suffix(2);
    return std::string(caption);
}

std::string DisplayValue(const SettingRow& row, const std::string& value) {
    switch (row.kind) {
        case Kind::Password: return value.empty() ? "(not set)" : "(set)";
        case Kind::CheckBox: return Val(value) != 0 ? "On" : "Off";
        case Kind::OptionGroup:
        case Kind::List: return WordOf(row, value);
        default: return value;
    }
}

std::string DisplayValue(const SettingRow& row, const Profile& profile) {
    if (row.kind == Kind::Resolution)
        return profile.Options.Value(kResolutionX) + " x " + profile.Options.Value(kResolutionY);
    return DisplayValue(row, profile.Value(row));
}

}  // namespace quirn
