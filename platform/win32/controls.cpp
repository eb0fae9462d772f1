#include "platform/win32/controls.h"

#include "platform/form.h"
#include "platform/native.h"
#include "platform/win32/metrics.h"

namespace quirn {

namespace win32 {

namespace {

HWND WindowOf(const Control& control) { return static_cast<HWND>(control.window); }

Control* ControlOf(HWND window) { return reinterpret_cast<Control*>(GetWindowLongPtrA(window, GWLP_USERDATA)); }

void ApplyFont(Control& control) {
    const HWND window = WindowOf(control);
    const auto old = reinterpret_cast<HFONT>(SendMessageA(window, WM_GETFONT, 0, 0));
    const HFONT font = CreateFontFor(control.FontUsed(), DpiOf(window));
    SendMessageA(window, WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
    if (old != nullptr) DeleteObject(old);
}

DWORD StyleOf(const Control& control) {
    switch (control.Kind()) {
        case ControlKind::Label:
            switch (static_cast<const Label&>(control).AlignmentUsed()) {
                case Alignment::Left: return SS_NOPREFIX | SS_LEFT;
                case Alignment::Center: return SS_NOPREFIX | SS_CENTER;
                case Alignment::Right: return SS_NOPREFIX | SS_RIGHT;
            }
            return 0;
        case ControlKind::Picture: return SS_OWNERDRAW;
    }
    return 0;
}

}  // namespace

void CreateControl(HWND parent, Control& control) {
    DWORD style = WS_CHILD | StyleOf(control);
    if (control.Visible()) style |= WS_VISIBLE;
    if (!control.Enabled()) style |= WS_DISABLED;
    const HWND window = CreateWindowExA(0, "STATIC", control.Text().c_str(), style, 0, 0, 0, 0, parent, nullptr,
                                        GetModuleHandleA(nullptr), nullptr);
    SetWindowLongPtrA(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(&control));
    control.window = window;
    PlaceControl(control);
}

void PlaceControl(Control& control) {
    const int dpi = DpiOf(WindowOf(control));
    const Bounds& place = control.Place();
    MoveWindow(WindowOf(control), ToPixels(place.left, dpi), ToPixels(place.top, dpi), ToPixels(place.width, dpi),
               ToPixels(place.height, dpi), TRUE);
    ApplyFont(control);
}

HBRUSH ColorStatic(const Form& form, HDC device, HWND window) {
    const Control* control = ControlOf(window);
    if (control == nullptr) return nullptr;
    const Color back = form.BackColor().value_or(GetSysColor(COLOR_BTNFACE));
    SetTextColor(device, control->ForeColor().value_or(GetSysColor(COLOR_WINDOWTEXT)));
    SetBkColor(device, back);
    SetDCBrushColor(device, back);
    return static_cast<HBRUSH>(GetStockObject(DC_BRUSH));
}

void DrawControl(const DRAWITEMSTRUCT& item) {
    const Control* control = ControlOf(item.hwndItem);
    if (control == nullptr || control->Kind() != ControlKind::Picture) return;
    const int width = item.rcItem.right - item.rcItem.left;
    const int height = item.rcItem.bottom - item.rcItem.top;
    const auto icon = static_cast<HICON>(LoadImageA(
        GetModuleHandleA(nullptr), MAKEINTRESOURCEA(static_cast<const Picture*>(control)->Resource()), IMAGE_ICON,
        width, height, LR_DEFAULTCOLOR));
    if (icon == nullptr) return;
    DrawIconEx(item.hDC, item.rcItem.left, item.rcItem.top, icon, width, height, 0, nullptr, DI_NORMAL);
    DestroyIcon(icon);
}

}  // namespace win32

namespace native {

using namespace win32;

void DestroyControl(Control& control) {
    const HWND window = WindowOf(control);
    if (window == nullptr) return;
    const auto font = reinterpret_cast<HFONT>(SendMessageA(window, WM_GETFONT, 0, 0));
    DestroyWindow(window);
    if (font != nullptr) DeleteObject(font);
    control.window = nullptr;
}

void ControlChanged(Control& control, Aspect aspect) {
    const HWND window = WindowOf(control);
    switch (aspect) {
        case Aspect::Text: SetWindowTextA(window, control.Text().c_str()); break;
        case Aspect::Enabled: EnableWindow(window, control.Enabled()); break;
        case Aspect::Visible: ShowWindow(window, control.Visible() ? SW_SHOWNA : SW_HIDE); break;
        case Aspect::Place: PlaceControl(control); break;
        case Aspect::Font: ApplyFont(control); break;
        case Aspect::Colors: InvalidateRect(window, nullptr, TRUE); break;
    }
}

}  // namespace native

}  // namespace quirn
