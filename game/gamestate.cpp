#include "game/gamestate.h"

#include "game/playerfiles.h"
#include "game/settingsstore.h"
#include "platform/files.h"
#include "platform/folders.h"

namespace quirn {

namespace {

// A value that the state does not hold counts as missing.
const std::optional<RegistryValue>& StoredIn(const GameSettings& settings, const std::string& section,
                                             const std::string& name) {
    static const std::optional<RegistryValue> kMissing;
    const auto values = settings.find(section);
    if (values == settings.end()) return kMissing;
    const auto value = values->second.find(name);
    return value == values->second.end() ? kMissing : value->second;
}

bool Holds(const GameSettings& settings, const std::string& section, const std::string& name) {
    const auto values = settings.find(section);
    return values != settings.end() && values->second.contains(name);
}

// The part of a state that two tests let through.
template <class SettingTest, class FileTest>
GameState Part(const GameState& state, SettingTest takesSetting, FileTest takesFile) {
    GameState part;
    for (const auto& [section, values] : state.settings)
        for (const auto& [name, value] : values)
            if (takesSetting(section, name, value)) part.settings[section][name] = value;
    for (const auto& [name, bytes] : state.files)
        if (takesFile(name, bytes)) part.files[name] = bytes;
    return part;
}

GameState PartThatIsIn(const GameState& state, const GameState& other, bool in) {
    return Part(
        state, [&](auto& section, auto& name, auto&) { return Holds(other.settings, section, name) == in; },
        [&](auto& name, auto&) { return other.files.contains(name) == in; });
}

// A key that is not there, or was deleted meanwhile, has no values.
long ReadStored(const RegistryKey& key, const std::string& name, std::optional<RegistryValue>& stored) {
    stored.reset();
    RegistryValue value;
    const long status = key.IsOpen() ? key.Read(name, value) : kRegistryNotFound;
    if (status == kRegistrySuccess) stored = std::move(value);
    return status == kRegistryNotFound || status == kRegistryDeleted ? kRegistrySuccess : status;
}

long WriteStored(const RegistryKey& key, const std::string& name, const std::optional<RegistryValue>& wanted) {
    std::optional<RegistryValue> stored;
    if (ReadStored(key, name, stored) == kRegistrySuccess && stored == wanted) return kRegistrySuccess;
    if (!key.IsOpen()) return kRegistryNotFound;
    return wanted ? key.Write(name, *wanted) : key.Remove(name);
}

std::string PathIn(const std::string& folder, const std::string& name) {
    return folder + "\\" + name;
}

Failure WriteFileAsIs(const std::string& path, const std::optional<std::string>& bytes, Flush flush) {
    if (bytes) return WriteGameFile(path, *bytes, flush);
    const Result<std::string> old = ReadWholeFile(path);
    if ((old.Failed() && IsMissingFile(old.Error())) || RemoveFile(path)) return {};
    return old.Failed() ? old.Error() : MakeError(ErrorNumber::PathFileAccess);
}

}  // namespace

size_t GameState::SettingCount() const {
    size_t count = 0;
    for (const auto& section : settings) count += section.second.size();
    return count;
}

GameState Difference(const GameState& wanted, const GameState& now) {
    return Part(
        wanted, [&](auto& section, auto& name, auto& value) { return StoredIn(now.settings, section, name) != value; },
        [&](auto& name, auto& bytes) {
            const auto file = now.files.find(name);
            return file == now.files.end() || file->second != bytes;
        });
}

GameState Common(const GameState& state, const GameState& other) {
    return PartThatIsIn(state, other, true);
}

GameState Without(const GameState& state, const GameState& other) {
    return PartThatIsIn(state, other, false);
}

GameState Over(GameState state, const GameState& other) {
    for (const auto& [section, values] : other.settings)
        for (const auto& [name, value] : values) state.settings[section][name] = value;
    for (const auto& [name, bytes] : other.files) state.files[name] = bytes;
    return state;
}

Result<GameSettings> ReadGameSettings() {
    GameSettings settings;
    for (size_t group = 0; group < setting::kGroupNames.size(); ++group) {
        const std::string section = setting::kGroupNames[group];
        const RegistryKey key(kGameKey + section);
        if (!key.IsOpen()) continue;
        GameValues& values = settings[section];
        for (const SettingRow& row : setting::kRows)
            if (static_cast<size_t>(row.group) == group &&
                ReadStored(key, row.name, values[row.name]) != kRegistrySuccess)
                return ErrorNumber::PathFileAccess;
    }
    return settings;
}

Result<std::optional<std::string>> ReadGameFile(const std::string& gameFolder, const std::string& name) {
    if (gameFolder == kNotSet) return std::optional<std::string>();
    Result<std::string> bytes = ReadWholeFile(PathIn(gameFolder, name));
    if (!bytes.Failed()) return std::optional(bytes.Take());
    if (IsMissingFile(bytes.Error())) return std::optional<std::string>();
    return bytes.Error();
}

GameFiles ReadGameFiles(const std::string& gameFolder) {
    GameFiles files;
    for (const char* name : kPlayerFiles)
        if (Result<std::optional<std::string>> bytes = ReadGameFile(gameFolder, name); !bytes.Failed())
            files[name] = bytes.Take();
    return files;
}

Result<GameState> ReadGameState(const std::string& gameFolder) {
    Result<GameSettings> settings = ReadGameSettings();
    if (settings.Failed()) return settings.Error();
    return GameState{settings.Take(), ReadGameFiles(gameFolder)};
}

GameFiles GlanceAtFiles(const std::string& gameFolder) {
    GameFiles files;
    if (Result<std::optional<std::string>> names = ReadGameFile(gameFolder, kIgnoreFile); !names.Failed())
        files[kIgnoreFile] = names.Take();
    for (const char* wave : kWaveNames) {
        const auto entry = FindEntry(PathIn(gameFolder, wave));
        files[wave] = entry ? std::optional(std::to_string(entry->size) + " " + std::to_string(entry->writtenLast))
                            : std::nullopt;
    }
    return files;
}

std::vector<RuntimeError> WriteGameState(const GameState& state, const std::string& gameFolder, Flush flush) {
    std::vector<RuntimeError> errors;
    for (const auto& [section, values] : state.settings) {
        const RegistryKey key(kGameKey + section);
        for (const auto& [name, value] : values)
            if (WriteStored(key, name, value) != kRegistrySuccess)
                errors.push_back(MakeError(ErrorNumber::PathFileAccess));
    }
    for (const auto& [name, bytes] : state.files)
        if (Failure failure = WriteFileAsIs(PathIn(gameFolder, name), bytes, flush))
            errors.push_back(*std::move(failure));
    return errors;
}

}  // namespace quirn
