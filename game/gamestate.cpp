#include "game/gamestate.h"

#include "game/playerfiles.h"
#include "game/settingsstore.h"
#include "platform/files.h"

namespace quirn {

namespace {

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

Failure WriteFileAsIs(const std::string& path, const std::optional<std::string>& bytes) {
    if (bytes) return WriteGameFile(path, *bytes);
    const Result<std::string> old = ReadWholeFile(path);
    if ((old.Failed() && IsMissingFile(old.Error())) || RemoveFile(path)) return {};
    return old.Failed() ? old.Error() : MakeError(ErrorNumber::PathFileAccess);
}

}  // namespace

Result<GameState> ReadGameState(const Profile& catalogue, const std::string& gameFolder) {
    GameState state;
    for (const Section* section : catalogue.Sections()) {
        const RegistryKey key(kGameKey + section->name);
        GameValues& values = state.settings[section->name];
        for (int i = 1; i <= section->Count(); ++i)
            if (ReadStored(key, section->Name(i), values[section->Name(i)]) != kRegistrySuccess)
                return ErrorNumber::PathFileAccess;
    }
    for (const char* name : kPlayerFiles) {
        Result<std::string> bytes = ReadWholeFile(PathIn(gameFolder, name));
        if (!bytes.Failed()) state.files[name] = bytes.Take();
        else if (IsMissingFile(bytes.Error())) state.files[name] = std::nullopt;
        else return bytes.Error();
    }
    return state;
}

std::vector<RuntimeError> WriteGameState(const GameState& state, const std::string& gameFolder) {
    std::vector<RuntimeError> errors;
    for (const auto& [section, values] : state.settings) {
        const RegistryKey key(kGameKey + section);
        for (const auto& [name, value] : values)
            if (WriteStored(key, name, value) != kRegistrySuccess)
                errors.push_back(MakeError(ErrorNumber::PathFileAccess));
    }
    for (const auto& [name, bytes] : state.files)
        if (Failure failure = WriteFileAsIs(PathIn(gameFolder, name), bytes)) errors.push_back(*std::move(failure));
    return errors;
}

}  // namespace quirn
