#include "platform/table.h"

#include <windows.h>

#include <commctrl.h>  // needs windows.h first

#include <algorithm>
#include <array>

#include "platform/win32/accessible.h"
#include "platform/win32/colors.h"
#include "platform/win32/kind.h"
#include "platform/win32/metrics.h"

// A list view without data, in its report view.
namespace quirn {

namespace win32 {

namespace {

// The list view tells of a selection piece by piece; this message comes when it is through.
constexpr UINT kSelectionChanged = WM_APP;

bool applies = false;  // what the list view tells is this program's doing

LRESULT Send(const Table& table, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
    return SendMessageA(WindowOf(table), message, wParam, lParam);
}

void SetState(const Table& table, std::optional<size_t> row, UINT state, UINT mask) {
    LVITEMA item{};
    item.state = state;
    item.stateMask = mask;
    Send(table, LVM_SETITEMSTATE, row ? *row : static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(&item));
}

Look TableLook(const Table& table) {
    DWORD style = WS_TABSTOP | LVS_REPORT | LVS_OWNERDATA | LVS_SHOWSELALWAYS;
    if (table.Style() == ListStyle::Single) style |= LVS_SINGLESEL;
    if (!table.onSort) style |= LVS_NOSORTHEADER;
    return {.className = WC_LISTVIEWA,
            .style = style,
            .extendedStyle = WS_EX_CLIENTEDGE,
            .commonClass = ICC_LISTVIEW_CLASSES};
}

void AddColumns(const Table& table) {
    for (size_t i = 0; i < table.Columns().size(); ++i) {
        const TableColumn& column = table.Columns()[i];
        LVCOLUMNA added{};
        added.mask = LVCF_TEXT | LVCF_FMT | LVCF_WIDTH;
        added.cx = ToPixels(column.width, DpiOf(table));
        added.pszText = const_cast<char*>(column.caption.c_str());
        if (column.alignment == Alignment::Right) added.fmt = LVCFMT_RIGHT;
        if (column.alignment == Alignment::Center) added.fmt = LVCFMT_CENTER;
        Send(table, LVM_INSERTCOLUMNA, i, reinterpret_cast<LPARAM>(&added));
    }
}

void PlaceColumns(const Table& table) {
    for (size_t i = 0; i < table.Columns().size(); ++i)
        Send(table, LVM_SETCOLUMNWIDTH, i, ToPixels(table.Columns()[i].width, DpiOf(table)));
}

// The player drags a column's edge, or the program has moved it: the same width in pixels is no other width.
void ReadColumnWidth(Table& table, int column) {
    const auto pixels = static_cast<int>(Send(table, LVM_GETCOLUMNWIDTH, static_cast<WPARAM>(column)));
    if (column < 0 || column >= static_cast<int>(table.Columns().size())) return;
    if (ToPixels(table.Columns()[static_cast<size_t>(column)].width, DpiOf(table)) != pixels)
        table.WindowSizedColumn(column, ToTwips(pixels, DpiOf(table)));
}

void ApplySortArrow(const Table& table) {
    const auto head = reinterpret_cast<HWND>(Send(table, LVM_GETHEADER));
    for (int i = 0; i < static_cast<int>(table.Columns().size()); ++i) {
        HDITEMA item{};
        item.mask = HDI_FORMAT;
        SendMessageA(head, HDM_GETITEMA, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(&item));
        item.fmt &= ~(HDF_SORTUP | HDF_SORTDOWN);
        if (table.SortColumn() == i) item.fmt |= table.SortsDown() ? HDF_SORTDOWN : HDF_SORTUP;
        SendMessageA(head, HDM_SETITEMA, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(&item));
    }
}

void ApplyColors(const Table& table) {
    const Color back = BackColorOf(table).value_or(GetSysColor(COLOR_WINDOW));
    Send(table, LVM_SETBKCOLOR, 0, static_cast<LPARAM>(back));
    Send(table, LVM_SETTEXTBKCOLOR, 0, static_cast<LPARAM>(back));
    Send(table, LVM_SETTEXTCOLOR, 0, static_cast<LPARAM>(ForeColorOf(table).value_or(GetSysColor(COLOR_WINDOWTEXT))));
}

void ApplySelection(const Table& table) {
    const ListSelection& selection = table.Selection();
    SetState(table, {}, 0, LVIS_SELECTED | LVIS_FOCUSED);
    // One at a time where only one can be selected: there the list view refuses all, also when all is one.
    if (table.Style() == ListStyle::Extended && table.RowCount() > 0 && selection.SelectedCount() == table.RowCount())
        SetState(table, {}, LVIS_SELECTED, LVIS_SELECTED);
    else selection.ForEach([&](size_t row) { SetState(table, row, LVIS_SELECTED, LVIS_SELECTED); });
    if (table.Current()) {
        SetState(table, table.Current(), LVIS_FOCUSED, LVIS_FOCUSED);
        Send(table, LVM_SETSELECTIONMARK, 0, static_cast<LPARAM>(*table.Current()));
    }
}

void Apply(const Table& table, Aspect aspect) {
    applies = true;
    if (aspect == Aspect::Items) {
        if (static_cast<size_t>(Send(table, LVM_GETITEMCOUNT)) != table.RowCount())
            Send(table, LVM_SETITEMCOUNT, table.RowCount(), LVSICF_NOSCROLL);
        InvalidateRect(WindowOf(table), nullptr, TRUE);
    }
    if (aspect == Aspect::Items || aspect == Aspect::Selection) ApplySelection(table);
    if (aspect == Aspect::Place) PlaceColumns(table);
    if (aspect == Aspect::Colors) ApplyColors(table);
    if (aspect == Aspect::Value) ApplySortArrow(table);
    applies = false;
}

void Fill(const Table& table) {
    // The tool tip with a text that its column cuts off comes on Windows only; Wine has none.
    DWORD style = LVS_EX_FULLROWSELECT | LVS_EX_LABELTIP | LVS_EX_DOUBLEBUFFER;
    if (table.isTicked) style |= LVS_EX_CHECKBOXES;
    Send(table, LVM_SETEXTENDEDLISTVIEWSTYLE, 0, static_cast<LPARAM>(style));
    if (table.isTicked) Send(table, LVM_SETCALLBACKMASK, LVIS_STATEIMAGEMASK);
    AddColumns(table);
    if (table.SortColumn()) ApplySortArrow(table);
    if (table.BackColor() || table.ForeColor()) ApplyColors(table);
    Apply(table, Aspect::Items);
}

void Answer(const Table& table, LVITEMA& item) {
    const auto row = static_cast<size_t>(item.iItem);
    if (item.iItem < 0 || row >= table.RowCount()) return;
    if ((item.mask & LVIF_TEXT) != 0 && item.cchTextMax > 0 && table.cellText) {
        const std::string text = table.cellText(row, item.iSubItem);
        const size_t length = std::min(text.size(), static_cast<size_t>(item.cchTextMax) - 1);
        *std::copy_n(text.data(), length, item.pszText) = '\0';
    }
    if ((item.mask & LVIF_STATE) != 0 && table.isTicked)
        item.state = INDEXTOSTATEIMAGEMASK(table.isTicked(row) ? 2U : 1U);
}

void DrawEmptyText(const Table& table, HDC device) {
    RECT area{}, head{};
    GetClientRect(WindowOf(table), &area);
    GetWindowRect(reinterpret_cast<HWND>(Send(table, LVM_GETHEADER)), &head);
    area.top += 2 * (head.bottom - head.top);
    const HGDIOBJ before = SelectObject(device, FontFor(table.FontUsed(), DpiOf(table)));
    SetTextColor(device, GetSysColor(COLOR_GRAYTEXT));
    SetBkMode(device, TRANSPARENT);
    DrawTextA(device, table.EmptyText().c_str(), -1, &area, DT_CENTER | DT_WORDBREAK | DT_NOPREFIX);
    SelectObject(device, before);
}

LRESULT StyleCell(const Table& table, NMLVCUSTOMDRAW& drawn) {
    const auto row = static_cast<size_t>(drawn.nmcd.dwItemSpec);
    if (row >= table.RowCount()) return CDRF_DODEFAULT;
    const CellStyle style = table.cellStyle(row, drawn.iSubItem);
    // One cell's style would be the next one's as well.
    drawn.clrText =
        style.grey ? GetSysColor(COLOR_GRAYTEXT) : ForeColorOf(table).value_or(GetSysColor(COLOR_WINDOWTEXT));
    Font font = table.FontUsed();
    font.bold |= style.bold;
    SelectObject(drawn.nmcd.hdc, FontFor(font, DpiOf(table)));
    return CDRF_NEWFONT;
}

void DrawBar(const Table& table, const NMLVCUSTOMDRAW& drawn) {
    const auto row = static_cast<size_t>(drawn.nmcd.dwItemSpec);
    const double part = row < table.RowCount() ? table.cellBar(row, drawn.iSubItem) : 0;
    if (part <= 0) return;
    RECT cell{LVIR_BOUNDS, drawn.iSubItem, 0, 0};
    Send(table, LVM_GETSUBITEMRECT, row, reinterpret_cast<LPARAM>(&cell));
    const int margin = ToPixels(45, DpiOf(table));
    const int height = std::max(ToPixels(30, DpiOf(table)), 1);
    const RECT bar{cell.left + margin, cell.bottom - height,
                   cell.left + margin + static_cast<int>((cell.right - cell.left - 2 * margin) * std::min(part, 1.0)),
                   cell.bottom};
    // Without the keyboard a selected row is light.
    const bool selected = Send(table, LVM_GETITEMSTATE, row, LVIS_SELECTED) != 0 && GetFocus() == WindowOf(table);
    FillRect(drawn.nmcd.hdc, &bar, GetSysColorBrush(selected ? COLOR_HIGHLIGHTTEXT : COLOR_HOTLIGHT));
}

LRESULT Draw(const Table& table, NMLVCUSTOMDRAW& drawn) {
    switch (drawn.nmcd.dwDrawStage) {
        case CDDS_PREPAINT:
            if (table.RowCount() == 0) return CDRF_NOTIFYPOSTPAINT;
            return table.cellStyle || table.cellBar ? CDRF_NOTIFYITEMDRAW : CDRF_DODEFAULT;
        case CDDS_POSTPAINT: DrawEmptyText(table, drawn.nmcd.hdc); return CDRF_DODEFAULT;
        case CDDS_ITEMPREPAINT: return CDRF_NOTIFYSUBITEMDRAW;
        case CDDS_ITEMPREPAINT | CDDS_SUBITEM: {
            const LRESULT styled = table.cellStyle ? StyleCell(table, drawn) : CDRF_DODEFAULT;
            return table.cellBar ? styled | CDRF_NOTIFYPOSTPAINT : styled;
        }
        case CDDS_ITEMPOSTPAINT | CDDS_SUBITEM:
            if (table.cellBar) DrawBar(table, drawn);
            return CDRF_DODEFAULT;
        default: return CDRF_DODEFAULT;
    }
}

LRESULT Find(const Table& table, unsigned flags, const std::string& text, int start) {
    if ((flags & (LVFI_STRING | LVFI_PARTIAL)) == 0) return -1;
    const auto found = table.FindRow(text, static_cast<size_t>(std::max(start, 0)));
    return found ? static_cast<LRESULT>(*found) : -1;
}

LRESULT Find(const Table& table, const NMLVFINDITEMA& wanted) {
    return wanted.lvfi.psz == nullptr ? -1 : Find(table, wanted.lvfi.flags, wanted.lvfi.psz, wanted.iStart);
}

// Wine asks for what is typed in this way also when the form wants the other.
LRESULT Find(const Table& table, const NMLVFINDITEMW& wanted) {
    std::array<char, 512> text{};
    if (wanted.lvfi.psz == nullptr ||
        WideCharToMultiByte(CP_ACP, 0, wanted.lvfi.psz, -1, text.data(), text.size(), nullptr, nullptr) == 0)
        return -1;
    return Find(table, wanted.lvfi.flags, text.data(), wanted.iStart);
}

void SelectionChanges(Table& table) {
    if (!applies && table.WindowChangesSelection()) PostMessageA(WindowOf(table), kSelectionChanged, 0, 0);
}

std::optional<LRESULT> TableNotify(Table& table, const NMHDR& header) {
    switch (header.code) {
        case LVN_GETDISPINFOA:
            Answer(table, const_cast<LVITEMA&>(reinterpret_cast<const NMLVDISPINFOA&>(header).item));
            return 0;
        case NM_CUSTOMDRAW:
            return Draw(table, const_cast<NMLVCUSTOMDRAW&>(reinterpret_cast<const NMLVCUSTOMDRAW&>(header)));
        case LVN_ITEMCHANGED:
        case LVN_ODSTATECHANGED: SelectionChanges(table); return 0;
        case LVN_ODFINDITEMA: return Find(table, reinterpret_cast<const NMLVFINDITEMA&>(header));
        case LVN_ODFINDITEMW: return Find(table, reinterpret_cast<const NMLVFINDITEMW&>(header));
        case LVN_COLUMNCLICK: table.UserClicksHead(reinterpret_cast<const NMLISTVIEW&>(header).iSubItem); return 0;
        case NM_DBLCLK:
            if (reinterpret_cast<const NMITEMACTIVATE&>(header).iItem >= 0) table.UserActivates();
            return 0;
        case NM_RCLICK: table.UserPressesRightButton(); return TRUE;
        default: return std::nullopt;
    }
}

// The row whose box to tick lies at a point of the window.
std::optional<size_t> BoxAt(const Table& table, LPARAM point) {
    LVHITTESTINFO hit{};
    hit.pt = {static_cast<short>(LOWORD(point)), static_cast<short>(HIWORD(point))};
    Send(table, LVM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit));
    if (hit.iItem < 0 || (hit.flags & LVHT_ONITEM) != LVHT_ONITEMSTATEICON) return {};
    return static_cast<size_t>(hit.iItem);
}

// The system would not tell of ticks that the list view does not hold itself.
class TableAnswers : public ItemsOfControl {
public:
    using ItemsOfControl::ItemsOfControl;

private:
    Table& Rows() const { return static_cast<Table&>(*ItsControl()); }
    size_t Count() const override { return Rows().RowCount(); }
    std::string Name(size_t row) const override { return Rows().cellText(row, 0); }
    std::string Description(size_t row) const override {
        std::string text;
        for (size_t i = 1; i < Rows().Columns().size(); ++i) {
            const std::string cell = Rows().cellText(row, static_cast<int>(i));
            if (cell.empty()) continue;
            if (!text.empty()) text += "; ";
            text.append(Rows().Columns()[i].caption).append(": ").append(cell);
        }
        return text;
    }
    std::optional<size_t> Current() const override { return Rows().Current(); }
    LONG State(size_t row) const override {
        LONG state = Rows().Selection().IsSelected(row) ? STATE_SYSTEM_SELECTED : 0;
        if (Rows().isTicked && Rows().isTicked(row)) state |= STATE_SYSTEM_CHECKED;
        return state;
    }
    RECT Place(size_t row) const override {
        RECT place{LVIR_BOUNDS, 0, 0, 0};
        Send(Rows(), LVM_GETITEMRECT, row, reinterpret_cast<LPARAM>(&place));
        return place;
    }
    std::optional<size_t> ItemAt(POINT place) const override {
        LVHITTESTINFO hit{};
        hit.pt = place;
        const LRESULT row = Send(Rows(), LVM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit));
        return row >= 0 ? std::optional(static_cast<size_t>(row)) : std::nullopt;
    }
    void SelectAlone(size_t row) const override {
        SetState(Rows(), {}, 0, LVIS_SELECTED);
        SetState(Rows(), row, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
    }
};

std::optional<LRESULT> TableMessage(Table& table, const Message& m) {
    switch (m.message) {
        case WM_GETOBJECT: return AnswerReader(&MakeAnswers<TableAnswers>, m);
        case kSelectionChanged: table.WindowChangedSelection(); return 0;
        case WM_KEYDOWN:
            if (table.UserPressesKey(static_cast<int>(m.wParam), Pressed(VK_CONTROL))) return 0;
            break;
        case WM_CHAR:
            if (m.wParam == ' ' && table.isTicked) return 0;
            break;
        // A list view without data ticks nothing by itself.
        case WM_LBUTTONDOWN:
        case WM_LBUTTONDBLCLK:
            if (!table.isTicked) break;
            if (const auto row = BoxAt(table, m.lParam)) {
                SetFocus(m.window);
                table.UserTicks(*row);
                return 0;
            }
            break;
        case WM_CONTEXTMENU:
            if (m.lParam == -1) table.UserPressesRightButton();  // by the keyboard
            return 0;
        // From the column heads, which are the list view's own window.
        case WM_NOTIFY: {
            const LRESULT result = Pass(m);
            const auto& header = *reinterpret_cast<const NMHEADERA*>(m.lParam);
            if (header.hdr.code == HDN_ITEMCHANGEDA || header.hdr.code == HDN_ITEMCHANGEDW)
                ReadColumnWidth(table, header.iItem);
            return result;
        }
        default: break;
    }
    return std::nullopt;
}

}  // namespace

}  // namespace win32

namespace native {

using namespace win32;

const Kind kTable{.look = For<TableLook>,
                  .fill = For<Fill>,
                  .apply = For<Apply>,
                  .notify = For<TableNotify>,
                  .message = For<TableMessage>,
                  .holdsTexts = true};

void ReadSelection(const Table& table, ListSelection& selection, std::optional<size_t>& current) {
    selection.Reset(table.RowCount());
    LRESULT row = -1;
    while ((row = Send(table, LVM_GETNEXTITEM, static_cast<WPARAM>(row), LVNI_SELECTED)) >= 0)
        selection.Select(static_cast<size_t>(row), true);
    const LRESULT focused = Send(table, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_FOCUSED);
    current = focused >= 0 ? std::optional(static_cast<size_t>(focused)) : std::nullopt;
}

void ScrollTo(Table& table, size_t row) {
    Send(table, LVM_ENSUREVISIBLE, row, FALSE);
}

}  // namespace native

}  // namespace quirn
