#include <windows.h>

#include "platform/win32/accessible.h"
#include "platform/win32/colors.h"
#include "platform/win32/kind.h"

// The messages of controls: those that their windows get, before their own procedures see them, and those that their
// windows send to their form or page.
namespace quirn::win32 {

namespace {

HWND takesFocus = nullptr;

LRESULT Focus(Control& control, const Message& m) {
    takesFocus = m.window;
    const LRESULT result = Pass(m);
    takesFocus = nullptr;
    if (ControlOf(m.window) == &control) control.UserFocuses(true);
    return result;
}

LRESULT CALLBACK ControlProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    const Message m{window, message, wParam, lParam};
    Control* const control = ControlOf(window);
    if (control == nullptr) return Pass(m);  // it is being destroyed
    if (message == WM_SETFOCUS) return Focus(*control, m);
    if (message == WM_GETOBJECT && !control->AccessibleName().empty())
        if (const auto result = AnswerReader(&MakeAnswers<NamedControl>, m)) return *result;
    if (message == WM_MOUSEMOVE) PrepareToolTip(*control);
    if (message == WM_CONTEXTMENU && control->onContextMenu) {
        CallHandler(control->onContextMenu);
        return 0;
    }
    if (control->Kind().message != nullptr)
        if (const auto result = control->Kind().message(*control, m)) return *result;
    return Pass(m);
}

std::optional<LRESULT> Notify(const NMHDR& header) {
    Control* const control = ControlOf(header.hwndFrom);
    if (control == nullptr || control->Kind().notify == nullptr) return std::nullopt;
    return control->Kind().notify(*control, header);
}

void Command(HWND window, WORD code) {
    Control* const control = ControlOf(window);
    if (control != nullptr && control->Kind().command != nullptr) control->Kind().command(*control, code);
}

// The brush behind a control; nothing for the system's.
std::optional<LRESULT> ColorsOf(const Form& form, HDC device, HWND window) {
    const Control* control = ControlOf(window);
    if (control == nullptr) return std::nullopt;
    const bool onForm = &control->Holder() == &form;
    const bool holdsTexts = control->Kind().holdsTexts;
    std::optional<Color> own = BackColorOf(*control);
    if (!own && onForm && !holdsTexts) own = BackColorOf(form);
    const std::optional<Color> fore = ForeColorOf(*control);
    if (!own && !fore) return std::nullopt;
    const Color back = own.value_or(GetSysColor(holdsTexts ? COLOR_WINDOW : COLOR_BTNFACE));
    SetTextColor(device, fore.value_or(GetSysColor(COLOR_WINDOWTEXT)));
    SetBkColor(device, back);
    SetDCBrushColor(device, back);
    return reinterpret_cast<LRESULT>(GetStockObject(DC_BRUSH));
}

std::optional<LRESULT> Draw(const DRAWITEMSTRUCT& item) {
    Control* const control = ControlOf(item.hwndItem);
    if (control == nullptr || control->Kind().draw == nullptr) return std::nullopt;
    control->Kind().draw(*control, item);
    return TRUE;
}

}  // namespace

// It is its class's.
WNDPROC OwnProcedure(HWND window) {
    return reinterpret_cast<WNDPROC>(GetClassLongPtrA(window, GCLP_WNDPROC));
}

LRESULT Pass(const Message& m) {
    return CallWindowProcA(OwnProcedure(m.window), m.window, m.message, m.wParam, m.lParam);
}

bool FocusArrives(HWND window) {
    return takesFocus == window;
}

void Subclass(HWND window) {
    // By hand and not by comctl32's subclassing: that one would make an ANSI window a Unicode one.
    SetWindowLongPtrA(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&ControlProc));
}

std::optional<LRESULT> NotificationFromControl(Form& form, UINT message, WPARAM wParam, LPARAM lParam) {
    const auto window = reinterpret_cast<HWND>(lParam);
    switch (message) {
        case WM_COMMAND:
            if (window == nullptr) return std::nullopt;
            if (!PostedOn(WindowOf(form), message, wParam, lParam)) Command(window, HIWORD(wParam));
            return 0;
        case WM_NOTIFY: return Notify(*reinterpret_cast<const NMHDR*>(lParam));
        case WM_CTLCOLORSTATIC:
        case WM_CTLCOLOREDIT:
        case WM_CTLCOLORLISTBOX:
        case WM_CTLCOLORBTN: return ColorsOf(form, reinterpret_cast<HDC>(wParam), window);
        case WM_DRAWITEM: return Draw(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam));
        default: return std::nullopt;
    }
}

}  // namespace quirn::win32
