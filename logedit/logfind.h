#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "logedit/logview.h"

// Finding a text in the displayed log.
namespace quirn {

// The first item from start on whose text, tag included, contains the text without regard to letter case. An empty
// text stands in every item.
std::optional<size_t> FindItem(const LogView& view, std::string_view text, size_t start);

// What the search asks of the list on screen. Items count from 0.
struct FindList {
    std::function<size_t()> topIndex;                // the first visible item
    std::function<std::optional<size_t>()> current;  // the list index, nothing when there is none
    std::function<void(size_t item)> showHit;        // makes it top, current, and selected beside what is selected
};

// Searches from the top item on, or from the one below it when the top item is the current one. True when the list has
// moved to a hit. False means that "Cannot find" is to be shown: nothing was found, or the hit did not move the list
// (it is on the last screenful, or the top line itself). That a hit may be answered so is kept on purpose.
bool FindInLog(const LogView& view, std::string_view text, const FindList& list);

// The last item before an end whose displayed text holds the text; nothing when there is none.
std::optional<size_t> FindItemBefore(const LogView& view, std::string_view text, size_t end);

std::string CannotFindText(const std::string& text);

}  // namespace quirn
