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

// Of the players behind the first so many.
void HideAbsent(LineFilter& filter, const ParsedLog& log, size_t known) {
    for (size_t i = known; i < log.Players().size() && !filter.absent.empty(); ++i) {
        const auto hidden = filter.absent.find(log.Players()[i]);
        if (hidden == filter.absent.end()) continue;
        filter.absent.erase(hidden);
        if (filter.players.empty()) filter.players.assign(kMostPlayers + 1, 1);
        filter.players[i + 1] = 0;
    }
}

// Each line's index is written, and counted only when it is shown: no branch that could be guessed wrong.
template <class IsShown>
size_t Collect(const ParsedLog& log, uint32_t* shown, size_t from, IsShown isShown) {
    uint32_t* out = shown;
    auto line = static_cast<uint32_t>(from);
    for (size_t block = from / kLinesPerBlock; line < log.LineCount(); ++block) {
        const auto end = static_cast<uint32_t>(std::min(log.LineCount(), (block + 1) * kLinesPerBlock));
        for (const int32_t* info = log.Blocks()[block]->info + line % kLinesPerBlock; line < end; ++line, ++info) {
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

LineFilter MakeLineFilter(uint32_t mask, const PlayerList& include, const PlayerList& exclude) {
    return {mask, exclude.Count() == 0 ? std::vector<uint8_t>() : ShownPlayers(include, exclude)};
}

LineFilter MakeLineFilterFor(const ParsedLog& log, uint32_t mask, const PlayerList& include, const PlayerList& exclude,
                             const PlayerNames& awaited) {
    LineFilter filter{mask, {}, awaited};
    if (exclude.IsOf(log)) filter.players = MakeLineFilter(mask, include, exclude).players;
    else
        for (size_t i = 0; i < exclude.Count(); ++i) filter.absent.emplace(exclude.Name(i));
    HideAbsent(filter, log, 0);
    return filter;
}

LineFilter FilterForLog(const LineFilter& filter, const ParsedLog& before, const ParsedLog& log) {
    LineFilter other{filter.mask, {}, filter.absent};
    if (!filter.players.empty())
        for (size_t i = 0; i < before.Players().size(); ++i)
            if (filter.players[i + 1] == 0) other.absent.emplace(before.Players()[i]);
    AddPlayers(other, log, 0);
    return other;
}

void AddPlayers(LineFilter& filter, const ParsedLog& log, size_t known) {
    if (!filter.players.empty())
        for (size_t i = known; i < log.Players().size(); ++i) filter.players[i + 1] = 1;
    HideAbsent(filter, log, known);
}

size_t FilterLines(const ParsedLog& log, const LineFilter& filter, uint32_t* shown, size_t from) {
    const uint32_t hidden = ~filter.mask;
    if (filter.players.empty())
        return Collect(log, shown, from, [hidden](int32_t info) { return (TypeOf(info) & hidden) == 0; });
    return Collect(log, shown, from, [hidden, table = filter.players.data()](int32_t info) {
        return static_cast<uint8_t>((TypeOf(info) & hidden) == 0) & table[PlayerOf(info)];
    });
}

size_t CountLines(const ParsedLog& log, uint32_t mask) {
    size_t count = 0;
    for (size_t line = 0; line < log.LineCount();) {
        const int32_t* const info = log.Blocks()[line / kLinesPerBlock]->info;
        const size_t inBlock = std::min(log.LineCount() - line, kLinesPerBlock);
        for (size_t i = 0; i < inBlock; ++i) count += (TypeOf(info[i]) & ~mask) == 0;
        line += inBlock;
    }
    return count;
}

}  // namespace quirn
