#include "game/comparerows.h"

#include <algorithm>

#include "game/playerfiles.h"
#include "game/settingsstore.h"
#include "game/transfer.h"
#include "platform/files.h"

namespace quirn {

namespace {

constexpr std::string_view kLineEnds("\r\n\0", 3);

// As far as the line that begins there reaches, with its end.
size_t EndOfLine(const std::string& text, size_t start) {
    const size_t end = text.find_first_of(kLineEnds, start);
    if (end == std::string::npos) return text.size();
    return end + (text.compare(end, 2, "\r\n") == 0 ? 2 : 1);
}

// Without the lines that hold one name.
std::string WithoutName(const std::string& text, std::string_view name) {
    std::string rest;
    for (size_t start = 0, end = 0; start < text.size(); start = end) {
        end = EndOfLine(text, start);
        const std::string_view line(text.data() + start, end - start);
        if (!EqualNoCase(Trim(line.substr(0, line.find_first_of(kLineEnds))), name)) rest += line;
    }
    return rest;
}

bool HoldsName(const std::vector<std::string>& names, std::string_view name) {
    return std::any_of(names.begin(), names.end(), [&](auto& entry) { return EqualNoCase(Trim(entry), name); });
}

void PutName(const std::string& name, const Profile& profile, std::string& text) {
    if (!HoldsName(profile.IgnoreList, name)) {
        // A list that could not be read says only whom it names.
        if (!profile.ignoreFileUnread) text = WithoutName(text, name);
    } else if (!HoldsName(IgnoredNames(text), name)) {
        if (!text.empty() && !text.ends_with('\n')) text += "\r\n";
        text += name + "\r\n";
    }
}

void PlanNames(const std::vector<CompareRow>& rows, const Profile& profile, const std::string& gameFolder,
               RowsPlan& plan) {
    if (std::none_of(rows.begin(), rows.end(), [](const CompareRow& row) { return row.IsName(); })) return;
    const Result<std::optional<std::string>> file = ReadGameFile(gameFolder, kIgnoreFile);
    if (file.Failed()) {
        plan.errors.push_back(file.Error());
        return;
    }
    std::string text = file.Value().value_or("");
    for (const CompareRow& row : rows)
        if (row.IsName()) PutName(row.ignoredName, profile, text);
    if (text != file.Value().value_or("")) plan.state.files[kIgnoreFile] = text;
}

void PlanWave(size_t wave, const Profile& profile, const std::string& gameFolder, RowsPlan& plan) {
    Result<std::optional<std::string>> bytes = PlanPlayerFile(profile, gameFolder, kWaveNames[wave]);
    if (bytes.Failed()) plan.errors.push_back(bytes.Error());
    else if (bytes.Value()) plan.state.files[kWaveNames[wave]] = bytes.Take();
}

bool IsOverflow(const CompareRow& row, const Profile& profile) {
    const auto settings = row.Settings();
    return std::any_of(settings.begin(), settings.end(), [&](const SettingRow* setting) {
        return setting->IsNumber() && !ToInteger(profile.Value(*setting));
    });
}

}  // namespace

CompareSide SideOf(const std::string& caption, const Profile& profile) {
    CompareSide side{caption, profile, {}};
    for (size_t wave = 0; wave < side.waveMarks.size(); ++wave) {
        const std::string& path = profile.WaveFiles[wave];
        if (path.empty() || path.starts_with('<')) continue;
        Result<std::string> bytes = ReadWholeFile(path);
        side.waveMarks[wave] = bytes.Failed() ? "" : bytes.Take();
    }
    return side;
}

CompareSide SideOf(const std::string& caption, const GameState& state) {
    CompareSide side{caption, {}, {}};
    InitCatalogue(side.profile);
    for (const SettingRow& row : setting::kRows) {
        const auto values = state.settings.find(setting::kGroupNames[static_cast<size_t>(row.group)]);
        if (values == state.settings.end()) continue;
        const auto value = values->second.find(row.name);
        if (value != values->second.end()) side.profile.Value(row) = TextOfStored(value->second);
    }
    const auto names = state.files.find(kIgnoreFile);
    side.profile.ignoreFileUnread = names == state.files.end();
    if (names != state.files.end()) side.profile.IgnoreList = IgnoredNames(names->second.value_or(""));
    for (size_t slot = 0; slot < side.waveMarks.size(); ++slot) {
        const auto wave = state.files.find(kWaveNames[slot]);
        if (wave == state.files.end()) continue;
        side.waveMarks[slot] = wave->second.value_or("");
        side.profile.WaveFiles[slot] = wave->second ? kWaveNames[slot] : kNotSet;
    }
    return side;
}

CompareSide GameSide(const std::string& gameFolder) {
    Profile profile;
    InitCatalogue(profile);
    ReadProfileFromGame(profile, gameFolder);  // a list that cannot be read is marked so
    CompareSide side = SideOf({}, profile);
    for (auto& mark : side.waveMarks)
        if (!mark) mark = "";  // the game has none, which says something of it
    return side;
}

RowsPlan PlanRows(const std::vector<CompareRow>& rows, const GameSettings& now, const Profile& profile,
                  const std::string& gameFolder) {
    RowsPlan plan;
    plan.state = PartOf({PlanTransfer(now, profile, kNotSet).settings, {}}, rows);
    if (std::any_of(rows.begin(), rows.end(), [&](const CompareRow& row) { return IsOverflow(row, profile); }))
        plan.errors.push_back(MakeError(ErrorNumber::Overflow));
    if (gameFolder == kNotSet) return plan;
    PlanNames(rows, profile, gameFolder, plan);
    for (const CompareRow& row : rows)
        if (row.wave) PlanWave(*row.wave, profile, gameFolder, plan);
    return plan;
}

RowsPlan PlanRowsBack(const std::vector<CompareRow>& rows, bool allNames, const GameState& former,
                      const std::string& gameFolder) {
    RowsPlan plan;
    plan.state = PartOf(former, rows);
    if (allNames || plan.state.files.erase(kIgnoreFile) == 0) return plan;
    PlanNames(rows, SideOf({}, former).profile, gameFolder, plan);
    return plan;
}

GameState PartOf(const GameState& state, const std::vector<CompareRow>& rows) {
    GameState wanted;
    for (const CompareRow& row : rows) {
        if (row.wave) wanted.files[kWaveNames[*row.wave]];
        if (row.IsName()) wanted.files[kIgnoreFile];
        for (const SettingRow* setting : row.Settings())
            wanted.settings[setting::kGroupNames[static_cast<size_t>(setting->group)]][setting->name];
    }
    return Common(state, wanted);
}

}  // namespace quirn
