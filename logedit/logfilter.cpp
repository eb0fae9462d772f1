#include "logedit/logfilter.h"

#include <algorithm>

namespace quirn {

namespace {

// One byte for each player number: 1 when lines of that player are shown. Number 0, nobody, always is.
std::vector<uint8_t> ShownPlayers(const PlayerList& include, const PlayerList& exclude) {
    const bool byExclusion = include.Count() > exclude.Count();
    const PlayerList& shorter = byExclusion ? exclude : include;
    std::vector<uint8_t> shown(kMostPlayers + 1, byExclusion ? 1 : 0);
    for (size_t i = 0; i < shorter.Count(); ++i) shown[shorter.Number(i)] = byExclusion ? 0 : 1;
    shown[0] = 1;
    return shown;
}

// Each line's index is written, and counted only when it is shown: no branch that could be guessed wrong.
template <class IsShown>
size_t Collect(const ParsedLog& log, uint32_t* shown, IsShown isShown) {
    uint32_t* out = shown;
    uint32_t line = 0;
    for (const auto& block : log.Blocks()) {
        const auto end = static_cast<uint32_t>(std::min(log.LineCount(), line + kLinesPerBlock));
        for (const int32_t* info = block->info; line < end; ++line, ++info) {
            *out = line;
            out += isShown(*info);
        }
    }
    return static_cast<size_t>(out - shown);
}

}  // namespace

uint32_t BuildFilterMask(const FilterBoxValues& values) {
    uint32_t mask = 0;
    for (size_t i = 0; i < kFilterBoxCount; ++i)
        if (values[i] == 1) mask |= kFilterBoxes[i].type;
    return mask;
}

size_t FilterLines(const ParsedLog& log, uint32_t mask, const PlayerList& include, const PlayerList& exclude,
                   uint32_t* shown) {
    const uint32_t hidden = ~mask;
    if (exclude.Count() == 0)
        return Collect(log, shown, [hidden](int32_t info) { return (TypeOf(info) & hidden) == 0; });
    const std::vector<uint8_t> players = ShownPlayers(include, exclude);
    return Collect(log, shown, [hidden, table = players.data()](int32_t info) {
        return static_cast<uint8_t>((TypeOf(info) & hidden) == 0) & table[PlayerOf(info)];
    });
}

}  // namespace quirn
