#include <windows.h>

#include <commctrl.h>  // needs windows.h first

#include "platform/native.h"
#include "platform/win32/metrics.h"
#include "platform/win32/window.h"

// Brings windows up to the state of their controls.
namespace quirn {

namespace win32 {

namespace {

constexpr char kBullet = '\x95';

HWND setsText = nullptr;

void FillList(HWND window, UINT reset, UINT add, const std::vector<std::string>& items) {
    SendMessageA(window, WM_SETREDRAW, FALSE, 0);
    const LRESULT count = SendMessageA(window, LB_GETCOUNT, 0, 0);
    const LRESULT top = SendMessageA(window, LB_GETTOPINDEX, 0, 0);
    SendMessageA(window, reset, 0, 0);
    for (const std::string& item : items) SendMessageA(window, add, 0, reinterpret_cast<LPARAM>(item.c_str()));
    // What was in sight stays there; an item that was added comes into sight.
    const bool added = static_cast<LRESULT>(items.size()) == count + 1;
    if (reset == LB_RESETCONTENT && count > 0)
        SendMessageA(window, LB_SETTOPINDEX, static_cast<WPARAM>(added ? count : top), 0);
    SendMessageA(window, WM_SETREDRAW, TRUE, 0);
    InvalidateRect(window, nullptr, TRUE);
}

void ApplyItems(Control& control) {
    const HWND window = WindowOf(control);
    if (control.Kind() == ControlKind::ComboBox)
        FillList(window, CB_RESETCONTENT, CB_ADDSTRING, static_cast<ComboBox&>(control).Items());
    if (control.Kind() == ControlKind::VirtualList) ApplyVirtualItems(static_cast<VirtualList&>(control));
    if (control.Kind() == ControlKind::ListBox)
        FillList(window, LB_RESETCONTENT, LB_ADDSTRING, static_cast<ListBox&>(control).Items());
}

void ApplySelection(Control& control) {
    const HWND window = WindowOf(control);
    if (control.Kind() == ControlKind::ComboBox) {
        const int index = static_cast<ComboBox&>(control).ListIndex();
        if (SendMessageA(window, CB_GETCURSEL, 0, 0) != index)
            SendMessageA(window, CB_SETCURSEL, static_cast<WPARAM>(index), 0);
    }
    if (control.Kind() == ControlKind::VirtualList) ApplyVirtualSelection(static_cast<VirtualList&>(control));
    if (control.Kind() != ControlKind::ListBox) return;
    const auto& list = static_cast<ListBox&>(control);
    if (list.Style() == ListStyle::Single) {
        // Also when it is selected already: this scrolls to it.
        SendMessageA(window, LB_SETCURSEL, static_cast<WPARAM>(list.ListIndex()), 0);
        return;
    }
    for (int i = 0; i < static_cast<int>(list.Items().size()); ++i)
        if ((SendMessageA(window, LB_GETSEL, static_cast<WPARAM>(i), 0) > 0) != list.IsSelected(i))
            SendMessageA(window, LB_SETSEL, list.IsSelected(i), i);
}

// The Tab key stops at the selected button of a group, or at the first when none is.
void ApplyOption(const OptionButton& option) {
    const HWND window = WindowOf(option);
    const int selected = option.Group().Selected();
    SendMessageA(window, BM_SETCHECK, selected == option.Index() ? BST_CHECKED : BST_UNCHECKED, 0);
    const LONG_PTR style = GetWindowLongPtrA(window, GWL_STYLE);
    const bool stops = selected == option.Index() || (selected < 0 && option.Index() == 0);
    SetWindowLongPtrA(window, GWL_STYLE, stops ? style | WS_TABSTOP : style & ~static_cast<LONG_PTR>(WS_TABSTOP));
}

// Painted at once, since the work that it shows leaves no time for events; but no more often than anybody sees, since
// painting may take longer than the work.
void ApplyProgress(const ProgressBar& bar) {
    constexpr ULONGLONG kPause = 30;  // milliseconds
    static ULONGLONG paintedAt = 0;
    const ULONGLONG now = GetTickCount64();
    const bool atEnd = bar.Step() == 0 || bar.Step() == ProgressBar::kSteps;
    if (!atEnd && now - paintedAt < kPause) return;
    paintedAt = now;
    SendMessageA(WindowOf(bar), PBM_SETPOS, static_cast<WPARAM>(bar.Step()), 0);
    UpdateWindow(WindowOf(bar));
}

void ApplyValue(Control& control) {
    const HWND window = WindowOf(control);
    switch (control.Kind()) {
        case ControlKind::CheckBox:
            SendMessageA(window, BM_SETCHECK, static_cast<WPARAM>(static_cast<CheckBox&>(control).Value()), 0);
            break;
        case ControlKind::OptionButton: ApplyOption(static_cast<OptionButton&>(control)); break;
        case ControlKind::VirtualList: ApplyVirtualCurrent(static_cast<VirtualList&>(control)); break;
        case ControlKind::ProgressBar: ApplyProgress(static_cast<ProgressBar&>(control)); break;
        case ControlKind::TextBox: {
            const WPARAM shown = static_cast<TextBox&>(control).IsMasked() ? static_cast<unsigned char>(kBullet) : 0;
            if (static_cast<WPARAM>(SendMessageA(window, EM_GETPASSWORDCHAR, 0, 0)) == shown) break;
            SendMessageA(window, EM_SETPASSWORDCHAR, shown, 0);
            InvalidateRect(window, nullptr, TRUE);
            break;
        }
        case ControlKind::TabStrip: {
            auto& strip = static_cast<TabStrip&>(control);
            if (SendMessageA(window, TCM_GETCURSEL, 0, 0) != strip.Tab())
                SendMessageA(window, TCM_SETCURSEL, static_cast<WPARAM>(strip.Tab()), 0);
            ShowFrontPage(strip);
            break;
        }
        default: break;
    }
}

void AddTabs(const TabStrip& strip) {
    for (const TabPage* page : strip.Pages()) {
        TCITEMA item{};
        item.mask = TCIF_TEXT;
        item.pszText = const_cast<char*>(page->Caption().c_str());
        SendMessageA(WindowOf(strip), TCM_INSERTITEMA, strip.Pages().size(), reinterpret_cast<LPARAM>(&item));
    }
    SendMessageA(WindowOf(strip), TCM_SETCURSEL, static_cast<WPARAM>(strip.Tab()), 0);
}

void PrepareUpDown(const UpDown& arrows) {
    // The window counts nothing itself; a range around its position keeps both arrows alive.
    SendMessageA(WindowOf(arrows), UDM_SETRANGE32, static_cast<WPARAM>(-10000), 10000);
    SendMessageA(WindowOf(arrows), UDM_SETBUDDY, reinterpret_cast<WPARAM>(WindowOf(arrows.Buddy())), 0);
}

// A window's text is set only when it differs, which also keeps the caret where it is.
void ApplyText(const Control& control) {
    const HWND window = WindowOf(control);
    if (control.Kind() == ControlKind::StatusBar && static_cast<const StatusBar&>(control).SecondPanelWidth() > 0)
        SendMessageA(window, SB_SETTEXTA, 1,
                     reinterpret_cast<LPARAM>(static_cast<const StatusBar&>(control).SecondText().c_str()));
    if (TextOf(window) == control.Text()) return;
    setsText = window;
    SetWindowTextA(window, control.Text().c_str());
    setsText = nullptr;
}

// A strip lay under a list that has gone. As a whole: the border of a theme comes out different when only a few rows of
// it are painted.
void RepaintStrips(const Container& holder) {
    for (const Control* control : holder.Controls())
        if (control->Kind() == ControlKind::TabStrip && control->window != nullptr)
            InvalidateRect(WindowOf(*control), nullptr, FALSE);
}

void ApplyVisible(Control& control) {
    if (control.window == nullptr) {
        if (!control.Visible() || !StateOf(control.Holder().Owner()).controlsMade) return;
        const auto& all = control.Holder().Controls();
        HWND before = nullptr;
        for (const Control* other : all) {
            if (other == &control) break;
            if (other->window != nullptr) before = WindowOf(*other);
        }
        CreateControl(control);
        // The order of the windows is the tab order.
        if (before != nullptr)
            SetWindowPos(WindowOf(control), before, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    }
    ShowWindow(WindowOf(control), control.Visible() ? SW_SHOWNA : SW_HIDE);
    if (control.Kind() == ControlKind::TabStrip) ShowFrontPage(static_cast<TabStrip&>(control));
    if (control.Kind() == ControlKind::ListBox && !control.Visible()) RepaintStrips(control.Holder());
    // Lists and panels that appear and go lie over whatever is there, and so does what shows progress on them.
    const bool liesOver =
        control.Kind() == ControlKind::ListBox || control.Kind() == ControlKind::ProgressBar ||
        (control.Kind() == ControlKind::Frame && static_cast<const Frame&>(control).Style() == FrameStyle::Panel);
    if (liesOver && control.Visible())
        SetWindowPos(WindowOf(control), HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

}  // namespace

bool TextIsBeingSet(HWND window) {
    return setsText == window;
}

void PlacePanels(const StatusBar& bar) {
    if (bar.SecondPanelWidth() == 0) return;
    RECT area{};
    GetClientRect(GetParent(WindowOf(bar)), &area);
    const int rightEdges[] = {area.right - ToPixels(bar.SecondPanelWidth(), DpiOf(bar)), -1};
    SendMessageA(WindowOf(bar), SB_SETPARTS, std::size(rightEdges), reinterpret_cast<LPARAM>(rightEdges));
}

void FillControl(Control& control) {
    switch (control.Kind()) {
        case ControlKind::ComboBox:
        case ControlKind::ListBox:
            ApplyItems(control);
            ApplySelection(control);
            break;
        case ControlKind::OptionButton: ApplyValue(control); break;
        case ControlKind::CheckBox:
            if (static_cast<CheckBox&>(control).Value() != 0) ApplyValue(control);
            break;
        case ControlKind::TextBox:
            if (static_cast<TextBox&>(control).IsMasked()) ApplyValue(control);
            break;
        case ControlKind::TabStrip: AddTabs(static_cast<TabStrip&>(control)); break;
        case ControlKind::UpDown: PrepareUpDown(static_cast<UpDown&>(control)); break;
        case ControlKind::ProgressBar:
            SendMessageA(WindowOf(control), PBM_SETRANGE32, 0, ProgressBar::kSteps);
            ApplyValue(control);
            break;
        case ControlKind::StatusBar:
            PlacePanels(static_cast<StatusBar&>(control));
            ApplyText(control);
            break;
        case ControlKind::VirtualList:
            ApplyItems(control);
            ApplySelection(control);
            break;
        default: break;
    }
}

}  // namespace win32

namespace native {

using namespace win32;

void ControlChanged(Control& control, Aspect aspect) {
    const HWND window = WindowOf(control);
    switch (aspect) {
        case Aspect::Text: ApplyText(control); break;
        case Aspect::Enabled: EnableWindow(window, control.Enabled()); break;
        case Aspect::Visible: ApplyVisible(control); break;
        case Aspect::Place:
        case Aspect::Font: PlaceControl(control); break;
        case Aspect::Colors: InvalidateRect(window, nullptr, TRUE); break;
        case Aspect::Value: ApplyValue(control); break;
        case Aspect::Items:
            ApplyItems(control);
            ApplySelection(control);
            break;
        case Aspect::Selection: ApplySelection(control); break;
        case Aspect::ToolTip: ToolTipChanged(control); break;
    }
}

void Repaint(Control& control) {
    RedrawWindow(WindowOf(control), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
}

void FocusControl(Control& control) {
    SetFocus(WindowOf(control));
    // Behind a modal form the keyboard comes back only with the form itself.
    if (!control.HasFocus()) control.UserFocuses(true);
    // As the Tab key does it, so that typing replaces the old number.
    if (control.Kind() == ControlKind::MaskedBox) SendMessageA(WindowOf(control), EM_SETSEL, 0, -1);
}

void SelectAll(TextBox& box) {
    SendMessageA(WindowOf(box), EM_SETSEL, 0, -1);
}

void PutCaretAtEnd(TextBox& box) {
    const auto end = static_cast<LPARAM>(box.Text().size());
    SendMessageA(WindowOf(box), EM_SETSEL, static_cast<WPARAM>(end), end);
    SendMessageA(WindowOf(box), EM_SCROLLCARET, 0, 0);
}

}  // namespace native

}  // namespace quirn
