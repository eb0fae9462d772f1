#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "logedit/linesearch.h"
#include "logedit/parsedlog.h"

namespace quirn {

// What a log says of one player.
struct PlayerStatistics {
    std::string name;
    size_t lines = 0;  // that he speaks
    size_t kills = 0;
    size_t deaths = 0;
    size_t first = 0, last = 0;  // among all lines of the log, from 0: where he speaks, kills or dies

    double Ratio() const { return static_cast<double>(kills) / static_cast<double>(deaths > 0 ? deaths : 1); }
};

// Who stands in a kill line, "  Name(10)(230) killed by: Other": read from the right, since names may hold brackets.
struct Kill {
    std::string_view victim, killer;
};
Kill ReadKill(std::string_view line);

// Everybody who speaks, kills or dies, in no order. Players who only kill or die are found by their names, whatever
// their capitals.
std::vector<PlayerStatistics> CountPlayers(const ParsedLog& log);
std::vector<PlayerStatistics> CountPlayers(const LinesOfLog& lines);

}  // namespace quirn
