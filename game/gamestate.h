#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "platform/error.h"
#include "platform/registry.h"
#include "platform/text.h"
#include "profile/profile.h"

// The game's settings and files as they are stored, byte for byte, as a value that can be compared, kept and put back.
namespace quirn {

// By section and value name; nothing for a value that is missing.
using GameValues = std::map<std::string, std::optional<RegistryValue>, LessNoCase>;
using GameSettings = std::map<std::string, GameValues, LessNoCase>;

// What it does not hold is left alone by writing, so a part of a state is a state too.
struct GameState {
    GameSettings settings;
    std::map<std::string, std::optional<std::string>> files;  // by name in the game folder; nothing: no such file
    bool operator==(const GameState&) const = default;
};

// Every setting of the catalogue and the three player files. A key or folder that is not there has none of them.
// Failure: a value or a file that cannot be read.
Result<GameState> ReadGameState(const Profile& catalogue, const std::string& gameFolder);

// Makes the game as the state says: what is missing in it is removed. Keys are neither made nor removed, and what is so
// already is not written. What fails does not stop the rest; each value and file that failed gives an error.
std::vector<RuntimeError> WriteGameState(const GameState& state, const std::string& gameFolder);

}  // namespace quirn
