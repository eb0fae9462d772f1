#include "logedit/playerlist.h"

#include <algorithm>
#include <iterator>

#include "platform/text.h"

namespace quirn {

namespace {

uint64_t StartOf(std::string_view name) {
    uint64_t start = 0;
    for (size_t i = 0; i < 8; ++i) {
        const char c = i < name.size() ? FoldCase(name[i]) : '\0';
        start = start << 8 | static_cast<unsigned char>(c);
    }
    return start;
}

}  // namespace

bool PlayerList::Item::operator<(const Item& other) const {
    return start != other.start ? start < other.start : LessNoCase()(name, other.name);
}

void PlayerList::Fill(std::shared_ptr<const ParsedLog> log) {
    Clear();
    log_ = std::move(log);
    const std::vector<std::string_view>& players = log_->Players();
    if (players.size() < 2) return;
    items_.reserve(players.size());
    for (size_t i = 0; i < players.size(); ++i)
        items_.push_back({StartOf(players[i]), players[i], static_cast<uint32_t>(i + 1)});
    std::sort(items_.begin(), items_.end());
    selection_.Reset(items_.size());
}

std::string PlayerList::SelectedText() const {
    std::string text;
    selection_.ForEach([&](size_t item) {
        if (!text.empty()) text += "\r\n";
        text += items_[item].name;
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
    for (size_t i = 0; i < to.items_.size(); ++i) {
        while (next != moved.end() && *next < to.items_[i]) merged.push_back(*next++);
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
