#include <windows.h>

#include "platform/win32/kind.h"
#include "platform/win32/metrics.h"

// List boxes and lists that drop down.
namespace quirn {

namespace win32 {

namespace {

constexpr DWORD kListStyle = WS_TABSTOP | WS_VSCROLL;

LRESULT Send(const Control& list, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
    return SendMessageA(WindowOf(list), message, wParam, lParam);
}

void AddItems(const Control& list, UINT add, const std::vector<std::string>& items) {
    for (const std::string& item : items) Send(list, add, 0, reinterpret_cast<LPARAM>(item.c_str()));
}

Look ListBoxLook(const ListBox& list) {
    const bool extended = list.Style() == ListStyle::Extended;
    return {
        .className = "LISTBOX",
        .style = kListStyle | LBS_NOTIFY | LBS_NOINTEGRALHEIGHT | static_cast<DWORD>(extended ? LBS_EXTENDEDSEL : 0),
        .extendedStyle = WS_EX_CLIENTEDGE,
        .liesOver = true};
}

void FillListBox(const ListBox& list) {
    Send(list, WM_SETREDRAW, FALSE);
    const LRESULT count = Send(list, LB_GETCOUNT);
    const LRESULT top = Send(list, LB_GETTOPINDEX);
    Send(list, LB_RESETCONTENT);
    AddItems(list, LB_ADDSTRING, list.Items());
    // What was in sight stays there; an item that was added comes into sight.
    const bool added = static_cast<LRESULT>(list.Items().size()) == count + 1;
    if (count > 0) Send(list, LB_SETTOPINDEX, static_cast<WPARAM>(added ? count : top));
    Send(list, WM_SETREDRAW, TRUE);
    InvalidateRect(WindowOf(list), nullptr, TRUE);
}

void SelectInListBox(const ListBox& list) {
    if (list.Style() == ListStyle::Single) {
        // Also when it is selected already: this scrolls to it.
        Send(list, LB_SETCURSEL, static_cast<WPARAM>(list.ListIndex()));
        return;
    }
    for (int i = 0; i < static_cast<int>(list.Items().size()); ++i)
        if ((Send(list, LB_GETSEL, static_cast<WPARAM>(i)) > 0) != list.IsSelected(i))
            Send(list, LB_SETSEL, list.IsSelected(i), i);
}

// A strip lay under a list that has gone. As a whole: the border of a theme comes out different when only a few rows of
// it are painted.
void RepaintStrips(const Container& holder) {
    for (const Control* control : holder.Controls())
        if (!control->Pages().empty() && control->window != nullptr) InvalidateRect(WindowOf(*control), nullptr, FALSE);
}

void ApplyListBox(const ListBox& list, Aspect aspect) {
    if (aspect == Aspect::Items) FillListBox(list);
    if (aspect == Aspect::Items || aspect == Aspect::Selection) SelectInListBox(list);
    if (aspect == Aspect::Visible && !list.Visible()) RepaintStrips(list.Holder());
}

void NewListBox(const ListBox& list) {
    ApplyListBox(list, Aspect::Items);
}

void ListBoxCommand(ListBox& list, WORD code) {
    if (code == LBN_DBLCLK) list.UserDoubleClicks(static_cast<int>(Send(list, LB_GETCARETINDEX)));
    if (code != LBN_SELCHANGE) return;
    std::vector<int> selected;
    for (int i = 0; i < static_cast<int>(list.Items().size()); ++i)
        if (Send(list, LB_GETSEL, static_cast<WPARAM>(i)) > 0) selected.push_back(i);
    list.UserSelects(selected);
}

std::optional<LRESULT> ListBoxMessage(ListBox& list, const Message& m) {
    switch (m.message) {
        case WM_GETDLGCODE: return Pass(m) | DLGC_WANTARROWS | (list.onKeyPress ? DLGC_WANTCHARS : 0);
        case WM_KEYDOWN:
            if (list.UserPressesKey(static_cast<int>(m.wParam))) return 0;
            break;
        case WM_CHAR:
            if (list.UserTypes(static_cast<char>(m.wParam))) return 0;
            break;
        case WM_LBUTTONUP:
        case WM_MBUTTONUP:
        case WM_RBUTTONUP: {
            const LRESULT result = Pass(m);
            if (ControlOf(m.window) == &list) list.UserReleasesMouse();
            return result;
        }
        default: break;
    }
    return std::nullopt;
}

Look ComboBoxLook(const ComboBox&) {
    return {.className = "COMBOBOX", .style = kListStyle | CBS_DROPDOWNLIST, .holdsLine = true};
}

void ApplyComboBox(const ComboBox& box, Aspect aspect) {
    if (aspect == Aspect::Items) {
        Send(box, WM_SETREDRAW, FALSE);
        Send(box, CB_RESETCONTENT);
        AddItems(box, CB_ADDSTRING, box.Items());
        Send(box, WM_SETREDRAW, TRUE);
        InvalidateRect(WindowOf(box), nullptr, TRUE);
    }
    if ((aspect == Aspect::Items || aspect == Aspect::Selection) && Send(box, CB_GETCURSEL) != box.ListIndex())
        Send(box, CB_SETCURSEL, static_cast<WPARAM>(box.ListIndex()));
}

void NewComboBox(const ComboBox& box) {
    ApplyComboBox(box, Aspect::Items);
}

void SetComboBoxFont(const ComboBox& box, HFONT font) {
    constexpr int kBorders = 6;
    Send(box, WM_SETFONT, reinterpret_cast<WPARAM>(font));
    Send(box, CB_SETITEMHEIGHT, static_cast<WPARAM>(-1), LineBoxHeight(box) - kBorders);
}

// While the list is open, moving in it only highlights; a choice is what the list is closed with. This is what the
// player was last told of.
struct Highlight {
    const ComboBox* box = nullptr;
    int index = -1;
};
Highlight highlight;

void Report(ComboBox& box, int index) {
    if (highlight.box != &box || highlight.index == index) return;
    highlight.index = index;
    box.UserHighlights(index);
}

int Current(const ComboBox& box) {
    return static_cast<int>(Send(box, CB_GETCURSEL));
}

void ComboBoxCommand(ComboBox& box, WORD code) {
    switch (code) {
        case CBN_DROPDOWN:
            highlight = {&box, box.ListIndex()};
            box.UserOpens(true);
            break;
        case CBN_CLOSEUP: box.UserOpens(false); break;
        case CBN_SELENDOK:
            Report(box, Current(box));
            highlight = {};
            box.UserSelects(Current(box));
            break;
        case CBN_SELCHANGE:
            if (!native::IsOpen(box)) box.UserSelects(Current(box));
            break;
        case CBN_SELENDCANCEL:
            if (Current(box) != box.ListIndex()) Send(box, CB_SETCURSEL, static_cast<WPARAM>(box.ListIndex()));
            Report(box, box.ListIndex());
            highlight = {};
            break;
        default: break;
    }
}

// The open list, which is about to be painted, may have moved.
std::optional<LRESULT> ComboBoxMessage(ComboBox& box, const Message& m) {
    if (m.message == WM_CTLCOLORLISTBOX && native::IsOpen(box))
        Report(box, static_cast<int>(SendMessageA(reinterpret_cast<HWND>(m.lParam), LB_GETCURSEL, 0, 0)));
    return std::nullopt;
}

}  // namespace

}  // namespace win32

namespace native {

using namespace win32;

const Kind kListBox{.look = For<ListBoxLook>,
                    .fill = For<NewListBox>,
                    .apply = For<ApplyListBox>,
                    .command = For<ListBoxCommand>,
                    .message = For<ListBoxMessage>,
                    .holdsTexts = true};
const Kind kComboBox{.look = For<ComboBoxLook>,
                     .fill = For<NewComboBox>,
                     .apply = For<ApplyComboBox>,
                     .setFont = For<SetComboBoxFont>,
                     .command = For<ComboBoxCommand>,
                     .message = For<ComboBoxMessage>,
                     .holdsTexts = true,
                     .linesDropped = 11};

bool IsOpen(const ComboBox& box) {
    return Send(box, CB_GETDROPPEDSTATE) != FALSE;
}

}  // namespace native

}  // namespace quirn
