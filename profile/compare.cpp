#include "profile/compare.h"

#include <algorithm>
#include <set>

#include "platform/text.h"
#include "profile/settingvalues.h"
#include "profile/splitpath.h"

namespace quirn {

using setting::Kind;

namespace {

constexpr const char* kWaveCaptions[] = {"Wave Shift-F11", "Wave Shift-F12"};
constexpr char kAnother[] = "(another)";
constexpr char kNone[] = "-";

bool SameValue(const SettingRow& row, const std::string& a, const std::string& b) {
    if (row.kind == Kind::CheckBox) return (Val(a) != 0) == (Val(b) != 0);
    if (!row.IsNumber()) return a == b;
    const auto number = ToInteger(a), other = ToInteger(b);
    return number && other ? *number == *other : a == b;
}

bool SameSetting(const SettingRow& row, const Profile& a, const Profile& b) {
    if (row.kind != Kind::Resolution) return SameValue(row, a.Value(row), b.Value(row));
    return SameValue(row, a.Options.Value(kResolutionX), b.Options.Value(kResolutionX)) &&
           SameValue(row, a.Options.Value(kResolutionY), b.Options.Value(kResolutionY));
}

auto FindName(const std::vector<std::string>& list, std::string_view name) {
    return std::find_if(list.begin(), list.end(),
                        [&](const std::string& entry) { return EqualNoCase(Trim(entry), name); });
}

bool Ignores(const Profile& profile, std::string_view name) {
    return FindName(profile.IgnoreList, name) != profile.IgnoreList.end();
}

void AddCell(CompareRow& row, const std::string& text, bool differs) {
    row.cells.push_back(text);
    row.differs.push_back(differs);
}

CompareRow RowOf(const SettingRow& setting, const std::vector<CompareSide>& sides) {
    CompareRow row;
    row.setting = &setting;
    row.caption = DisplayCaption(setting);
    row.page = setting::NameOf(setting.page);
    const Profile& first = sides.front().profile;
    for (const CompareSide& side : sides) {
        const bool differs = side.isThere && !SameSetting(setting, first, side.profile);
        std::string text = side.isThere ? DisplayValue(setting, side.profile) : "";
        const bool isPassword = setting.kind == Kind::Password;
        if (differs && isPassword && !first.Value(setting).empty() && !side.profile.Value(setting).empty())
            text = kAnother;
        AddCell(row, text, differs);
    }
    return row;
}

CompareRow RowOf(const std::string& name, const std::vector<CompareSide>& sides) {
    CompareRow row;
    row.ignoredName = name;
    row.caption = "Ignore list: " + name;
    row.page = "Ignore List";
    const Profile& first = sides.front().profile;
    for (const CompareSide& side : sides) {
        const bool says = side.isThere && !side.profile.ignoreFileUnread;
        const bool ignores = says && Ignores(side.profile, name);
        AddCell(row,
                !says     ? ""
                : ignores ? "yes"
                          : kNone,
                says && !first.ignoreFileUnread && ignores != Ignores(first, name));
    }
    return row;
}

CompareRow RowOf(size_t wave, const std::vector<CompareSide>& sides) {
    CompareRow row;
    row.wave = wave;
    row.caption = kWaveCaptions[wave];
    row.page = setting::NameOf(setting::Page::Identity);
    const auto& first = sides.front().waveMarks[wave];
    for (const CompareSide& side : sides) {
        const auto& mark = side.waveMarks[wave];
        const bool differs = side.isThere && first && mark && *first != *mark;
        const std::string& path = side.profile.WaveFiles[wave];
        std::string text = !side.isThere ? "" : path.starts_with('<') || path.empty() ? kNone : SplitPath(path).File();
        if (differs && text == row.cells.front()) text = kAnother;
        AddCell(row, text, differs);
    }
    return row;
}

void TakeName(const std::string& name, const Profile& from, Profile& into) {
    const auto wanted = FindName(from.IgnoreList, name);
    if (wanted == from.IgnoreList.end())
        std::erase_if(into.IgnoreList, [&](const std::string& entry) { return EqualNoCase(Trim(entry), name); });
    else if (!Ignores(into, name)) into.IgnoreList.push_back(*wanted);
}

}  // namespace

std::vector<const SettingRow*> CompareRow::Settings() const {
    if (setting == nullptr) return {};
    if (setting->kind != Kind::Resolution) return {setting};
    return {setting, &setting::RowAt(setting::Group::Options, kResolutionY)};
}

bool CompareRow::Differs() const {
    return std::find(differs.begin(), differs.end(), true) != differs.end();
}

bool CompareRow::Holds(std::string_view text) const {
    const std::string wanted = FoldCase(text);
    const auto holds = [&](const std::string& cell) { return FoldCase(cell).find(wanted) != std::string::npos; };
    return holds(caption) || holds(page) || std::any_of(cells.begin(), cells.end(), holds);
}

bool CompareRow::IsSameRowAs(const CompareRow& other) const {
    return setting == other.setting && wave == other.wave && EqualNoCase(ignoredName, other.ignoredName);
}

std::vector<CompareRow> Compare(const std::vector<CompareSide>& sides) {
    std::vector<CompareRow> rows;
    for (const SettingRow& setting : setting::kRows)
        if (&setting != &setting::RowAt(setting::Group::Options, kResolutionY)) rows.push_back(RowOf(setting, sides));
    std::set<std::string, LessNoCase> names;
    for (const CompareSide& side : sides)
        for (const std::string& name : side.profile.IgnoreList)
            if (side.isThere && !Trim(name).empty()) names.emplace(Trim(name));
    for (const std::string& name : names) rows.push_back(RowOf(name, sides));
    for (size_t wave = 0; wave < std::size(kWaveCaptions); ++wave) rows.push_back(RowOf(wave, sides));
    return rows;
}

void TakeRows(const std::vector<CompareRow>& rows, const Profile& from, Profile& into) {
    for (const CompareRow& row : rows) {
        if (row.wave) into.WaveFiles[*row.wave] = from.WaveFiles[*row.wave];
        if (row.IsName() && !from.ignoreFileUnread) TakeName(row.ignoredName, from, into);
        for (const SettingRow* setting : row.Settings()) into.Value(*setting) = from.Value(*setting);
    }
}

}  // namespace quirn
