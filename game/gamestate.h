#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "platform/error.h"
#include "platform/files.h"
#include "platform/registry.h"
#include "platform/text.h"
#include "profile/profile.h"

// The game's settings and files as they are stored, byte for byte, as a value that can be compared, kept and put back.
// A part of a state is a state too: what it does not hold, it says nothing of.
namespace quirn {

// By section and value name; nothing for a value that is missing. A section without a key is not there at all.
using GameValues = std::map<std::string, std::optional<RegistryValue>, LessNoCase>;
using GameSettings = std::map<std::string, GameValues, LessNoCase>;
// By name in the game folder; nothing: no such file.
using GameFiles = std::map<std::string, std::optional<std::string>, LessNoCase>;

struct GameState {
    GameSettings settings;
    GameFiles files;
    bool operator==(const GameState&) const = default;
    bool IsEmpty() const { return settings.empty() && files.empty(); }
    size_t SettingCount() const;
};

// What of `wanted` is not so in `now`. A value in a section that `now` does not hold counts as missing there; a file
// that it does not hold counts as different.
GameState Difference(const GameState& wanted, const GameState& now);

// The part of a state that another one says something of too, and the rest.
GameState Common(const GameState& state, const GameState& other);
GameState Without(const GameState& state, const GameState& other);

// A state with what another one says put over it.
GameState Over(GameState state, const GameState& other);

// Every setting of the table. Failure: a value that cannot be read.
Result<GameSettings> ReadGameSettings();

// One of the player files. Without a configured game folder there is none.
Result<std::optional<std::string>> ReadGameFile(const std::string& gameFolder, const std::string& name);

// The three player files. One that cannot be read is left out.
GameFiles ReadGameFiles(const std::string& gameFolder);

// Every setting and the player files. Failure: a value that cannot be read.
Result<GameState> ReadGameState(const std::string& gameFolder);

// The player files for looking often: of each wave message only a mark (size and time of writing) in place of its
// bytes. A file that cannot be read is left out.
GameFiles GlanceAtFiles(const std::string& gameFolder);

// Makes the game as the state says: what is missing in it is removed. Keys are neither made nor removed, and what is so
// already is not written. What fails does not stop the rest; each value and file that failed gives an error.
std::vector<RuntimeError> WriteGameState(const GameState& state, const std::string& gameFolder,
                                         Flush flush = Flush::Yes);

}  // namespace quirn
