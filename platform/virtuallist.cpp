#include "platform/virtuallist.h"

#include <algorithm>

#include "platform/form.h"
#include "platform/native.h"

namespace quirn {

VirtualList::VirtualList(Parent parent, const Bounds& place, const std::string& nameForReaders)
    : Control(parent, native::kVirtualList, place, nameForReaders) {}

const ListSelection& VirtualList::Selection() const {
    if (selectionIsOld_ && window != nullptr) native::ReadSelection(*this, selection_);
    selectionIsOld_ = false;
    return selection_;
}

size_t VirtualList::TopIndex() const {
    return window != nullptr ? native::TopIndex(*this) : topIndex_;
}

void VirtualList::SetCount(size_t count, size_t longestText) {
    count_ = count;
    longestText_ = longestText;
    selection_.Reset(count);
    selectionIsOld_ = false;
    current_.reset();
    topIndex_ = 0;
    Changed(Aspect::Items);
}

void VirtualList::Grow(size_t count, size_t longestText) {
    if (count == count_) return;
    Selection();
    const bool inSight = ShowsEnd();
    count_ = count;
    longestText_ = longestText;
    selection_.Grow(count);
    if (window != nullptr) native::AddItems(*this, inSight);
}

void VirtualList::SetSelection(const ListSelection& selection) {
    selection_ = selection;
    selectionIsOld_ = false;
    Changed(Aspect::Selection);
}

void VirtualList::Select(size_t item) {
    Selection();
    selection_.Select(item, true);
    Changed(Aspect::Selection);
}

void VirtualList::SelectAll() {
    ListSelection all;
    all.Reset(count_);
    all.SelectAll();
    SetSelection(all);
}

void VirtualList::SetCurrent(std::optional<size_t> item) {
    Selection();
    current_ = item;
    if (item) selection_.SetAnchor(*item);
    Changed(Aspect::Value);
}

void VirtualList::SetTopIndex(size_t item) {
    topIndex_ = item;
    if (window != nullptr) native::SetTopIndex(*this, item);
}

bool VirtualList::Shows(size_t item) const {
    return window == nullptr || (item >= TopIndex() && item - TopIndex() < native::RowsInSight(*this));
}

void VirtualList::SelectionRemoved(size_t longestText) {
    const ListSelection& gone = Selection();
    const size_t left = count_ - gone.SelectedCount();
    const size_t top = TopIndex();
    const size_t newTop = top - gone.SelectedBefore(top);
    std::optional<size_t> newCurrent;
    if (current_ && left > 0) newCurrent = std::min(*current_ - gone.SelectedBefore(*current_), left - 1);
    SetCount(left, longestText);
    SetCurrent(newCurrent);
    SetTopIndex(newTop);
}

void VirtualList::SetEmptyText(const std::string& text) {
    if (text == emptyText_) return;
    emptyText_ = text;
    ItemsChanged();
}

void VirtualList::ItemsChanged() {
    Changed(Aspect::Colors);  // painted anew
}

void VirtualList::UserClicksItem(size_t item, bool shift, bool control) {
    Selection();
    selection_.Click(item, shift, control);
    current_ = item;
    Changed(Aspect::Selection);
    CallHandler(onMove);
}

void VirtualList::UserScrolls(size_t top) {
    SetTopIndex(top);
    CallHandler(onMove);
}

void VirtualList::UserDoubleClicks() {
    CallHandler(onDoubleClick);
}

void VirtualList::UserPressesRightButton(std::optional<size_t> item) {
    pointed_ = item;
    CallHandler(onRightMouseDown);
}

void VirtualList::WindowChangedSelection(std::optional<size_t> current) {
    selectionIsOld_ = true;
    current_ = current;
    CallHandler(onMove);
}

void VirtualList::WindowScrolled() {
    CallHandler(onMove);
}

}  // namespace quirn
