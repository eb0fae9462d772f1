#include "platform/listselection.h"

#include <algorithm>

namespace quirn {

void ListSelection::Reset(size_t itemCount) {
    itemCount_ = itemCount;
    anchor_ = 0;
    words_.assign((itemCount + 63) / 64, 0);
}

void ListSelection::Grow(size_t itemCount) {
    itemCount_ = itemCount;
    words_.resize((itemCount + 63) / 64);
}

size_t ListSelection::SelectedBefore(size_t item) const {
    size_t count = 0;
    for (size_t i = 0; i < item / 64; ++i) count += static_cast<size_t>(std::popcount(words_[i]));
    if (item % 64 != 0)
        count += static_cast<size_t>(std::popcount(words_[item / 64] & ((uint64_t{1} << item % 64) - 1)));
    return count;
}

void ListSelection::Select(size_t item, bool selected) {
    const uint64_t bit = uint64_t{1} << item % 64;
    if (selected) words_[item / 64] |= bit;
    else words_[item / 64] &= ~bit;
}

void ListSelection::SelectRange(size_t from, size_t to, bool selected) {
    if (from > to) std::swap(from, to);
    for (size_t i = from; i <= to;) {
        if (i % 64 == 0 && to - i >= 63) {
            words_[i / 64] = selected ? ~uint64_t{0} : 0;
            i += 64;
        } else {
            Select(i++, selected);
        }
    }
}

void ListSelection::SelectAll() {
    std::fill(words_.begin(), words_.end(), ~uint64_t{0});
    ClearBehindEnd();
}

void ListSelection::Invert() {
    for (uint64_t& word : words_) word = ~word;
    ClearBehindEnd();
}

void ListSelection::ClearBehindEnd() {
    if (itemCount_ % 64 != 0) words_.back() &= (uint64_t{1} << itemCount_ % 64) - 1;
}

void ListSelection::Click(size_t item, bool shift, bool ctrl) {
    if (!shift) {
        const bool selected = !ctrl || !IsSelected(item);
        if (!ctrl) ClearAll();
        Select(item, selected);
        anchor_ = item;
        return;
    }
    const bool selected = !ctrl || IsSelected(anchor_);
    if (!ctrl) std::fill(words_.begin(), words_.end(), 0);
    SelectRange(anchor_, item, selected);
}

}  // namespace quirn
