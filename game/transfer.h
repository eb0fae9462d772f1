#pragma once

#include <string>
#include <vector>

#include "game/settingsstore.h"
#include "platform/error.h"
#include "profile/profile.h"

// A profile's way into the game, and the game's into a profile: the registry settings, then the files of each player.
// Nobody is asked or told anything here.
namespace quirn {

struct TransferResult {
    std::vector<RuntimeError> errors;   // for the player, in the order in which they happened
    std::vector<RefusedValue> refused;  // settings that the registry did not take; the player hears nothing of them
};

// Writes a profile into the game: the one way for all commands. What fails does not stop the rest. The errors are one
// overflow for all numbers that do not fit 32 bits, and one for each file that cannot be written. Without a configured
// game folder the files are left out, without an error: the launch that follows says what to do.
TransferResult TransferToGame(const Profile& profile, const std::string& gameFolder);

// Reads all settings, the ignore list and the wave files into the profile. What is missing becomes an empty text.
// Failure: there is an ignore list that cannot be read; all else has been.
Failure ReadProfileFromGame(Profile& profile, const std::string& gameFolder);

}  // namespace quirn
