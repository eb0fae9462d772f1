#pragma once

#include <optional>
#include <string>

// Where the game is.
namespace quirn {

inline constexpr char kGameProgram[] = "subspace.exe";

// What a folder has of the game.
struct GamePlace {
    bool program = false;         // subspace.exe
    std::optional<size_t> zones;  // in favorite.lst; nothing when that cannot be read

    bool IsWhole() const { return program && zones; }
};

GamePlace LookForGame(const std::string& folder);

// The folder of a whole game: beside this program, in one of the usual places, or where a link in the Start menu leads.
// Only disks of this machine are looked at. An empty text when there is none.
std::string FindGame();

}  // namespace quirn
