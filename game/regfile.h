#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "game/gamestate.h"

// The game's settings in the registry editor's own text format (REGEDIT4, the one of ANSI texts): a player can put them
// back by a double click on the file, also without this program.
namespace quirn {

std::string RegFileText(const GameSettings& settings);

// What RegFileText was given; nothing when the text is not one of its own.
std::optional<GameSettings> ReadRegFile(std::string_view text);

}  // namespace quirn
