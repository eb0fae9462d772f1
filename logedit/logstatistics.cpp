#include "logedit/logstatistics.h"

#include <algorithm>
#include <unordered_map>

#include "logedit/logscan.h"
#include "platform/text.h"

namespace quirn {

namespace {

// Without up to two numbers in brackets at its end: the bounty and what the kill brought.
std::string_view WithoutNumbers(std::string_view text) {
    for (int i = 0; i < 2; ++i) {
        const size_t open = text.rfind('(');
        if (!text.ends_with(')') || open == std::string_view::npos || open == 0) break;
        const std::string_view number = text.substr(open + 1, text.size() - open - 2);
        if (number.empty() || number.find_first_not_of("0123456789") != std::string_view::npos) break;
        text = text.substr(0, open);
    }
    return text;
}

class Counter {
public:
    explicit Counter(const ParsedLog& log) : log_(log) {
        found_.reserve(log.Players().size());
        for (const std::string_view name : log.Players()) found_.push_back({.name = std::string(name)});
    }

    void Count(size_t line) {
        const int32_t info = log_.Info(line);
        if (const uint32_t player = PlayerOf(info); player != 0) {
            ++found_[player - 1].lines;
            Saw(found_[player - 1], line);
        }
        // A player who quotes a kill has killed nobody.
        if (TypeOf(info) != kKill || PlayerOf(info) != 0) return;
        const Kill kill = ReadKill(log_.Line(line));
        if (kill.victim.empty() || kill.killer.empty()) return;
        PlayerStatistics& victim = Player(kill.victim);
        ++victim.deaths;
        Saw(victim, line);
        PlayerStatistics& killer = Player(kill.killer);
        ++killer.kills;
        Saw(killer, line);
    }

    std::vector<PlayerStatistics> Take() {
        std::erase_if(found_, [](const PlayerStatistics& one) { return one.lines + one.kills + one.deaths == 0; });
        return std::move(found_);
    }

private:
    static void Saw(PlayerStatistics& player, size_t line) {
        if (player.last == 0) player.first = line;
        player.last = line + 1;  // until it is read: 0 is never
    }

    PlayerStatistics& Player(std::string_view name) {
        if (numbers_.empty())
            for (size_t i = 0; i < found_.size(); ++i) numbers_.emplace(FoldCase(found_[i].name), i);
        const auto [place, isNew] = numbers_.try_emplace(FoldCase(name), found_.size());
        if (isNew) found_.push_back({.name = std::string(name)});
        return found_[place->second];
    }

    const ParsedLog& log_;
    std::vector<PlayerStatistics> found_;  // first the log's players, by their numbers
    std::unordered_map<std::string, size_t> numbers_;
};

std::vector<PlayerStatistics> Finish(Counter& counter) {
    std::vector<PlayerStatistics> found = counter.Take();
    for (PlayerStatistics& player : found) --player.last;
    return found;
}

}  // namespace

Kill ReadKill(std::string_view line) {
    const size_t at = line.rfind(kKilledBy);
    if (at == std::string_view::npos || line.size() < 2 || at < 2) return {};
    return {Trim(WithoutNumbers(line.substr(2, at + 1 - 2))), Trim(line.substr(at + kKilledBy.size()))};
}

std::vector<PlayerStatistics> CountPlayers(const ParsedLog& log) {
    Counter counter(log);
    for (size_t line = 0; line < log.LineCount(); ++line) counter.Count(line);
    return Finish(counter);
}

std::vector<PlayerStatistics> CountPlayers(const LinesOfLog& lines) {
    Counter counter(lines.log);
    for (size_t item = 0; item < lines.count; ++item) counter.Count(lines.lines[item]);
    return Finish(counter);
}

}  // namespace quirn
