#include "logedit/logstatistics.h"

#include <xmmintrin.h>

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <cstring>
#include <utility>

#include "logedit/logscan.h"
#include "logedit/sse2.h"
#include "platform/text.h"

namespace quirn {

namespace {

// Without up to two numbers in brackets at its end: the bounty and what the kill brought.
std::string_view WithoutNumbers(std::string_view text) {
    for (int i = 0; i < 2 && text.ends_with(')'); ++i) {
        size_t digits = text.size() - 1;
        while (digits > 0 && text[digits - 1] >= '0' && text[digits - 1] <= '9') --digits;
        const bool isNumber = digits < text.size() - 1 && digits > 1 && text[digits - 1] == '(';
        if (!isNumber) break;
        text = text.substr(0, digits - 1);
    }
    return text;
}

// From the right; a loop of its own, since the system's search of memory may be slow for so few bytes.
size_t FindKilledBy(std::string_view line) {
    if (line.size() < kKilledBy.size()) return std::string_view::npos;
    for (size_t at = line.size() - kKilledBy.size() + 1; at-- > 0;)
        if (line[at] == kKilledBy[0] && std::memcmp(line.data() + at, kKilledBy.data(), kKilledBy.size()) == 0)
            return at;
    return std::string_view::npos;
}

// The memory is fetched while something else is done.
void Fetch(const void* place) {
    _mm_prefetch(static_cast<const char*>(place), _MM_HINT_T0);
}

// As much of a name as is compared at once, in upper case and filled up with zeros.
constexpr size_t kKeyBytes = 32;
struct Key {
    char bytes[kKeyBytes];

    bool operator==(const Key& other) const {
        const __m128i low = _mm_cmpeq_epi8(sse2::Load(bytes), sse2::Load(other.bytes));
        const __m128i high = _mm_cmpeq_epi8(sse2::Load(bytes + 16), sse2::Load(other.bytes + 16));
        return _mm_movemask_epi8(_mm_and_si128(low, high)) == 0xFFFF;
    }
};

// A name as it is looked up.
struct LookedUp {
    std::string_view name;
    Key key;
    uint32_t hash;
    size_t at = 0;  // the slot where it is looked for first
};

// The name must be a slice of a log's text, behind which there are readable bytes.
LookedUp LookUp(std::string_view name) {
    alignas(16) static constexpr std::array<unsigned char, 2 * kKeyBytes> kFirstBytes = [] {
        std::array<unsigned char, 2 * kKeyBytes> bytes{};
        std::fill_n(bytes.begin(), kKeyBytes, static_cast<unsigned char>(0xFF));
        return bytes;
    }();
    LookedUp found{name, {}, 0};
    const char* const mask =
        reinterpret_cast<const char*>(kFirstBytes.data()) + kKeyBytes - std::min(name.size(), kKeyBytes);
    uint64_t words[kKeyBytes / 8];
    for (size_t at = 0; at < kKeyBytes; at += 16) {
        const __m128i folded = FoldAny(sse2::Load(name.data() + at));
        _mm_storeu_si128(reinterpret_cast<__m128i*>(found.key.bytes + at),
                         _mm_and_si128(folded, sse2::Load(mask + at)));
    }
    std::memcpy(words, found.key.bytes, kKeyBytes);
    const uint64_t hash = (words[0] + 0x9E3779B97F4A7C15u) * (words[1] ^ 0xD1B54A32D192ED03u) ^
                          (words[2] + 0x8CB92BA72F3D8DD7u) * (words[3] ^ 0xEB44ACCAB455D165u);
    found.hash = static_cast<uint32_t>(hash >> 32 ^ hash >> 7);
    return found;
}

// All that is known of a player is in one line of the processor's cache.
struct alignas(64) Fought {
    Key key;
    std::string_view name;
    uint32_t kills = 0, deaths = 0;
    uint32_t first = UINT32_MAX, last = 0;  // lines

    void Saw(size_t line) {
        first = std::min(first, static_cast<uint32_t>(line));
        last = static_cast<uint32_t>(line);
    }
};

// Players by their names, numbered from 0 in the order in which they are added; letter case is left aside.
class Fighters {
public:
    const std::vector<Fought>& All() const { return all_; }
    // Before names are looked up: any of so many may be new.
    void MakeRoom(size_t count) {
        count += all_.size();
        if (count > all_.capacity()) all_.reserve(std::max(count, 2 * all_.capacity()));
        while (2 * count > slots_.size()) Grow();
    }

    // The first steps of a look, long before it: names are looked up many at once, since each would wait for the memory
    // by itself.
    void FetchSlot(LookedUp& name) const {
        name.at = First(name);
        Fetch(&slots_[name.at]);
    }
    void FetchPlayer(LookedUp& name) const {
        while (slots_[name.at].number != kFree && slots_[name.at].hash != name.hash) name.at = Next(name.at);
        if (slots_[name.at].number != kFree) Fetch(&all_[slots_[name.at].number]);
    }

    // Adds who is new. Its slot has been fetched.
    Fought& operator[](const LookedUp& name) {
        size_t at = name.at;
        for (; slots_[at].number != kFree; at = Next(at)) {
            Fought& player = all_[slots_[at].number];
            if (slots_[at].hash == name.hash && player.key == name.key && player.name.size() == name.name.size() &&
                (name.name.size() <= kKeyBytes || EqualNoCase(player.name, name.name)))
                return player;
        }
        slots_[at] = {name.hash, static_cast<uint32_t>(all_.size())};
        return all_.emplace_back(Fought{.key = name.key, .name = name.name});
    }

private:
    static constexpr size_t kFewSlots = 1024;
    static constexpr uint32_t kFree = UINT32_MAX;
    struct Slot {
        uint32_t hash = 0, number = kFree;
    };

    size_t First(const LookedUp& name) const { return name.hash & (slots_.size() - 1); }
    size_t Next(size_t at) const { return (at + 1) & (slots_.size() - 1); }

    void Grow() {
        const std::vector<Slot> old = std::exchange(slots_, std::vector<Slot>(4 * slots_.size()));
        for (const Slot& slot : old) {
            if (slot.number == kFree) continue;
            size_t at = slot.hash & (slots_.size() - 1);
            while (slots_[at].number != kFree) at = Next(at);
            slots_[at] = slot;
        }
    }

    std::vector<Fought> all_;
    std::vector<Slot> slots_ = std::vector<Slot>(kFewSlots);  // a power of two
};

class Counter {
public:
    explicit Counter(const ParsedLog& log) : log_(log) {
        fighters_.MakeRoom(log.Players().size());
        for (const std::string_view player : log.Players()) {
            LookedUp name = LookUp(player);
            fighters_.FetchSlot(name);
            fighters_[name];
        }
        spoken_.resize(log.Players().size());
    }

    void Count(size_t line) {
        const int32_t info = log_.Info(line);
        if (const uint32_t player = PlayerOf(info); player != 0) {
            Spoken& spoken = spoken_[player - 1];
            if (spoken.lines++ == 0) spoken.first = static_cast<uint32_t>(line);
            spoken.last = static_cast<uint32_t>(line);
        } else if (TypeOf(info) == kKill) {  // a player who quotes a kill has killed nobody
            Fetch(log_.Text() + log_.Offset(line));
            Fetch(log_.Text() + log_.Offset(line) + kUsualLine);
            kills_[killCount_++] = line;
            if (killCount_ == kAtOnce) CountKills();
        }
    }

    std::vector<PlayerStatistics> Take() {
        CountKills();
        std::vector<PlayerStatistics> found;
        found.reserve(fighters_.All().size());
        spoken_.resize(fighters_.All().size());
        for (size_t i = 0; i < spoken_.size(); ++i) {
            const Spoken& spoken = spoken_[i];
            const Fought& fought = fighters_.All()[i];
            if (spoken.lines + fought.kills + fought.deaths > 0)
                found.push_back({std::string(fought.name), spoken.lines, fought.kills, fought.deaths,
                                 std::min(spoken.first, fought.first), std::max(spoken.last, fought.last)});
        }
        return found;
    }

private:
    // By the players' numbers. Small, so that those of all stay in the cache.
    struct Spoken {
        uint32_t lines = 0;
        uint32_t first = UINT32_MAX, last = 0;
    };
    static constexpr size_t kAtOnce = 64;
    static constexpr size_t kUsualLine = 56;  // bytes; it may lie in two lines of the cache

    void CountKills() {
        struct Found {
            LookedUp victim, killer;
            size_t line;
        };
        std::array<Found, kAtOnce> found;
        size_t count = 0;
        fighters_.MakeRoom(2 * kAtOnce);
        for (size_t i = 0; i < killCount_; ++i) {
            const Kill kill = ReadKill(log_.Line(kills_[i]));
            if (kill.victim.empty() || kill.killer.empty()) continue;
            found[count] = {LookUp(kill.victim), LookUp(kill.killer), kills_[i]};
            fighters_.FetchSlot(found[count].victim);
            fighters_.FetchSlot(found[count].killer);
            ++count;
        }
        killCount_ = 0;
        for (size_t i = 0; i < count; ++i) {
            fighters_.FetchPlayer(found[i].victim);
            fighters_.FetchPlayer(found[i].killer);
        }
        for (size_t i = 0; i < count; ++i) {
            Fought& victim = fighters_[found[i].victim];
            ++victim.deaths;
            victim.Saw(found[i].line);
            Fought& killer = fighters_[found[i].killer];
            ++killer.kills;
            killer.Saw(found[i].line);
        }
    }

    const ParsedLog& log_;
    Fighters fighters_;  // first the log's players, by their numbers
    std::vector<Spoken> spoken_;
    std::array<size_t, kAtOnce> kills_{};  // lines
    size_t killCount_ = 0;
};

}  // namespace

Kill ReadKill(std::string_view line) {
    const size_t at = FindKilledBy(line);
    if (at == std::string_view::npos || at < 2) return {};
    return {Trim(WithoutNumbers(line.substr(2, at + 1 - 2))), Trim(line.substr(at + kKilledBy.size()))};
}

std::vector<PlayerStatistics> CountPlayers(const ParsedLog& log) {
    Counter counter(log);
    for (size_t line = 0; line < log.LineCount(); ++line) counter.Count(line);
    return counter.Take();
}

std::vector<PlayerStatistics> CountPlayers(const LinesOfLog& lines) {
    Counter counter(lines.log);
    for (size_t item = 0; item < lines.count; ++item) counter.Count(lines.lines[item]);
    return counter.Take();
}

}  // namespace quirn
