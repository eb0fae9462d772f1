#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/controls.h"
#include "platform/listselection.h"

namespace quirn {

struct TableColumn {
    std::string caption;
    int width = 0;  // twips
    Alignment alignment = Alignment::Left;
};

struct CellStyle {
    bool bold = false;
    bool grey = false;
};

// Rows and columns, of any number of rows. It holds no texts and no ticks: it knows how many rows there are, and asks
// for those that somebody looks at. Sorting is its owner's business: a click on a column's head only says so. Rows and
// columns count from 0.
class Table : public Control {
public:
    // style Single: at most one row is selected. For tens of thousands of rows; many of them are selected slowly.
    Table(Parent parent, const Bounds& place, const std::string& nameForReaders, std::vector<TableColumn> columns,
          ListStyle style = ListStyle::Single);

    // What the cells show. Asked at any time; a row is always below RowCount().
    std::function<std::string(size_t row, int column)> cellText;
    std::function<CellStyle(size_t row, int column)> cellStyle;
    std::function<double(size_t row, int column)> cellBar;  // a bar below the text, as long as this part of the cell
    std::function<bool(size_t row)> isTicked;  // with it each row has a box to tick; set before the table has a window

    ListStyle Style() const { return style_; }
    const std::vector<TableColumn>& Columns() const { return columns_; }  // with the widths that the player gave them
    size_t RowCount() const { return rowCount_; }
    const std::string& EmptyText() const { return emptyText_; }
    std::optional<int> SortColumn() const { return sortColumn_; }  // the one with the arrow
    bool SortsDown() const { return sortsDown_; }
    const ListSelection& Selection() const;
    std::optional<size_t> Current() const;  // the row that the keyboard is at, once it is at one

    void SetColumnWidth(int column, int width);
    // Other rows, or the old ones in another order: nothing is selected, none is current. The place of the table stays
    // as far as there are rows.
    void SetRowCount(size_t count);
    void Refresh();                                     // the cells show something else
    void SetEmptyText(const std::string& text);         // shown, grey, while there are no rows
    void SetSortArrow(int column, bool downwards);      // from the greatest to the least
    void SetSelection(const ListSelection& selection);  // of RowCount() rows
    void SetCurrent(size_t row);                        // selects it alone, and scrolls to it
    void SetCurrentInPlace(size_t row);                 // the same without scrolling
    void ScrollTo(size_t row);                          // as little as brings it into sight

    std::function<void()> onSelect;          // the selection has changed, or the current row
    std::function<void()> onActivate;        // Enter or a double click on the current row
    std::function<void(int column)> onSort;  // a click on a column's head
    std::function<void(size_t row, bool ticked)>
        onTick;                              // by a click or the space bar; each row that is selected with it
    std::function<void()> onRightMouseDown;  // or the keyboard's key for the same
    std::function<bool(int key, bool control)> onKeyDown;  // by its virtual code; true swallows it

    void UserClicksRow(size_t row, bool shift, bool control);
    void UserActivates();
    void UserClicksHead(int column);
    void UserTicks(size_t row);
    void UserPressesRightButton();
    bool UserPressesKey(int key, bool control);
    bool UserPressesEnter() override;

    // The first row, from this one on and round the end, whose first cell starts with a text, upper or lower case.
    std::optional<size_t> FindRow(std::string_view text, size_t from) const;

    // For the back end: the window has changed it already.
    bool WindowChangesSelection();  // true: it calls WindowChangedSelection when all is done
    void WindowChangedSelection();
    void WindowSizedColumn(int column, int width);

private:
    void ReadSelection() const;

    ListStyle style_;
    std::vector<TableColumn> columns_;
    size_t rowCount_ = 0;
    std::string emptyText_;
    std::optional<int> sortColumn_;
    bool sortsDown_ = false;
    mutable ListSelection selection_;
    mutable std::optional<size_t> current_;
    mutable bool selectionIsOld_ = false;  // the window knows a newer one; fetched when somebody asks
    bool changeIsUntold_ = false;
};

}  // namespace quirn
