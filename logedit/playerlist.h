#pragma once

#include <cstdint>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "logedit/parsedlog.h"
#include "platform/listselection.h"
#include "platform/text.h"

namespace quirn {

// As players are told apart: without regard to case.
using PlayerNames = std::set<std::string, LessNoCase>;

// As players are sorted: whatever is neither letter nor digit, digits, letters, without regard to case; accents count
// only between names that are the same without them.
bool ComesBefore(std::string_view name, std::string_view other);

// What lstInclude and lstExclude hold: player names in alphabetical order without regard to case, each with its player
// number as item data, and which of them are selected.
class PlayerList {
public:
    // All players of a log, none selected. Empty for a log with one player only: kept on purpose.
    void Fill(std::shared_ptr<const ParsedLog> log);
    void Clear() { *this = PlayerList(); }
    // The players behind the first so many, of a log that has grown. Who was selected stays so.
    void Add(size_t known);

    bool IsOf(const ParsedLog& log) const { return log_.get() == &log; }
    size_t Count() const { return items_.size(); }
    std::string_view Name(size_t item) const { return log_->Players()[Number(item) - 1]; }
    uint32_t Number(size_t item) const { return items_[item].number; }

    ListSelection& Selection() { return selection_; }
    const ListSelection& Selection() const { return selection_; }

    // The selected names, CR LF between them.
    std::string SelectedText() const;

private:
    friend void MovePlayers(PlayerList& from, PlayerList& to);

    struct Item {
        uint64_t start;  // of the name, as it is sorted; decides most comparisons
        uint32_t number;
    };
    // The names of a log in their order.
    struct Before {
        const std::vector<std::string_view>& names;
        bool operator()(const Item& a, const Item& b) const;
    };

    std::shared_ptr<const ParsedLog> log_;  // which the names are slices of
    std::vector<Item> items_;
    ListSelection selection_;
};

// Moves the selected items of one list into the other, where they are not selected.
void MovePlayers(PlayerList& from, PlayerList& to);

// "Include : (3)", "Exclude : (0)": the captions of the two lists' labels.
std::string IncludeCaption(const PlayerList& include);
std::string ExcludeCaption(const PlayerList& exclude);

}  // namespace quirn
