#include "logedit/playerlist.h"

#include <xmmintrin.h>

#include <algorithm>
#include <array>
#include <utility>

#include "platform/text.h"

namespace quirn {

namespace {

// The letter that an accented one is sorted with, from 0xC0 on in upper case; itself for what is no letter.
constexpr char kLetters[] = "AAAAAAACEEEEIIIIDNOOOOO\xD7OUUUUYTS";

// Where a character stands in the alphabet, from 1, as the system's sorted lists have it.
constexpr std::array<uint8_t, 256> MakeAlphabet() {
    std::array<uint8_t, 256> places{};
    constexpr int kDigits = 200, kFirstLetter = kDigits + 10;
    int others = 1;
    for (int c = 0; c < 256; ++c) {
        int letter = c;
        if (c >= 'a' && c <= 'z') letter = c - ('a' - 'A');
        else if (c == 0x9F || c == 0xFF) letter = 'Y';
        else if (c >= 0xC0 && c != 0xF7) letter = static_cast<unsigned char>(kLetters[c % 32]);
        else if (c == 0x8A || c == 0x9A) letter = 'S';
        else if (c == 0x8C || c == 0x9C) letter = 'O';
        else if (c == 0x8E || c == 0x9E) letter = 'Z';
        int place = 0;
        if (letter >= 'A' && letter <= 'Z') place = kFirstLetter + letter - 'A';
        else if (c >= '0' && c <= '9') place = kDigits + c - '0';
        else place = others++;
        places[static_cast<size_t>(c)] = static_cast<uint8_t>(place);
    }
    return places;
}
constexpr std::array<uint8_t, 256> kAlphabet = MakeAlphabet();
static_assert(kAlphabet[0xF7] < kAlphabet['0']);  // there is room for all the others

uint8_t PlaceOf(char c) {
    return kAlphabet[static_cast<unsigned char>(c)];
}

// The places of the first eight characters.
uint64_t StartOf(std::string_view name) {
    uint64_t start = 0;
    for (size_t i = 0; i < 8; ++i) start = start << 8 | (i < name.size() ? PlaceOf(name[i]) : 0u);
    return start;
}

}  // namespace

bool ComesBefore(std::string_view name, std::string_view other) {
    const auto [left, right] = std::mismatch(name.begin(), name.end(), other.begin(), other.end(),
                                             [](char c, char d) { return PlaceOf(c) == PlaceOf(d); });
    if (right == other.end()) return left == name.end() && LessNoCase()(name, other);
    return left == name.end() || PlaceOf(*left) < PlaceOf(*right);
}

bool PlayerList::Before::operator()(const Item& a, const Item& b) const {
    if (a.start != b.start) return a.start < b.start;
    return ComesBefore(names[a.number - 1], names[b.number - 1]);
}

void PlayerList::Fill(std::shared_ptr<const ParsedLog> log) {
    Clear();
    log_ = std::move(log);
    const std::vector<std::string_view>& players = log_->Players();
    if (players.size() < 2) return;
    items_.reserve(players.size());
    for (size_t i = 0; i < players.size(); ++i) {
        // The names lie all over the log.
        constexpr size_t kAhead = 16;
        if (i + kAhead < players.size()) _mm_prefetch(players[i + kAhead].data(), _MM_HINT_T0);
        items_.push_back({StartOf(players[i]), static_cast<uint32_t>(i + 1)});
    }
    std::sort(items_.begin(), items_.end(), Before{players});
    selection_.Reset(items_.size());
}

void PlayerList::Add(size_t known) {
    const std::vector<std::string_view>& players = log_->Players();
    PlayerList added;
    added.log_ = log_;
    for (size_t i = known; i < players.size(); ++i)
        added.items_.push_back({StartOf(players[i]), static_cast<uint32_t>(i + 1)});
    std::sort(added.items_.begin(), added.items_.end(), Before{players});
    added.selection_.Reset(added.items_.size());
    added.selection_.SelectAll();
    MovePlayers(added, *this);
}

std::string PlayerList::SelectedText() const {
    std::string text;
    const char* before = "";
    selection_.ForEach([&](size_t item) {
        text += std::exchange(before, "\r\n");
        text += Name(item);
    });
    return text;
}

void MovePlayers(PlayerList& from, PlayerList& to) {
    std::vector<PlayerList::Item> moved, left;
    for (size_t i = 0; i < from.items_.size(); ++i)
        (from.selection_.IsSelected(i) ? moved : left).push_back(from.items_[i]);
    if (moved.empty()) return;

    // Both lists are sorted already. Items that were selected in the other one stay so.
    std::vector<PlayerList::Item> merged;
    merged.reserve(to.items_.size() + moved.size());
    ListSelection selection;
    selection.Reset(to.items_.size() + moved.size());
    auto next = moved.begin();
    const PlayerList::Before before{from.log_->Players()};
    for (size_t i = 0; i < to.items_.size(); ++i) {
        while (next != moved.end() && before(*next, to.items_[i])) merged.push_back(*next++);
        selection.Select(merged.size(), to.selection_.IsSelected(i));
        merged.push_back(to.items_[i]);
    }
    merged.insert(merged.end(), next, moved.end());
    to.log_ = from.log_;
    to.items_ = std::move(merged);
    to.selection_ = std::move(selection);
    from.items_ = std::move(left);
    from.selection_.Reset(from.items_.size());
}

std::string IncludeCaption(const PlayerList& include) {
    return "Include : (" + std::to_string(include.Count()) + ")";
}

std::string ExcludeCaption(const PlayerList& exclude) {
    return "Exclude : (" + std::to_string(exclude.Count()) + ")";
}

}  // namespace quirn
