#pragma once

#include <string>
#include <vector>

#include "game/gamestate.h"
#include "game/playerfiles.h"
#include "game/settingsstore.h"
#include "game/transferlog.h"
#include "platform/error.h"
#include "profile/profile.h"

// A profile's way into the game, and the game's into a profile: the registry settings, then the files of each player.
// Nobody is asked or told anything here.
namespace quirn {

struct TransferResult {
    std::vector<RuntimeError> errors;   // for the player, in the order in which they happened
    std::vector<FileTrouble> files;     // for the player as well: what the game has of these is as it was
    std::vector<RefusedValue> refused;  // settings that the registry did not take; the player hears nothing of them
    bool kept = true;                   // there is a way back, or nothing was changed

    bool WentWell() const { return errors.empty() && files.empty(); }
};

// What a profile makes of the game: its settings but those that the registry will not take (a key that is missing, a
// value of another type, a number that does not fit), and the files that it brings. Nothing is changed.
GameState PlanTransfer(const GameSettings& now, const Profile& profile, const std::string& gameFolder);

// The game holds just what a transfer of the profile would make of it. Files are read only when all settings agree.
bool GameHolds(const GameSettings& now, const Profile& profile, const std::string& gameFolder);

// Writes a profile into the game: the one way for all commands. What fails does not stop the rest. The errors are one
// overflow for all numbers that do not fit 32 bits; each file that cannot be written is named. Without a configured
// game folder the files are left out, without an error: the launch that follows says what to do. What the game had is
// kept in the log first, unless nothing changes.
TransferResult TransferToGame(const Profile& profile, const std::string& gameFolder, const TransferLog& log,
                              const TransferNote& note);

// The same for a state, or a part of one: an undo, or some rows of a profile. Each value that fails gives an error.
TransferResult PutIntoGame(const GameState& wanted, const std::string& gameFolder, const TransferLog& log,
                           const TransferNote& note);

// What the game has changed since the last transfer, with the values that it has now; empty when there was none, or the
// game cannot be read.
struct GameChanges {
    std::string since;  // local time of the last transfer, "2026-11-23 14.05.10"
    GameState now;
};
GameChanges FindGameChanges(const TransferLog& log, const std::string& gameFolder);

// The player does not mind these changes any more, since a profile has taken them.
Failure AcceptGameChanges(const TransferLog& log, const GameState& taken);

// What goes back when a transfer is undone: all that it changed, but what the game has changed since.
struct Undo {
    GameState back;
    GameState changedSince;  // with the values from before the transfer; these stay unless the player wants them too
};
Result<Undo> PlanUndo(const TransferLog& log, const TransferEntry& entry);

// Reads all settings, the ignore list and the wave files into the profile. What is missing becomes an empty text.
// Failure: there is an ignore list that cannot be read; all else has been.
Failure ReadProfileFromGame(Profile& profile, const std::string& gameFolder);

}  // namespace quirn
