#include "game/transfer.h"

#include <algorithm>
#include <functional>
#include <utility>

#include "platform/clock.h"

namespace quirn {

namespace {

bool IsOurType(const std::optional<RegistryValue>& stored) {
    return !stored || stored->type == RegistryType::Text || stored->type == RegistryType::Number;
}

// As SetValueEx stores a profile's text; nothing for a number that does not fit.
std::optional<RegistryValue> StoredAs(const SettingRow& row, const std::string& text) {
    if (!row.IsNumber()) return RegistryValue{RegistryType::Text, text + '\0'};
    const auto number = ToInteger(text);
    if (!number) return std::nullopt;
    return RegistryValue{RegistryType::Number, std::string(reinterpret_cast<const char*>(&*number), sizeof(*number))};
}

// What the game has of what a plan is about. A file that cannot be read is left out: it cannot be kept.
GameState PresentOf(const GameState& plan, GameSettings settings, const std::string& gameFolder) {
    GameState now{std::move(settings), {}};
    for (const auto& file : plan.files) {
        Result<std::optional<std::string>> bytes = ReadGameFile(gameFolder, file.first);
        if (!bytes.Failed()) now.files[file.first] = bytes.Take();
    }
    return now;
}

GameState GlanceAt(GameSettings settings, const std::string& gameFolder) {
    return {std::move(settings), gameFolder == kNotSet ? GameFiles() : GlanceAtFiles(gameFolder)};
}

// What the game has changed of what the last transfer left. Another game folder's files are not compared.
GameState ChangedSince(const LeftState& left, const GameState& now, const std::string& gameFolder) {
    GameState comparable = Common(now, left.state);
    if (!EqualNoCase(left.gameFolder, gameFolder)) comparable.files.clear();
    return Difference(comparable, left.state);
}

bool WentAsPlanned(const TransferResult& result) {
    return result.WentWell() && std::none_of(result.refused.begin(), result.refused.end(), [](auto& value) {
               return value.status != kUnsupportedType && value.status != kRegistryNotFound;
           });
}

// Keeps what the game has, lets `apply` change the game to the plan, and notes what it left.
TransferResult KeepAndApply(const std::function<GameState(const GameSettings&)>& planOf, const std::string& gameFolder,
                            const TransferLog& log, const TransferNote& note,
                            const std::function<void(TransferResult&, Flush)>& apply) {
    TransferResult result;
    Result<GameSettings> settings = ReadGameSettings();
    if (settings.Failed()) {
        result.kept = false;
        apply(result, Flush::Yes);
        return result;
    }
    const GameState plan = planOf(settings.Value());
    const GameState now = PresentOf(plan, settings.Take(), gameFolder);
    const GameState change = Difference(plan, now);
    const std::optional<LeftState> left = log.Left();
    const std::string time = SortableTime();

    std::string entryFolder;
    if (!change.IsEmpty()) {
        GameState before{now.settings, Common(now, change).files};
        // The first of all is the game as it was found, and all of it.
        if (log.IsEmpty()) before.files = ReadGameFiles(gameFolder);
        const size_t overwrote = left ? Common(ChangedSince(*left, now, gameFolder), change).SettingCount() : 0;
        const TransferEntry entry{{}, time, note, gameFolder, change.SettingCount(), {}, overwrote, false};
        const Result<std::string> begun = log.Begin(entry, before, {Over(now, change).settings, change.files});
        result.kept = !begun.Failed() && Without({{}, change.files}, now).IsEmpty();
        if (!begun.Failed()) entryFolder = begun.Value();
    }
    // What it overwrites is on the disk already, so what it writes, which there is another copy of, need not be.
    apply(result, result.kept ? Flush::No : Flush::Yes);

    Result<GameSettings> after =
        WentAsPlanned(result) ? Result<GameSettings>(Over(now, change).settings) : ReadGameSettings();
    if (!after.Failed()) log.Leave({time, gameFolder, GlanceAt(after.Take(), gameFolder)});
    if (!entryFolder.empty()) log.Finish(entryFolder);
    return result;
}

}  // namespace

GameState PlanTransfer(const GameSettings& now, const Profile& profile, const std::string& gameFolder) {
    GameState plan;
    for (const SettingRow& row : setting::kRows) {
        const std::string section = setting::kGroupNames[static_cast<size_t>(row.group)];
        const auto values = now.find(section);
        if (values == now.end()) continue;
        const auto stored = values->second.find(row.name);
        if (stored != values->second.end() && !IsOurType(stored->second)) continue;
        if (auto value = StoredAs(row, profile.Value(row))) plan.settings[section][row.name] = std::move(value);
    }
    if (gameFolder == kNotSet) return plan;
    for (const char* name : kPlayerFiles) {
        Result<std::optional<std::string>> bytes = PlanPlayerFile(profile, gameFolder, name);
        if (!bytes.Failed() && bytes.Value()) plan.files[name] = bytes.Take();
    }
    return plan;
}

bool GameHolds(const GameSettings& now, const Profile& profile, const std::string& gameFolder) {
    if (!Difference(PlanTransfer(now, profile, kNotSet), {now, {}}).IsEmpty()) return false;
    return Difference(PlanTransfer(now, profile, gameFolder), {now, ReadGameFiles(gameFolder)}).IsEmpty();
}

TransferResult TransferToGame(const Profile& profile, const std::string& gameFolder, const TransferLog& log,
                              const TransferNote& note) {
    const auto plan = [&](const GameSettings& now) { return PlanTransfer(now, profile, gameFolder); };
    return KeepAndApply(plan, gameFolder, log, note, [&](TransferResult& result, Flush flush) {
        WrittenSettings settings = WriteSettings(profile);
        if (settings.overflow) result.errors.push_back(MakeError(ErrorNumber::Overflow));
        result.refused = std::move(settings.refused);
        if (gameFolder != kNotSet) result.files = WritePlayerFiles(profile, gameFolder, flush);
    });
}

TransferResult PutIntoGame(const GameState& wanted, const std::string& gameFolder, const TransferLog& log,
                           const TransferNote& note) {
    return KeepAndApply(
        [&](const GameSettings&) { return wanted; }, gameFolder, log, note,
        [&](TransferResult& result, Flush flush) { result.errors = WriteGameState(wanted, gameFolder, flush); });
}

GameChanges FindGameChanges(const TransferLog& log, const std::string& gameFolder) {
    const std::optional<LeftState> left = log.Left();
    Result<GameSettings> settings = left ? ReadGameSettings() : Result<GameSettings>(ErrorNumber::FileNotFound);
    if (settings.Failed()) return {};
    return {left->time, ChangedSince(*left, GlanceAt(settings.Take(), gameFolder), gameFolder)};
}

Failure AcceptGameChanges(const TransferLog& log, const GameState& taken) {
    std::optional<LeftState> left = log.Left();
    if (!left) return {};
    left->state = Over(std::move(left->state), taken);
    return log.Leave(*left);
}

Result<Undo> PlanUndo(const TransferLog& log, const TransferEntry& entry) {
    Result<GameState> before = log.Before(entry);
    if (before.Failed()) return before.Error();
    Result<GameState> after = log.After(entry);
    if (after.Failed()) return after.Error();
    Result<GameSettings> settings = ReadGameSettings();
    if (settings.Failed()) return settings.Error();
    const GameState now = PresentOf(before.Value(), settings.Take(), entry.gameFolder);

    const GameState changed = Difference(before.Value(), now);
    // Of a transfer that was cut off all goes back: what it had not done yet is as it was before.
    if (!entry.finished) return Undo{changed, {}};
    const GameState byIt = Common(changed, Difference(after.Value(), before.Value()));
    const GameState since = Common(byIt, Difference(after.Value(), now));
    return Undo{Without(byIt, since), since};
}

Failure ReadProfileFromGame(Profile& profile, const std::string& gameFolder) {
    ReadSettings(profile);
    return ReadPlayerFiles(profile, gameFolder);
}

}  // namespace quirn
