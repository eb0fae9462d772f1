#include "platform/table.h"

#include <utility>

#include "platform/form.h"
#include "platform/native.h"
#include "platform/text.h"

namespace quirn {

Table::Table(Parent parent, const Bounds& place, const std::string& nameForReaders, std::vector<TableColumn> columns,
             ListStyle style)
    : Control(parent, native::kTable, place, nameForReaders), style_(style), columns_(std::move(columns)) {}

void Table::ReadSelection() const {
    if (selectionIsOld_ && window != nullptr) native::ReadSelection(*this, selection_, current_);
    selectionIsOld_ = false;
}

const ListSelection& Table::Selection() const {
    ReadSelection();
    return selection_;
}

std::optional<size_t> Table::Current() const {
    ReadSelection();
    return current_;
}

void Table::SetColumnWidth(int column, int width) {
    columns_[static_cast<size_t>(column)].width = width;
    Changed(Aspect::Place);
}

void Table::WindowSizedColumn(int column, int width) {
    columns_[static_cast<size_t>(column)].width = width;
}

void Table::SetRowCount(size_t count) {
    rowCount_ = count;
    selection_.Reset(count);
    current_.reset();
    selectionIsOld_ = false;
    Changed(Aspect::Items);
}

void Table::Refresh() {
    Changed(Aspect::Items);
}

void Table::SetEmptyText(const std::string& text) {
    emptyText_ = text;
    if (rowCount_ == 0) Changed(Aspect::Items);
}

void Table::SetSortArrow(int column, bool downwards) {
    sortColumn_ = column;
    sortsDown_ = downwards;
    Changed(Aspect::Value);
}

void Table::SetSelection(const ListSelection& selection) {
    ReadSelection();  // the current row
    selection_ = selection;
    Changed(Aspect::Selection);
}

void Table::SetCurrent(size_t row) {
    SetCurrentInPlace(row);
    ScrollTo(row);
}

void Table::SetCurrentInPlace(size_t row) {
    selection_.Reset(rowCount_);
    selection_.Click(row, false, false);
    current_ = row;
    selectionIsOld_ = false;
    Changed(Aspect::Selection);
}

void Table::ScrollTo(size_t row) {
    if (window != nullptr) native::ScrollTo(*this, row);
}

void Table::UserClicksRow(size_t row, bool shift, bool control) {
    ReadSelection();
    const bool extended = style_ == ListStyle::Extended;
    selection_.Click(row, extended && shift, extended && control);
    current_ = row;
    Changed(Aspect::Selection);
    CallHandler(onSelect);
}

void Table::UserActivates() {
    if (Current()) CallHandler(onActivate);
}

bool Table::UserPressesEnter() {
    if (!onActivate || !Current()) return false;
    UserActivates();
    return true;
}

void Table::UserClicksHead(int column) {
    if (onSort) CallHandler([&] { onSort(column); });
}

void Table::UserTicks(size_t row) {
    if (!isTicked || !onTick) return;
    CallHandler([&] {
        const bool ticked = !isTicked(row);
        const ListSelection rows = Selection();
        if (rows.IsSelected(row)) rows.ForEach([&](size_t selected) { onTick(selected, ticked); });
        else onTick(row, ticked);
    });
    Refresh();
}

void Table::UserPressesRightButton() {
    WindowChangedSelection();  // a menu is about what is selected now
    CallHandler(onRightMouseDown);
}

bool Table::UserPressesKey(int key, bool control) {
    bool swallowed = false;
    if (onKeyDown) CallHandler([&] { swallowed = onKeyDown(key, control); });
    if (swallowed || key != kKeySpace || control || !isTicked) return swallowed;
    if (const std::optional<size_t> row = Current()) UserTicks(*row);
    return true;
}

std::optional<size_t> Table::FindRow(std::string_view text, size_t from) const {
    for (size_t i = 0; i < rowCount_; ++i) {
        const size_t row = (from + i) % rowCount_;
        if (EqualNoCase(std::string_view(cellText(row, 0)).substr(0, text.size()), text)) return row;
    }
    return {};
}

bool Table::WindowChangesSelection() {
    selectionIsOld_ = true;
    return !std::exchange(changeIsUntold_, true);
}

void Table::WindowChangedSelection() {
    if (std::exchange(changeIsUntold_, false)) CallHandler(onSelect);
}

}  // namespace quirn
