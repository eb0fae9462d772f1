#include <windows.h>

#include <commctrl.h>  // needs windows.h first

#include <algorithm>

#include "platform/win32/kind.h"
#include "platform/win32/metrics.h"

// Windows for controls, and the windows up to the state of their controls: what is the same for all kinds.
namespace quirn {

namespace win32 {

namespace {

HWND setsText = nullptr;

void RegisterCommonClass(DWORD commonClass) {
    static DWORD registered = 0;
    if ((registered & commonClass) == commonClass) return;
    registered |= commonClass;
    const INITCOMMONCONTROLSEX classes{sizeof(INITCOMMONCONTROLSEX), commonClass};
    InitCommonControlsEx(&classes);
}

const Control* Predecessor(const Control& control) {
    const auto& all = control.Holder().Controls();
    const auto at = std::find(all.begin(), all.end(), &control);
    return at == all.begin() || at == all.end() ? nullptr : *(at - 1);
}

// Arrow keys and screen readers see what lies between two controls that start a group as one.
bool StartsGroup(const Control& control) {
    if (const auto* option = dynamic_cast<const OptionButton*>(&control)) return option->Index() == 0;
    const Control* before = Predecessor(control);
    return before == nullptr || dynamic_cast<const OptionButton*>(before) != nullptr;
}

// Siblings above a window are cut out of what it paints, except in a frame: that lies above what is in it.
bool CutsSiblings(Control& control) {
    if (control.Kind().look(control).framesOthers) return false;
    const auto& all = control.Holder().Controls();
    return std::none_of(all.begin(), all.end(), [&](Control* other) {
        return other->Place().Crosses(control.Place()) && other->Kind().look(*other).framesOthers;
    });
}

RECT PixelPlace(Control& control) {
    RECT place = ToPixels(control.Place(), DpiOf(control));
    if (control.Kind().look(control).holdsLine) {
        const int height = LineBoxHeight(control);
        place.top += (place.bottom - place.top - height) / 2;
        place.bottom = place.top + height;
    }
    place.bottom += control.Kind().linesDropped * (place.bottom - place.top);
    return place;
}

void ApplyFont(Control& control) {
    const HFONT font = FontFor(control.FontUsed(), DpiOf(control));
    if (control.Kind().setFont != nullptr) control.Kind().setFont(control, font);
    else SendMessageA(WindowOf(control), WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
}

void ApplyVisible(Control& control) {
    if (control.window == nullptr) {
        if (!control.Visible() || !StateOf(control.Holder().Owner()).controlsMade) return;
        HWND before = nullptr;
        for (const Control* other : control.Holder().Controls()) {
            if (other == &control) break;
            if (other->window != nullptr) before = WindowOf(*other);
        }
        CreateControl(control);
        // The order of the windows is the tab order.
        if (before != nullptr)
            SetWindowPos(WindowOf(control), before, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    }
    ShowWindow(WindowOf(control), control.Visible() ? SW_SHOWNA : SW_HIDE);
    if (control.Visible() && control.Kind().look(control).liesOver)
        SetWindowPos(WindowOf(control), HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

}  // namespace

RECT ToPixels(const Bounds& place, int dpi) {
    const int left = ToPixels(place.left, dpi);
    const int top = ToPixels(place.top, dpi);
    return {left, top, left + ToPixels(place.width, dpi), top + ToPixels(place.height, dpi)};
}

int DpiOf(const Control& control) {
    return DpiOf(WindowOf(control.Holder().Owner()));
}

int LineBoxHeight(const Control& control) {
    const int dpi = DpiOf(control);
    const int border = GetSystemMetrics(SM_CYEDGE) + 1;
    const int needed = MetricsOf(FontFor(control.FontUsed(), dpi)).tmHeight + 2 * border;
    return std::min(needed, ToPixels(control.Place().height, dpi));
}

std::string TextOf(HWND window) {
    std::string text(static_cast<size_t>(GetWindowTextLengthA(window)) + 1, '\0');
    text.resize(static_cast<size_t>(GetWindowTextA(window, text.data(), static_cast<int>(text.size()))));
    return text;
}

bool TextIsBeingSet(HWND window) {
    return setsText == window;
}

// A window's text is set only when it differs, which also keeps the caret where it is.
void ApplyText(const Control& control) {
    const HWND window = WindowOf(control);
    if (TextOf(window) == control.Text()) return;
    setsText = window;
    SetWindowTextA(window, control.Text().c_str());
    setsText = nullptr;
}

void CreateControls(Container& container) {
    for (Control* control : container.Controls())
        if (control->Visible() && control->window == nullptr) CreateControl(*control);
}

void CreateControl(Control& control) {
    const native::Kind& kind = control.Kind();
    const Look look = kind.look(control);
    RegisterCommonClass(look.commonClass);
    DWORD style = WS_CHILD | look.style;
    if (control.Visible()) style |= WS_VISIBLE;
    if (!control.Enabled()) style |= WS_DISABLED;
    if (StartsGroup(control)) style |= WS_GROUP;
    if (CutsSiblings(control)) style |= WS_CLIPSIBLINGS;
    const RECT place = PixelPlace(control);
    const HWND window = CreateWindowExA(look.extendedStyle, look.className, control.Text().c_str(), style, place.left,
                                        place.top, place.right - place.left, place.bottom - place.top,
                                        WindowOf(control.Holder()), nullptr, Instance(), nullptr);
    if (window == nullptr) return;
    control.window = window;
    ApplyFont(control);
    if (kind.fill != nullptr) kind.fill(control);
    SetWindowLongPtrA(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(&control));
    if (control.TakesFocus() || look.seesMouse) Subclass(window);
}

void PlaceControl(Control& control) {
    const RECT place = PixelPlace(control);
    SetWindowPos(WindowOf(control), nullptr, place.left, place.top, place.right - place.left, place.bottom - place.top,
                 SWP_NOZORDER | SWP_NOACTIVATE);
    ApplyFont(control);
    if (control.Kind().apply != nullptr) control.Kind().apply(control, Aspect::Place);
    // With its border, of which a move in the middle of other moves may leave parts behind.
    RedrawWindow(WindowOf(control), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME);
}

}  // namespace win32

namespace native {

using namespace win32;

void ControlChanged(Control& control, Aspect aspect) {
    const HWND window = WindowOf(control);
    switch (aspect) {
        case Aspect::Place:
        case Aspect::Font: PlaceControl(control); return;
        case Aspect::Text: ApplyText(control); break;
        case Aspect::Enabled: EnableWindow(window, control.Enabled()); break;
        case Aspect::Visible: ApplyVisible(control); break;
        case Aspect::Colors: InvalidateRect(window, nullptr, TRUE); break;
        case Aspect::ToolTip: ToolTipChanged(control); break;
        case Aspect::Value:
        case Aspect::Items:
        case Aspect::Selection: break;  // differ from kind to kind
    }
    if (control.window != nullptr && control.Kind().apply != nullptr) control.Kind().apply(control, aspect);
}

void Repaint(Control& control) {
    RedrawWindow(WindowOf(control), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
}

void FocusControl(Control& control) {
    // The focus would bring a form that is behind another one to the front; it gets it when it comes there by itself.
    const HWND active = GetActiveWindow();
    if (active == nullptr || active == GetAncestor(WindowOf(control), GA_ROOT)) SetFocus(WindowOf(control));
    // Behind a modal form the keyboard comes back only with the form itself.
    if (!control.HasFocus()) control.UserFocuses(true);
    // So that typing replaces the old number.
    if (control.Kind().selectsOnFocus) SendMessageA(WindowOf(control), EM_SETSEL, 0, -1);
}

void DestroyControl(Control& control) {
    const HWND window = WindowOf(control);
    control.window = nullptr;
    StateOf(control.Holder().Owner()).toolTipOwners.erase(window);
    SetWindowLongPtrA(window, GWLP_USERDATA, 0);
    DestroyWindow(window);
}

}  // namespace native

}  // namespace quirn
