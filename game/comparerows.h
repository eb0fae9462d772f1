#pragma once

#include <vector>

#include "game/gamestate.h"
#include "profile/compare.h"

// Rows of a comparison as parts of the game's state.
namespace quirn {

// A profile with the content of its wave messages, as a side to compare. Nothing is asked or shown.
CompareSide SideOf(const std::string& caption, const Profile& profile);

// A state of the game. Of files that it does not hold, the side says nothing.
CompareSide SideOf(const std::string& caption, const GameState& state);

// The game as it is now, for a profile to be compared with: its wave messages have their paths.
CompareSide GameSide(const std::string& gameFolder);

struct RowsPlan {
    GameState state;
    std::vector<RuntimeError> errors;
};

// What these rows of a profile make of the game: their settings as a transfer writes them, their wave messages, and
// their names in the ignore list or out of it, whose other lines stay as they are. Nothing is changed. What cannot be
// planned is left out, with an error.
RowsPlan PlanRows(const std::vector<CompareRow>& rows, const GameSettings& now, const Profile& profile,
                  const std::string& gameFolder);

// What brings these rows back to a former state of the game: byte for byte, but of an ignore list of which not all
// names are among the rows only these names.
RowsPlan PlanRowsBack(const std::vector<CompareRow>& rows, bool allNames, const GameState& former,
                      const std::string& gameFolder);

// The part of a state that the rows are about. One name stands for the whole ignore list.
GameState PartOf(const GameState& state, const std::vector<CompareRow>& rows);

}  // namespace quirn
