#include <windows.h>

#include <algorithm>
#include <string_view>
#include <vector>

#include "platform/win32/accessible.h"
#include "platform/win32/colors.h"
#include "platform/win32/kind.h"
#include "platform/win32/metrics.h"

// A list box without data, whose items this program draws: it keeps one byte for each item, so that a million of them
// is selected in milliseconds.
namespace quirn {

namespace win32 {

namespace {

LRESULT Send(const VirtualList& list, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
    return SendMessageA(WindowOf(list), message, wParam, lParam);
}

// While it lives the list paints nothing; its scroll place is the same afterwards unless another one is asked for.
class Unpainted {
public:
    explicit Unpainted(const VirtualList& list) : list_(list), top_(Send(list, LB_GETTOPINDEX)) {
        Send(list, WM_SETREDRAW, FALSE);
    }
    ~Unpainted() {
        Send(list_, LB_SETTOPINDEX, static_cast<WPARAM>(top_));
        Send(list_, WM_SETREDRAW, TRUE);
        InvalidateRect(WindowOf(list_), nullptr, TRUE);
    }
    void ScrollTo(LRESULT top) { top_ = top; }

private:
    const VirtualList& list_;
    LRESULT top_;
};

constexpr int kTextMargin = 2;  // pixels

// About as much as the longest text needs; when a line that is drawn turns out to be wider, the list learns it then.
int TextExtent(const VirtualList& list) {
    const TEXTMETRICA metrics = MetricsOf(FontFor(list.FontUsed(), DpiOf(list)));
    const int width = std::max<int>(metrics.tmAveCharWidth, 1);
    constexpr int kWidest = 1 << 26;  // pixels; coordinates end at twice that
    const auto characters = static_cast<int>(std::min<size_t>(list.LongestText(), kWidest / width));
    return characters * width + 2 * kTextMargin;
}

void ApplySelected(const VirtualList& list) {
    const ListSelection& selection = list.Selection();
    const size_t count = selection.SelectedCount();
    const bool all = count > 0 && count == list.Count();
    // It goes over all items one by one, which is worth a look first.
    if (all || Send(list, LB_GETSELCOUNT) > 0) Send(list, LB_SETSEL, all, -1);
    if (count == 0 || all) return;
    // There may be 200,000 rows of them: on the shortest way to the list box.
    const HWND window = WindowOf(list);
    const WNDPROC procedure = OwnProcedure(window);
    size_t first = 0, next = 0;  // of the items in a row that are selected
    const auto finishRow = [&] {
        if (next > first) CallWindowProcA(procedure, window, LB_SELITEMRANGEEX, first, static_cast<LPARAM>(next - 1));
    };
    selection.ForEach([&](size_t item) {
        if (item != next) {
            finishRow();
            first = item;
        }
        next = item + 1;
    });
    finishRow();
}

void ApplyCurrent(const VirtualList& list) {
    if (!list.Current()) return;
    Send(list, LB_SETCARETINDEX, *list.Current(), TRUE);
    Send(list, LB_SETANCHORINDEX, *list.Current());
}

// A translation between ANSI and Unicode on a text's way to another program may have no more room than this.
constexpr size_t kLongestAnswer = 511;

std::string AnswerText(const VirtualList& list, WPARAM item) {
    std::string text = list.itemText(item);
    if (text.size() > kLongestAnswer) text.resize(kLongestAnswer);
    return text;
}

// The message has only 16 bits for the place; the scroll bar knows it in full.
void ScrollToThumb(const VirtualList& list) {
    SCROLLINFO info{};
    info.cbSize = sizeof(info);
    info.fMask = SIF_TRACKPOS;
    if (GetScrollInfo(WindowOf(list), SB_VERT, &info)) Send(list, LB_SETTOPINDEX, static_cast<WPARAM>(info.nTrackPos));
}

// Piece by piece, since no drawing function takes a line of any length; only pieces in sight are drawn. Returns where
// the last one measured ends.
int DrawLine(HDC device, int x, int y, const RECT& area, std::string_view text) {
    constexpr size_t kPiece = 1024;
    RECT clip{};
    GetClipBox(device, &clip);
    while (!text.empty() && x < clip.right) {
        const std::string_view piece = text.substr(0, kPiece);
        text.remove_prefix(piece.size());
        SIZE size{};
        const auto length = static_cast<int>(piece.size());
        GetTextExtentPoint32A(device, piece.data(), length, &size);
        if (x + size.cx > clip.left)
            ExtTextOutA(device, x, y, ETO_CLIPPED, &area, piece.data(), static_cast<UINT>(length), nullptr);
        x += size.cx;
    }
    return x;
}

Look ListLook(const VirtualList&) {
    return {.className = "LISTBOX",
            .style = WS_TABSTOP | WS_VSCROLL | WS_HSCROLL | LBS_NOTIFY | LBS_NODATA | LBS_OWNERDRAWFIXED |
                     LBS_EXTENDEDSEL | LBS_NOINTEGRALHEIGHT,
            .extendedStyle = WS_EX_CLIENTEDGE};
}

void Prepare(const VirtualList& list) {
    // The list box has read its styles. Those who ask it for texts look at them too, and would take a list without
    // strings for one without texts, as the system does on a text's way to another program.
    const HWND window = WindowOf(list);
    SetWindowLongPtrA(window, GWL_STYLE, GetWindowLongPtrA(window, GWL_STYLE) | LBS_HASSTRINGS);
}

void ApplyItems(const VirtualList& list) {
    Unpainted unpainted(list);
    Send(list, LB_RESETCONTENT);
    if (list.Count() > 0) Send(list, LB_SETCOUNT, list.Count());
    Send(list, LB_SETHORIZONTALEXTENT, static_cast<WPARAM>(TextExtent(list)));
    unpainted.ScrollTo(0);
}

void Apply(const VirtualList& list, Aspect aspect) {
    if (aspect != Aspect::Items && aspect != Aspect::Selection && aspect != Aspect::Value) return;
    if (aspect == Aspect::Items) ApplyItems(list);
    const Unpainted unpainted(list);
    // In a list that was filled anew nothing is selected.
    if (aspect == Aspect::Selection || (aspect == Aspect::Items && list.Selection().SelectedCount() > 0))
        ApplySelected(list);
    ApplyCurrent(list);
}

// Nothing says that a list box with a new count keeps what is selected, where the keyboard is, from where Shift goes on
// or how far it is scrolled, and Windows' own goes back to its start; Wine's keeps it all.
void ApplyNewItems(const VirtualList& list, bool inSight) {
    const HWND window = WindowOf(list);
    const LRESULT top = Send(list, LB_GETTOPINDEX);
    const LRESULT caret = Send(list, LB_GETCARETINDEX);
    const LRESULT anchor = Send(list, LB_GETANCHORINDEX);
    const int left = GetScrollPos(window, SB_HORZ);
    Send(list, WM_SETREDRAW, FALSE);
    Send(list, LB_SETCOUNT, list.Count());
    Send(list, LB_SETHORIZONTALEXTENT, static_cast<WPARAM>(TextExtent(list)));
    ApplySelected(list);
    if (list.Current() && caret >= 0) Send(list, LB_SETCARETINDEX, static_cast<WPARAM>(caret), TRUE);
    if (list.Current() && anchor >= 0) Send(list, LB_SETANCHORINDEX, static_cast<WPARAM>(anchor));
    Send(list, LB_SETTOPINDEX, static_cast<WPARAM>(top));
    if (GetScrollPos(window, SB_HORZ) != left) Send(list, WM_HSCROLL, MAKEWPARAM(SB_THUMBPOSITION, left), 0);
    Send(list, WM_SETREDRAW, TRUE);
    if (inSight || Send(list, LB_GETTOPINDEX) != top) InvalidateRect(window, nullptr, TRUE);
}

void Fill(const VirtualList& list) {
    Prepare(list);
    Apply(list, Aspect::Items);
}

void SetListFont(const VirtualList& list, HFONT font) {
    if (reinterpret_cast<HFONT>(Send(list, WM_GETFONT)) == font) return;
    const Unpainted unpainted(list);
    Send(list, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
    Send(list, LB_SETITEMHEIGHT, 0, MetricsOf(font).tmHeight);
    Send(list, LB_SETHORIZONTALEXTENT, static_cast<WPARAM>(TextExtent(list)));
}

// The list box's own message for this knows 16 bits only.
std::optional<size_t> ItemAt(const VirtualList& list, LONG y) {
    const LRESULT height = std::max<LRESULT>(Send(list, LB_GETITEMHEIGHT), 1);
    const auto item = static_cast<size_t>(Send(list, LB_GETTOPINDEX) + y / height);
    return y >= 0 && item < list.Count() ? std::optional(item) : std::nullopt;
}

// Draws marked pieces of a text again, in colours that stand out in every scheme. Only the start of a very long line is
// looked at.
void DrawMarks(const VirtualList& list, const DRAWITEMSTRUCT& item, std::string_view text) {
    constexpr size_t kLookedAt = 4096;
    SetTextColor(item.hDC, GetSysColor(COLOR_HIGHLIGHTTEXT));
    SetBkColor(item.hDC, GetSysColor(COLOR_HIGHLIGHT));
    for (const auto& [first, length] : list.itemMarks(item.itemID)) {
        if (first + length > std::min(text.size(), kLookedAt)) continue;
        SIZE before{}, marked{};
        GetTextExtentPoint32A(item.hDC, text.data(), static_cast<int>(first), &before);
        GetTextExtentPoint32A(item.hDC, text.data() + first, static_cast<int>(length), &marked);
        const int left = item.rcItem.left + kTextMargin + before.cx;
        const RECT place{left, item.rcItem.top, left + marked.cx, item.rcItem.bottom};
        ExtTextOutA(item.hDC, left, item.rcItem.top, ETO_OPAQUE | ETO_CLIPPED, &place, text.data() + first,
                    static_cast<UINT>(length), nullptr);
    }
}

std::optional<Color> ItemColor(const VirtualList& list, size_t item, Color background) {
    std::optional<Color> own;
    if (list.itemColor && item < list.Count() && !IsHighContrast()) own = list.itemColor(item, background);
    return own ? own : ForeColorOf(list);
}

void DrawListItem(const VirtualList& list, const DRAWITEMSTRUCT& item) {
    const bool selected = (item.itemState & ODS_SELECTED) != 0;
    const Color back = BackColorOf(list).value_or(GetSysColor(COLOR_WINDOW));
    const Color fore = ItemColor(list, item.itemID, back).value_or(GetSysColor(COLOR_WINDOWTEXT));
    SetTextColor(item.hDC, selected ? GetSysColor(COLOR_HIGHLIGHTTEXT) : fore);
    SetBkColor(item.hDC, selected ? GetSysColor(COLOR_HIGHLIGHT) : back);
    ExtTextOutA(item.hDC, 0, 0, ETO_OPAQUE, &item.rcItem, nullptr, 0, nullptr);
    SetBkMode(item.hDC, TRANSPARENT);
    if (item.itemID < list.Count()) {
        const std::string text = list.itemText(item.itemID);
        const int end = DrawLine(item.hDC, item.rcItem.left + kTextMargin, item.rcItem.top, item.rcItem, text);
        if (list.itemMarks && !selected) DrawMarks(list, item, text);
        // Later, because it may paint the list anew.
        const int extent = end + kTextMargin - item.rcItem.left;
        if (extent > Send(list, LB_GETHORIZONTALEXTENT))
            PostMessageA(WindowOf(list), LB_SETHORIZONTALEXTENT, static_cast<WPARAM>(extent), 0);
    }
    if ((item.itemState & ODS_FOCUS) != 0) DrawFocusRect(item.hDC, &item.rcItem);
}

void ListCommand(VirtualList& list, WORD code) {
    if (code == LBN_DBLCLK) list.UserDoubleClicks();
    if (code != LBN_SELCHANGE) return;
    const LRESULT caret = Send(list, LB_GETCARETINDEX);
    const bool there = caret >= 0 && static_cast<size_t>(caret) < list.Count();
    list.WindowChangedSelection(there ? std::optional(static_cast<size_t>(caret)) : std::nullopt);
}

// Only where the list has been painted: letters drawn twice on the same ground grow bold.
void DrawEmptyText(const VirtualList& list, HRGN painted) {
    const HWND window = WindowOf(list);
    RECT area{};
    GetClientRect(window, &area);
    area.top += (area.bottom - area.top) / 3;
    const HDC device = GetDC(window);
    SelectClipRgn(device, painted);
    const HGDIOBJ before = SelectObject(device, FontFor({}, DpiOf(list)));
    SetTextColor(device, GetSysColor(COLOR_GRAYTEXT));
    SetBkMode(device, TRANSPARENT);
    DrawTextA(device, list.EmptyText().c_str(), -1, &area, DT_CENTER | DT_WORDBREAK | DT_NOPREFIX);
    SelectObject(device, before);
    ReleaseDC(window, device);
}

class ListAnswers : public ItemsOfControl {
public:
    using ItemsOfControl::ItemsOfControl;

private:
    VirtualList& List() const { return static_cast<VirtualList&>(*ItsControl()); }
    size_t Count() const override { return List().Count(); }
    std::string Name(size_t item) const override { return List().itemText(item); }
    std::optional<size_t> Current() const override { return List().Current(); }
    LONG State(size_t item) const override {
        return STATE_SYSTEM_EXTSELECTABLE | (List().Selection().IsSelected(item) ? STATE_SYSTEM_SELECTED : 0);
    }
    RECT Place(size_t item) const override {
        RECT place{};
        Send(List(), LB_GETITEMRECT, item, reinterpret_cast<LPARAM>(&place));
        return place;
    }
    std::optional<size_t> ItemAt(POINT place) const override { return win32::ItemAt(List(), place.y); }
    void SelectAlone(size_t item) const override {
        Send(List(), LB_SETSEL, FALSE, -1);
        Send(List(), LB_SETSEL, TRUE, static_cast<LPARAM>(item));
        Send(List(), LB_SETCARETINDEX, item, FALSE);
        List().WindowChangedSelection(item);
    }
};

std::optional<LRESULT> ListMessage(VirtualList& list, const Message& m) {
    const WPARAM wParam = m.wParam;
    switch (m.message) {
        case WM_GETOBJECT: return AnswerReader(&MakeAnswers<ListAnswers>, m);
        case LB_GETTEXT: {
            if (wParam >= list.Count()) return LB_ERR;
            const std::string text = AnswerText(list, wParam);
            std::copy_n(text.c_str(), text.size() + 1, reinterpret_cast<char*>(m.lParam));
            return static_cast<LRESULT>(text.size());
        }
        case LB_GETTEXTLEN:
            if (wParam >= list.Count()) return LB_ERR;
            return static_cast<LRESULT>(AnswerText(list, wParam).size());
        case LB_GETITEMDATA:
            if (wParam >= list.Count()) return LB_ERR;
            return list.itemData ? list.itemData(wParam) : 0;
        case WM_VSCROLL:
        case WM_MOUSEWHEEL:
        case WM_KEYDOWN: {
            const bool thumb =
                m.message == WM_VSCROLL && (LOWORD(wParam) == SB_THUMBTRACK || LOWORD(wParam) == SB_THUMBPOSITION);
            if (thumb) ScrollToThumb(list);
            const LRESULT result = thumb ? 0 : Pass(m);
            list.WindowScrolled();
            return result;
        }
        case WM_RBUTTONDOWN: list.UserPressesRightButton(ItemAt(list, static_cast<short>(HIWORD(m.lParam)))); return 0;
        case WM_CONTEXTMENU:
            if (m.lParam == -1) list.UserPressesRightButton(list.Current());  // by the keyboard
            return 0;
        case WM_SIZE:
            if (list.Count() == 0) InvalidateRect(WindowOf(list), nullptr, TRUE);  // its text is in the middle
            return std::nullopt;
        case WM_PAINT: {
            if (list.Count() > 0 || list.EmptyText().empty()) return std::nullopt;
            const HRGN painted = CreateRectRgn(0, 0, 0, 0);
            GetUpdateRgn(WindowOf(list), painted, FALSE);
            const LRESULT result = Pass(m);
            DrawEmptyText(list, painted);
            DeleteObject(painted);
            return result;
        }
        default: return std::nullopt;
    }
}

}  // namespace

}  // namespace win32

namespace native {

using namespace win32;

const Kind kVirtualList{.look = For<ListLook>,
                        .fill = For<Fill>,
                        .apply = For<Apply>,
                        .setFont = For<SetListFont>,
                        .command = For<ListCommand>,
                        .draw = For<DrawListItem>,
                        .message = For<ListMessage>,
                        .holdsTexts = true};

void ReadSelection(const VirtualList& list, ListSelection& selection) {
    selection.Reset(list.Count());
    const LRESULT count = Send(list, LB_GETSELCOUNT);
    if (count <= 0) return;
    if (static_cast<size_t>(count) == list.Count()) {
        selection.SelectAll();
        return;
    }
    std::vector<int> items(static_cast<size_t>(count));
    Send(list, LB_GETSELITEMS, items.size(), reinterpret_cast<LPARAM>(items.data()));
    for (const int item : items) selection.Select(static_cast<size_t>(item), true);
}

size_t TopIndex(const VirtualList& list) {
    return static_cast<size_t>(Send(list, LB_GETTOPINDEX));
}

size_t RowsInSight(const VirtualList& list) {
    RECT area{};
    GetClientRect(WindowOf(list), &area);
    return static_cast<size_t>(area.bottom / std::max<LRESULT>(Send(list, LB_GETITEMHEIGHT), 1));
}

void SetTopIndex(VirtualList& list, size_t item) {
    Send(list, LB_SETTOPINDEX, item);
}

void AddItems(VirtualList& list, bool inSight) {
    ApplyNewItems(list, inSight);
}

}  // namespace native

}  // namespace quirn
