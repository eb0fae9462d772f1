#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "logedit/parsedlog.h"
#include "logedit/playerlist.h"

// Which lines of a log are shown: by message type and by player.
namespace quirn {

// The check boxes chkFilters(0..10).
struct FilterBox {
    const char* caption;
    LogLineType type;
};
inline constexpr size_t kFilterBoxCount = 11;
inline constexpr FilterBox kFilterBoxes[kFilterBoxCount] = {
    {"Public Messages", kPublic},
    {"Private Messages", kPrivate},
    {"Team messages", kTeam},
    {"Freq messages", kFreq},
    {"Chat Channel 1 messages", kChannel1},
    {"Chat Channel 2 messages", kChannel2},
    {"Chat Channel 3 messages", kChannel3},
    {"Chat Channel 4 messages", kChannel4},
    {"Squad messages", kSquad},
    {"Kill messages", kKill},
    {"System messages", kSystem},
};

// LogFilterMask from the values of the check boxes: only 1, ticked, counts.
using FilterBoxValues = std::array<int, kFilterBoxCount>;
uint32_t BuildFilterMask(const FilterBoxValues& values);

// What the check boxes and the two lists say of a line, taken down, so that they may change before it is applied anew.
struct LineFilter {
    uint32_t mask = 0;               // a type outside of it hides a line
    std::vector<uint8_t> players{};  // by number, 1: his lines are shown; empty: all are
    PlayerNames absent{};            // players whose lines are hidden as soon as they say something
};

// A line with a player shows by the shorter of the two lists: not in the excluded ones, or in the included ones.
LineFilter MakeLineFilter(uint32_t mask, const PlayerList& include, const PlayerList& exclude);

// The same, and players who are awaited are hidden. The lists may still be those of another log, in which players have
// other numbers: then those who are excluded are known by their names, and everyone else is shown.
LineFilter MakeLineFilterFor(const ParsedLog& log, uint32_t mask, const PlayerList& include, const PlayerList& exclude,
                             const PlayerNames& awaited);

// What was applied to one log, for another: players are known by their names. Who is new is shown.
LineFilter FilterForLog(const LineFilter& filter, const ParsedLog& before, const ParsedLog& log);

// The log has players behind the first so many that it had.
void AddPlayers(LineFilter& filter, const ParsedLog& log, size_t known);

// Fills shown with the indexes of the lines that are shown, from one line on, ascending; there must be room for all of
// them. Returns their number.
size_t FilterLines(const ParsedLog& log, const LineFilter& filter, uint32_t* shown, size_t from = 0);

// How many lines are of no type outside the mask, whoever speaks.
size_t CountLines(const ParsedLog& log, uint32_t mask);

}  // namespace quirn
