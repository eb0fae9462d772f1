#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/control.h"
#include "platform/listselection.h"

namespace quirn {

// A list of any number of lines with extended selection. It holds no texts: it knows how many items there are, and asks
// for the text of those that somebody looks at. Indexes count from 0.
class VirtualList : public Control {
public:
    VirtualList(Parent parent, const Bounds& place, const std::string& nameForReaders);

    // What the items are. Asked at any time; an index is always below Count().
    std::function<std::string(size_t)> itemText;
    std::function<int32_t(size_t)> itemData;
    std::function<std::vector<std::pair<size_t, size_t>>(size_t)> itemMarks;  // what is marked: first byte and length
    // Another colour than the list's, on the background that is really drawn. Not asked for selected items, nor where
    // the player has chosen high contrast.
    std::function<std::optional<Color>(size_t item, Color background)> itemColor;

    size_t Count() const { return count_; }
    size_t LongestText() const { return longestText_; }  // bytes
    const ListSelection& Selection() const;
    std::optional<size_t> Current() const { return current_; }  // the item that the keyboard is at, once it is at one
    const std::string& EmptyText() const { return emptyText_; }
    // While onRightMouseDown is called: the item under the pointer, or by the keyboard the current one.
    std::optional<size_t> Pointed() const { return pointed_; }
    size_t TopIndex() const;  // the first visible item

    bool Shows(size_t item) const;  // it is in sight, the whole of it
    bool ShowsEnd() const { return count_ == 0 || Shows(count_ - 1); }

    // Other items: nothing is selected, none is current, and the list is scrolled to its start. longestText: the most
    // bytes that an item has, for scrolling sideways.
    void SetCount(size_t count, size_t longestText);
    // More items behind the others, to so many in all; all else stays, also from where Shift goes on.
    void Grow(size_t count, size_t longestText);
    void SetEmptyText(const std::string& text);         // shown, grey, while there are no items
    void ItemsChanged();                                // itemText or itemColor says something else than before
    void SetSelection(const ListSelection& selection);  // of Count() items
    void Select(size_t item);                           // beside what is selected
    void SelectAll();
    void SetCurrent(std::optional<size_t> item);  // Shift goes on from there; scrolls nothing
    void SetTopIndex(size_t item);                // or as near to the top as the list's end lets it come

    // The selected items have gone, and the items behind them have moved up. The place of the list stays.
    void SelectionRemoved(size_t longestText);

    std::function<void()> onMove;  // the player has scrolled, or gone to another item
    std::function<void()> onDoubleClick;
    std::function<void()> onRightMouseDown;  // or the keyboard's key for the same

    void UserClicksItem(size_t item, bool shift, bool control);
    void UserScrolls(size_t top);
    void UserDoubleClicks();
    void UserPressesRightButton(std::optional<size_t> item = {});
    void WindowChangedSelection(std::optional<size_t> current);  // the window has done what UserClicksItem would
    void WindowScrolled();                                       // or what UserScrolls would

private:
    size_t count_ = 0;
    size_t longestText_ = 0;
    mutable ListSelection selection_;
    mutable bool selectionIsOld_ = false;  // the window knows a newer one; fetched when somebody asks
    std::optional<size_t> current_;
    std::optional<size_t> pointed_;
    std::string emptyText_;
    size_t topIndex_ = 0;  // while there is no window
};

}  // namespace quirn
