#include <windows.h>

#include <commctrl.h>  // needs windows.h first

#include <array>
#include <cstring>
#include <memory>

#include "platform/win32/metrics.h"
#include "platform/win32/openedclipboard.h"
#include "tests/testing/userinput.h"

namespace quirn::test {

namespace {

HWND WindowOf(const Control& control) {
    return static_cast<HWND>(control.window);
}

HWND WindowOf(const Form& form) {
    return static_cast<HWND>(form.window);
}

LRESULT Send(const Control& control, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
    return SendMessageA(WindowOf(control), message, wParam, lParam);
}

void Tell(const Control& control, WORD code) {
    SendMessageA(GetParent(WindowOf(control)), WM_COMMAND, MAKEWPARAM(0, code),
                 reinterpret_cast<LPARAM>(WindowOf(control)));
}

void PutCaret(const Control& control, size_t caret) {
    Send(control, EM_SETSEL, caret, static_cast<LPARAM>(caret));
}

size_t CaretIn(const Control& control) {
    DWORD from = 0;
    Send(control, EM_GETSEL, reinterpret_cast<WPARAM>(&from));
    return from;
}

void PutInClipboard(const std::string& text) {
    const win32::OpenedClipboard clipboard(GetActiveWindow());
    EmptyClipboard();
    const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, text.size() + 1);
    std::memcpy(GlobalLock(memory), text.c_str(), text.size() + 1);
    GlobalUnlock(memory);
    SetClipboardData(CF_TEXT, memory);
}

void Hold(bool control, bool shift) {
    std::array<BYTE, 256> keys{};
    if (control) keys[VK_CONTROL] = 0x80;
    if (shift) keys[VK_SHIFT] = 0x80;
    SetKeyboardState(keys.data());
}

}  // namespace

void Click(Control& control) {
    if (dynamic_cast<Label*>(&control) == nullptr && dynamic_cast<Picture*>(&control) == nullptr) {
        Send(control, BM_CLICK);
        return;
    }
    Send(control, WM_LBUTTONDOWN, MK_LBUTTON);
    Send(control, WM_LBUTTONUP);
}

void DoubleClick(Label& label) {
    Click(label);
    Send(label, WM_LBUTTONDBLCLK, MK_LBUTTON);
    Send(label, WM_LBUTTONUP);
}

void RightClick(Label& label) {
    Send(label, WM_RBUTTONDOWN, MK_RBUTTON);
    Send(label, WM_RBUTTONUP);
}

void Type(TextBox& box, const std::string& text) {
    for (const char c : text) {
        PutCaret(box, box.Text().size());
        Send(box, WM_CHAR, static_cast<unsigned char>(c));
    }
}

size_t Type(MaskedBox& box, const std::string& text, size_t caret) {
    PutCaret(box, caret);
    for (const char c : text) {
        if (c == MaskedBox::kDelete) Send(box, WM_KEYDOWN, VK_DELETE);
        else Send(box, WM_CHAR, static_cast<unsigned char>(c));
    }
    return CaretIn(box);
}

size_t Paste(MaskedBox& box, const std::string& text, size_t caret) {
    PutInClipboard(text);
    PutCaret(box, caret);
    Send(box, WM_PASTE);
    return CaretIn(box);
}

void Paste(TextBox& box, const std::string& text) {
    PutInClipboard(text);
    Send(box, WM_CHAR, 22);  // Ctrl+V
}

void Choose(ComboBox& box, int index) {
    Send(box, CB_SETCURSEL, static_cast<WPARAM>(index));
    Tell(box, CBN_SELCHANGE);
}

void Choose(ListBox& list, const std::vector<int>& indexes) {
    if (list.Style() == ListStyle::Single) {
        Send(list, LB_SETCURSEL, static_cast<WPARAM>(indexes.empty() ? -1 : indexes[0]));
    } else {
        Send(list, LB_SETSEL, FALSE, -1);
        for (const int index : indexes) Send(list, LB_SETSEL, TRUE, index);
    }
    Tell(list, LBN_SELCHANGE);
}

void DoubleClickItem(ListBox& list, int index) {
    Choose(list, {index});
    Send(list, LB_SETCARETINDEX, static_cast<WPARAM>(index));
    Tell(list, LBN_DBLCLK);
}

void ClickItem(VirtualList& list, size_t item, bool shift, bool control) {
    RECT place{};
    Send(list, LB_GETITEMRECT, item, reinterpret_cast<LPARAM>(&place));
    if (place.top < 0 || place.bottom > 100) {
        Send(list, LB_SETTOPINDEX, item);
        Send(list, LB_GETITEMRECT, item, reinterpret_cast<LPARAM>(&place));
    }
    const WPARAM keys = static_cast<WPARAM>((shift ? MK_SHIFT : 0) | (control ? MK_CONTROL : 0));
    const LPARAM point = MAKELPARAM(5, place.top + 2);
    Send(list, WM_LBUTTONDOWN, keys | MK_LBUTTON, point);
    Send(list, WM_LBUTTONUP, keys, point);
}

void DoubleClickItem(VirtualList& list, size_t item) {
    ClickItem(list, item, false, false);
    RECT place{};
    Send(list, LB_GETITEMRECT, item, reinterpret_cast<LPARAM>(&place));
    Send(list, WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(5, place.top + 2));
    Send(list, WM_LBUTTONUP, 0, MAKELPARAM(5, place.top + 2));
}

void ChooseFromPopup(VirtualList& list, int position) {
    // The keys wait for the menu, which takes them as soon as it is open.
    for (int i = 0; i <= position; ++i) PostMessageA(WindowOf(list), WM_KEYDOWN, VK_DOWN, 0);
    PostMessageA(WindowOf(list), WM_KEYDOWN, VK_RETURN, 0);
    Send(list, WM_RBUTTONDOWN, MK_RBUTTON, MAKELPARAM(5, 5));
}

namespace {

LPARAM PointIn(const Table& table, size_t row, int part) {
    RECT place{};
    place.left = part;
    Send(table, LVM_ENSUREVISIBLE, row, FALSE);
    Send(table, LVM_GETITEMRECT, row, reinterpret_cast<LPARAM>(&place));
    return MAKELPARAM(place.left + 3, (place.top + place.bottom) / 2);
}

// The button's end waits for it: a list view waits inside for the pointer to be dragged.
void Click(const Table& table, UINT down, UINT up, WPARAM keys, LPARAM point) {
    PostMessageA(WindowOf(table), up, keys, point);
    Send(table, down, keys, point);
    DoEvents();
}

}  // namespace

void ClickRow(Table& table, size_t row, bool shift, bool control) {
    Hold(control, shift);
    const WPARAM held = static_cast<WPARAM>((shift ? MK_SHIFT : 0) | (control ? MK_CONTROL : 0));
    Click(table, WM_LBUTTONDOWN, WM_LBUTTONUP, held | MK_LBUTTON, PointIn(table, row, LVIR_LABEL));
    Hold(false, false);
}

void DoubleClickRow(Table& table, size_t row) {
    ClickRow(table, row);
    Click(table, WM_LBUTTONDBLCLK, WM_LBUTTONUP, MK_LBUTTON, PointIn(table, row, LVIR_LABEL));
}

void RightClickRow(Table& table, size_t row) {
    Click(table, WM_RBUTTONDOWN, WM_RBUTTONUP, MK_RBUTTON, PointIn(table, row, LVIR_LABEL));
}

void ClickTick(Table& table, size_t row) {
    Click(table, WM_LBUTTONDOWN, WM_LBUTTONUP, MK_LBUTTON, PointIn(table, row, LVIR_BOUNDS));
}

void ClickHead(Table& table, int column) {
    const auto head = reinterpret_cast<HWND>(Send(table, LVM_GETHEADER));
    RECT place{};
    SendMessageA(head, HDM_GETITEMRECT, static_cast<WPARAM>(column), reinterpret_cast<LPARAM>(&place));
    const LPARAM point = MAKELPARAM((place.left + place.right) / 2, (place.top + place.bottom) / 2);
    SendMessageA(head, WM_LBUTTONDOWN, MK_LBUTTON, point);
    SendMessageA(head, WM_LBUTTONUP, 0, point);
}

void DragColumn(Table& table, int column, int width) {
    Send(table, LVM_SETCOLUMNWIDTH, static_cast<WPARAM>(column), win32::ToPixels(width, win32::DpiOf(nullptr)));
}

void Spin(UpDown& arrows, int steps) {
    for (int i = 0; i != steps; i += steps > 0 ? 1 : -1) {
        Send(arrows.Buddy(), WM_KEYDOWN, steps > 0 ? VK_UP : VK_DOWN);
        Send(arrows.Buddy(), WM_KEYUP, steps > 0 ? VK_UP : VK_DOWN);
    }
}

void TurnTo(TabStrip& strip, int page) {
    Send(strip, TCM_SETCURFOCUS, static_cast<WPARAM>(page));
}

void Close(Form& form) {
    SendMessageA(WindowOf(form), WM_SYSCOMMAND, SC_CLOSE, 0);
}

void Press(Form& form, int key, bool control, bool shift) {
    DoEvents();
    const HWND target = form.ActiveControl() != nullptr ? WindowOf(*form.ActiveControl()) : WindowOf(form);
    Hold(control, shift);
    PostMessageA(target, WM_KEYDOWN, static_cast<WPARAM>(key), 0);
    DoEvents();
    Hold(false, false);
}

void Type(Form& form, const std::string& text) {
    DoEvents();
    for (const char c : text) {
        if (!form.IsLoaded()) return;
        const HWND target = form.ActiveControl() != nullptr ? WindowOf(*form.ActiveControl()) : WindowOf(form);
        PostMessageA(target, WM_CHAR, static_cast<unsigned char>(c), 0);
        DoEvents();
    }
}

void PointAt(Form& form, MenuPart part, int command) {
    UINT flags = MF_HILITE;
    LPARAM menu = reinterpret_cast<LPARAM>(GetMenu(WindowOf(form)));
    if (part == MenuPart::Heading) flags |= MF_POPUP;
    if (part == MenuPart::Separator) flags |= MF_SEPARATOR;
    if (part == MenuPart::Nothing) {
        flags = 0xFFFF;
        menu = 0;
    }
    SendMessageA(WindowOf(form), WM_MENUSELECT, MAKEWPARAM(command, flags), menu);
}

void Choose(Form& form, int command) {
    SendMessageA(WindowOf(form), WM_COMMAND, MAKEWPARAM(command, 0), 0);
}

bool ShownEnabled(Form& form, int command) {
    const HMENU bar = GetMenu(WindowOf(form));
    for (int i = 0; i < GetMenuItemCount(bar); ++i)
        SendMessageA(WindowOf(form), WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(GetSubMenu(bar, i)), i);
    return (GetMenuState(bar, static_cast<UINT>(command), MF_BYCOMMAND) & MF_GRAYED) == 0;
}

std::string ShownText(const Control& control) {
    std::array<char, 1024> text{};
    GetWindowTextA(WindowOf(control), text.data(), static_cast<int>(text.size()));
    return text.data();
}

bool ShownChecked(const Control& control) {
    return Send(control, BM_GETCHECK) == BST_CHECKED;
}

int ShownIndex(const Control& control) {
    const bool combo = dynamic_cast<const ComboBox*>(&control) != nullptr;
    const bool list = dynamic_cast<const ListBox*>(&control) != nullptr;
    return static_cast<int>(Send(control, combo ? CB_GETCURSEL : list ? LB_GETCURSEL : TCM_GETCURSEL));
}

std::string ShownItem(const VirtualList& list, size_t item) {
    std::string text(static_cast<size_t>(Send(list, LB_GETTEXTLEN, item)) + 1, '\0');
    text.resize(static_cast<size_t>(Send(list, LB_GETTEXT, item, reinterpret_cast<LPARAM>(text.data()))));
    return text;
}

size_t ShownTop(const VirtualList& list) {
    return static_cast<size_t>(Send(list, LB_GETTOPINDEX));
}

std::string ShownCell(const Table& table, size_t row, int column) {
    std::array<char, 260> text{};
    LVITEMA item{};
    item.iSubItem = column;
    item.pszText = text.data();
    item.cchTextMax = static_cast<int>(text.size());
    Send(table, LVM_GETITEMTEXTA, row, reinterpret_cast<LPARAM>(&item));
    return text.data();
}

std::vector<size_t> ShownSelection(const Table& table) {
    std::vector<size_t> rows;
    LRESULT row = -1;
    while ((row = Send(table, LVM_GETNEXTITEM, static_cast<WPARAM>(row), LVNI_SELECTED)) >= 0)
        rows.push_back(static_cast<size_t>(row));
    return rows;
}

bool ShownTick(const Table& table, size_t row) {
    return Send(table, LVM_GETITEMSTATE, row, LVIS_STATEIMAGEMASK) == INDEXTOSTATEIMAGEMASK(2);
}

std::string ShownSecondText(const StatusBar& bar) {
    std::array<char, 256> text{};
    Send(bar, SB_GETTEXTA, 1, reinterpret_cast<LPARAM>(text.data()));
    return text.data();
}

std::string Clipboard() {
    const win32::OpenedClipboard clipboard(nullptr);
    const auto held = static_cast<HGLOBAL>(GetClipboardData(CF_TEXT));
    const std::string text = held ? static_cast<const char*>(GlobalLock(held)) : "";
    if (held) GlobalUnlock(held);
    return text;
}

void Later(std::function<void()> task) {
    static std::vector<std::unique_ptr<Timer>> timers;
    timers.push_back(std::make_unique<Timer>());
    Timer* timer = timers.back().get();
    timer->SetInterval(10);
    timer->onTimer = [timer, run = std::move(task)] {
        timer->SetEnabled(false);
        run();
    };
    timer->SetEnabled(true);
}

}  // namespace quirn::test
