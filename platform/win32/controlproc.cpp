#include <windows.h>

#include "platform/win32/window.h"

// What this program does with messages to the windows of controls before their own procedures see them.
namespace quirn::win32 {

namespace {

HWND takesFocus = nullptr;

struct Message {
    HWND window;
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
};

LRESULT Pass(WNDPROC original, const Message& m) {
    return CallWindowProcA(original, m.window, m.message, m.wParam, m.lParam);
}

LRESULT Focus(Control& control, WNDPROC original, const Message& m) {
    takesFocus = m.window;
    const LRESULT result = Pass(original, m);
    takesFocus = nullptr;
    if (ControlOf(m.window) == &control) control.UserFocuses(true);
    return result;
}

// The arrow keys select within the group. The dialog manager's way of doing it depends on how the system's buttons
// treat the focus, which differs between versions.
void MoveOption(OptionButton& option, int steps) {
    const auto& buttons = option.Group().Buttons();
    const int count = static_cast<int>(buttons.size());
    for (int i = 1; i < count; ++i) {
        OptionButton* next = buttons[static_cast<size_t>(((option.Index() + steps * i) % count + count) % count)];
        if (!next->CanFocus()) continue;
        next->UserClicks();
        next->SetFocus();
        return;
    }
}

std::optional<LRESULT> OptionMessage(OptionButton& option, WNDPROC original, const Message& m) {
    if (m.message == WM_GETDLGCODE) return Pass(original, m) | DLGC_WANTARROWS;
    if (m.message != WM_KEYDOWN) return std::nullopt;
    if (m.wParam == VK_RIGHT || m.wParam == VK_DOWN) MoveOption(option, 1);
    else if (m.wParam == VK_LEFT || m.wParam == VK_UP) MoveOption(option, -1);
    else return std::nullopt;
    return 0;
}

std::optional<LRESULT> ListMessage(ListBox& list, WNDPROC original, const Message& m) {
    switch (m.message) {
        case WM_GETDLGCODE: return Pass(original, m) | DLGC_WANTARROWS | (list.onKeyPress ? DLGC_WANTCHARS : 0);
        case WM_KEYDOWN:
            if (list.UserPressesKey(static_cast<int>(m.wParam))) return 0;
            break;
        case WM_CHAR:
            if (list.UserTypes(static_cast<char>(m.wParam))) return 0;
            break;
        case WM_LBUTTONUP:
        case WM_MBUTTONUP:
        case WM_RBUTTONUP: {
            const LRESULT result = Pass(original, m);
            if (ControlOf(m.window) == &list) list.UserReleasesMouse();
            return result;
        }
        default: break;
    }
    return std::nullopt;
}

std::optional<LRESULT> KindMessage(Control& control, WNDPROC original, const Message& m) {
    switch (control.Kind()) {
        case ControlKind::OptionButton: return OptionMessage(static_cast<OptionButton&>(control), original, m);
        case ControlKind::ListBox: return ListMessage(static_cast<ListBox&>(control), original, m);
        case ControlKind::VirtualList:
            return VirtualListMessage(static_cast<VirtualList&>(control), m.message, m.wParam, m.lParam);
        case ControlKind::TextBox: return TextBoxMessage(static_cast<TextBox&>(control), m.message, m.wParam);
        case ControlKind::MaskedBox: return MaskedBoxMessage(static_cast<MaskedBox&>(control), m.message, m.wParam);
        case ControlKind::Label:
            if (m.message != WM_SETCURSOR || !static_cast<Label&>(control).onClick) return std::nullopt;
            SetCursor(LoadCursorA(nullptr, IDC_HAND));
            return TRUE;
        case ControlKind::ComboBox:
            if (m.message == WM_CTLCOLORLISTBOX)
                OpenListMoved(static_cast<ComboBox&>(control), reinterpret_cast<HWND>(m.lParam));
            return std::nullopt;
        default: return std::nullopt;
    }
}

// One procedure for each kind, since each has another original; a window that is being destroyed has no control any
// more but still needs its original.
template <ControlKind kind>
WNDPROC originalProc = nullptr;

template <ControlKind kind>
LRESULT CALLBACK ControlProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    const Message m{window, message, wParam, lParam};
    Control* const control = ControlOf(window);
    if (control == nullptr) return Pass(originalProc<kind>, m);
    if (message == WM_SETFOCUS) return Focus(*control, originalProc<kind>, m);
    if (message == WM_MOUSEMOVE) PrepareToolTip(*control);
    if (const auto result = KindMessage(*control, originalProc<kind>, m)) return *result;
    return Pass(originalProc<kind>, m);
}

template <ControlKind kind>
void SubclassAs(HWND window) {
    // By hand and not by comctl32's subclassing: that one would make an ANSI window a Unicode one.
    originalProc<kind> = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrA(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&ControlProc<kind>)));
}

}  // namespace

bool FocusArrives(HWND window) {
    return takesFocus == window;
}

void Subclass(const Control& control) {
    const HWND window = WindowOf(control);
    switch (control.Kind()) {
        case ControlKind::Button: SubclassAs<ControlKind::Button>(window); break;
        case ControlKind::CheckBox: SubclassAs<ControlKind::CheckBox>(window); break;
        case ControlKind::OptionButton: SubclassAs<ControlKind::OptionButton>(window); break;
        case ControlKind::TextBox: SubclassAs<ControlKind::TextBox>(window); break;
        case ControlKind::MaskedBox: SubclassAs<ControlKind::MaskedBox>(window); break;
        case ControlKind::ComboBox: SubclassAs<ControlKind::ComboBox>(window); break;
        case ControlKind::ListBox: SubclassAs<ControlKind::ListBox>(window); break;
        case ControlKind::VirtualList: SubclassAs<ControlKind::VirtualList>(window); break;
        case ControlKind::TabStrip: SubclassAs<ControlKind::TabStrip>(window); break;
        case ControlKind::Label: {
            const auto& label = static_cast<const Label&>(control);
            if (label.ShowsData() || !label.ToolTip().empty() || label.onClick) SubclassAs<ControlKind::Label>(window);
            break;
        }
        default: break;
    }
}

}  // namespace quirn::win32
