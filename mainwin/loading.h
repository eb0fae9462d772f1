#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "game/zonelist.h"
#include "profile/profilefile.h"

// What is read for a player who is there to be told or asked.
namespace quirn {

// Loads a profile and tells the player what there is to tell. True when it has been loaded.
bool LoadProfileAndTell(Profile& profile, const std::string& fileName);

// The zones of the game. While the file cannot be opened the player is asked: OK calls setGameFolder (which may change
// the folder behind the reference) and tries again, Cancel gives nothing.
std::optional<std::vector<Zone>> LoadZoneList(const std::string& gameFolder,
                                              const std::function<void()>& setGameFolder);

}  // namespace quirn
