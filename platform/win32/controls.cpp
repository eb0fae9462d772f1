#include <windows.h>

#include <commctrl.h>  // needs windows.h first

#include <algorithm>

#include "platform/native.h"
#include "platform/win32/metrics.h"
#include "platform/win32/window.h"

// Windows for controls: class and styles by kind, place, font.
namespace quirn {

namespace win32 {

namespace {

struct Look {
    const char* className;
    DWORD style;
    DWORD extendedStyle = 0;
    DWORD commonClass = 0;  // to be registered before the first use
};

DWORD LabelStyle(const Label& label) {
    DWORD style = label.ShowsData() ? SS_NOPREFIX | SS_ENDELLIPSIS : 0;
    // A label that shows data may get a tool tip at any time.
    if (label.ShowsData() || !label.ToolTip().empty() || label.onClick) style |= SS_NOTIFY;
    switch (label.AlignmentUsed()) {
        case Alignment::Left: return style | SS_LEFT;
        case Alignment::Center: return style | SS_CENTER;
        case Alignment::Right: return style | SS_RIGHT;
    }
    return style;
}

bool IsPanel(const Control& control) {
    return control.Kind() == ControlKind::Frame && static_cast<const Frame&>(control).Style() == FrameStyle::Panel;
}

bool IsBox(const Control& control) {
    return control.Kind() == ControlKind::Frame && !IsPanel(control);
}

Look LookOf(const Control& control) {
    const Form& form = control.Holder().Owner();
    switch (control.Kind()) {
        case ControlKind::Label: return {"STATIC", LabelStyle(static_cast<const Label&>(control))};
        case ControlKind::Picture:
            return {"STATIC",
                    SS_OWNERDRAW | static_cast<DWORD>(static_cast<const Picture&>(control).onClick ? SS_NOTIFY : 0)};
        case ControlKind::Button:
            return {"BUTTON", WS_TABSTOP | static_cast<DWORD>(&control == form.DefaultButton() ? BS_DEFPUSHBUTTON
                                                                                               : BS_PUSHBUTTON)};
        // Neither changes by itself when clicked: the control's state does, and the window follows.
        case ControlKind::CheckBox: return {"BUTTON", WS_TABSTOP | BS_CHECKBOX};
        case ControlKind::OptionButton: return {"BUTTON", BS_RADIOBUTTON};
        case ControlKind::TextBox:
            if (static_cast<const TextBox&>(control).Style() == TextStyle::ReadPage)
                return {
                    "EDIT",
                    WS_TABSTOP | WS_VSCROLL | WS_HSCROLL | ES_MULTILINE | ES_READONLY | ES_AUTOVSCROLL | ES_AUTOHSCROLL,
                    WS_EX_CLIENTEDGE};
            [[fallthrough]];
        case ControlKind::MaskedBox: return {"EDIT", WS_TABSTOP | ES_AUTOHSCROLL, WS_EX_CLIENTEDGE};
        case ControlKind::ComboBox: return {"COMBOBOX", WS_TABSTOP | WS_VSCROLL | CBS_DROPDOWNLIST};
        case ControlKind::ListBox: {
            const bool extended = static_cast<const ListBox&>(control).Style() == ListStyle::Extended;
            return {"LISTBOX",
                    WS_TABSTOP | WS_VSCROLL | LBS_NOTIFY | LBS_NOINTEGRALHEIGHT |
                        static_cast<DWORD>(extended ? LBS_EXTENDEDSEL : 0),
                    WS_EX_CLIENTEDGE};
        }
        case ControlKind::VirtualList:
            return {"LISTBOX",
                    WS_TABSTOP | WS_VSCROLL | WS_HSCROLL | LBS_NOTIFY | LBS_NODATA | LBS_OWNERDRAWFIXED |
                        LBS_EXTENDEDSEL | LBS_NOINTEGRALHEIGHT,
                    WS_EX_CLIENTEDGE};
        case ControlKind::ProgressBar: return {PROGRESS_CLASSA, 0, 0, ICC_PROGRESS_CLASS};
        case ControlKind::Frame:
            if (IsPanel(control)) return {"STATIC", SS_OWNERDRAW};
            return {"BUTTON", BS_GROUPBOX};
        case ControlKind::TabStrip: return {WC_TABCONTROLA, WS_TABSTOP | WS_CLIPSIBLINGS, 0, ICC_TAB_CLASSES};
        case ControlKind::UpDown: return {UPDOWN_CLASSA, UDS_ARROWKEYS, 0, ICC_UPDOWN_CLASS};
        case ControlKind::StatusBar:
            return {STATUSCLASSNAMEA, static_cast<DWORD>(form.Border() == FormBorder::Sizable ? SBARS_SIZEGRIP : 0), 0,
                    ICC_BAR_CLASSES};
    }
    return {"STATIC", 0};
}

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
    const Control* before = Predecessor(control);
    const bool afterOption = before != nullptr && before->Kind() == ControlKind::OptionButton;
    if (control.Kind() != ControlKind::OptionButton) return before == nullptr || afterOption;
    return static_cast<const OptionButton&>(control).Index() == 0;
}

// Siblings above a window are cut out of what it paints, except in a frame: that lies above what is in it.
bool CutsSiblings(const Control& control) {
    if (IsBox(control)) return false;
    const auto& all = control.Holder().Controls();
    return std::none_of(all.begin(), all.end(),
                        [&](const Control* other) { return IsBox(*other) && other->Place().Crosses(control.Place()); });
}

RECT PixelPlace(const Control& control) {
    RECT place = ToPixels(control.Place(), DpiOf(control));
    // The place of a combo box's window reaches to the end of its open list.
    constexpr int kLinesDropped = 11;
    if (control.Kind() == ControlKind::ComboBox) place.bottom += kLinesDropped * (place.bottom - place.top);
    return place;
}

void ApplyFont(const Control& control) {
    const HFONT font = FontFor(control.FontUsed(), DpiOf(control));
    if (control.Kind() == ControlKind::VirtualList) {
        ApplyVirtualFont(static_cast<const VirtualList&>(control), font);
        return;
    }
    SendMessageA(WindowOf(control), WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
    if (control.Kind() == ControlKind::ComboBox) {
        constexpr int kBorders = 6;
        const int height = ToPixels(control.Place().height, DpiOf(control));
        SendMessageA(WindowOf(control), CB_SETITEMHEIGHT, static_cast<WPARAM>(-1), height - kBorders);
    }
    if (control.Kind() == ControlKind::TabStrip)
        SendMessageA(WindowOf(control), TCM_SETITEMSIZE, 0,
                     MAKELPARAM(0, ToPixels(TabStrip::kTabHeight, DpiOf(control))));
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

void CreateControls(Container& container) {
    for (Control* control : container.Controls())
        if (control->Visible() && control->window == nullptr) CreateControl(*control);
}

void CreateControl(Control& control) {
    const Look look = LookOf(control);
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
    if (control.Kind() == ControlKind::VirtualList) PrepareVirtualList(static_cast<VirtualList&>(control));
    ApplyFont(control);
    FillControl(control);
    SetWindowLongPtrA(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(&control));
    Subclass(control);
    if (control.Kind() == ControlKind::TabStrip) ShowFrontPage(static_cast<TabStrip&>(control));
}

void PlaceControl(Control& control) {
    const RECT place = PixelPlace(control);
    SetWindowPos(WindowOf(control), nullptr, place.left, place.top, place.right - place.left, place.bottom - place.top,
                 SWP_NOZORDER | SWP_NOACTIVATE);
    ApplyFont(control);
    if (control.Kind() == ControlKind::TabStrip) PlacePages(static_cast<TabStrip&>(control));
    // With its border, of which a move in the middle of other moves may leave parts behind.
    RedrawWindow(WindowOf(control), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME);
}

}  // namespace win32

namespace native {

using namespace win32;

void DestroyControl(Control& control) {
    const HWND window = WindowOf(control);
    control.window = nullptr;
    StateOf(control.Holder().Owner()).toolTipOwners.erase(window);
    SetWindowLongPtrA(window, GWLP_USERDATA, 0);
    DestroyWindow(window);
}

}  // namespace native

}  // namespace quirn
