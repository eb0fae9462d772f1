#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace quirn {

// Which items of a list are selected, for lists of millions: one bit each, and the rules of an extended selection.
// Indexes count from 0.
class ListSelection {
public:
    // Nothing selected, the anchor on the first item.
    void Reset(size_t itemCount);

    void Grow(size_t itemCount);  // more items, which are not selected

    size_t SelectedCount() const { return SelectedBefore(itemCount_); }
    size_t SelectedBefore(size_t item) const;
    bool IsSelected(size_t item) const { return (words_[item / 64] >> item % 64 & 1) != 0; }

    void Select(size_t item, bool selected);
    void SelectRange(size_t from, size_t to, bool selected);  // both ends included, in either order
    void SelectAll();
    void ClearAll() { Reset(itemCount_); }
    void Invert();

    // A click on an item, or the arrow keys' way to it. Alone it selects just this item; with Ctrl it turns this one
    // over; with Shift it selects from the anchor to here; with both it gives that range the anchor's state and leaves
    // the rest as it is. Without Shift the anchor moves here.
    void Click(size_t item, bool shift, bool ctrl);

    void SetAnchor(size_t item) { anchor_ = item; }

    // Calls the function with each selected item, in ascending order.
    template <class Function>
    void ForEach(Function function) const {
        for (size_t i = 0; i < words_.size(); ++i)
            for (uint64_t left = words_[i]; left != 0; left &= left - 1)
                function(i * 64 + static_cast<size_t>(std::countr_zero(left)));
    }

private:
    void ClearBehindEnd();

    size_t itemCount_ = 0;
    size_t anchor_ = 0;
    std::vector<uint64_t> words_;
};

}  // namespace quirn
