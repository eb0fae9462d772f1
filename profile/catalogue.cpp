#include "profile/profile.h"

namespace quirn {

namespace {

constexpr char kText[] = "1";    // REG_SZ
constexpr char kNumber[] = "4";  // REG_DWORD

}  // namespace

void InitCatalogue(Profile& profile) {
    for (size_t i = 0; i < setting::kGroupNames.size(); ++i)
        *profile.Sections()[i] = {.name = setting::kGroupNames[i], .values = {""}, .names = {""}, .types = {""}};
    for (const SettingRow& row : setting::kRows) {
        Section& section = *profile.Sections()[static_cast<size_t>(row.group)];
        section.names.emplace_back(row.name);
        section.types.emplace_back(row.IsNumber() ? kNumber : kText);
        section.values.emplace_back();
    }
}

void ResetProfile(Profile& profile) {
    for (std::string& text : profile.Messages.values) text.clear();
    for (const int index : {kPlayerName, kPlayerPassword, kProxyIP}) profile.Dialog.Value(index).clear();
    profile.WaveFiles.fill(kNotSet);
}

}  // namespace quirn
