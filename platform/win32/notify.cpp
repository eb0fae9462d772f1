#include <windows.h>

#include <commctrl.h>  // needs windows.h first

#include "platform/win32/metrics.h"
#include "platform/win32/window.h"

// What the windows of controls report to their form or page.
namespace quirn::win32 {

namespace {

void EditCommand(Control& control, WORD code) {
    // A text that is being set comes here too. The control has it already, and the window need not give back the same:
    // a NUL ends its text, and bytes that the system's code page does not know change in it.
    if (code != EN_CHANGE || TextIsBeingSet(WindowOf(control))) return;
    const std::string text = TextOf(WindowOf(control));
    if (control.Kind() == ControlKind::TextBox) static_cast<TextBox&>(control).UserEdits(text);
    else static_cast<MaskedBox&>(control).UserEdits(text);
}

void ListCommand(ListBox& list, WORD code) {
    if (code != LBN_SELCHANGE) return;
    std::vector<int> selected;
    const HWND window = WindowOf(list);
    for (int i = 0; i < static_cast<int>(list.Items().size()); ++i)
        if (SendMessageA(window, LB_GETSEL, static_cast<WPARAM>(i), 0) > 0) selected.push_back(i);
    list.UserSelects(selected);
}

void Command(Control& control, WORD code) {
    const bool clicked = code == BN_CLICKED && !FocusArrives(WindowOf(control));
    switch (control.Kind()) {
        case ControlKind::Label:
            if (code == STN_CLICKED) static_cast<Label&>(control).UserClicks();
            if (code == STN_DBLCLK) static_cast<Label&>(control).UserDoubleClicks();
            break;
        // The second click of two quick ones is a click as well.
        case ControlKind::Picture:
            if (code == STN_CLICKED || code == STN_DBLCLK) static_cast<Picture&>(control).UserClicks();
            break;
        case ControlKind::Button:
            if (clicked) static_cast<Button&>(control).UserClicks();
            break;
        case ControlKind::CheckBox:
            if (clicked) static_cast<CheckBox&>(control).UserClicks();
            break;
        // An option button also reports a click when it only gets the focus.
        case ControlKind::OptionButton:
            if (clicked) static_cast<OptionButton&>(control).UserClicks();
            break;
        case ControlKind::TextBox:
        case ControlKind::MaskedBox: EditCommand(control, code); break;
        case ControlKind::ComboBox: ComboBoxCommand(static_cast<ComboBox&>(control), code); break;
        case ControlKind::ListBox: ListCommand(static_cast<ListBox&>(control), code); break;
        case ControlKind::VirtualList: VirtualListCommand(static_cast<VirtualList&>(control), code); break;
        default: break;
    }
}

std::optional<LRESULT> Notify(const NMHDR& header) {
    Control* const control = ControlOf(header.hwndFrom);
    if (control == nullptr) return std::nullopt;
    if (control->Kind() == ControlKind::TabStrip && header.code == TCN_SELCHANGE) {
        static_cast<TabStrip*>(control)->UserTurnsTo(
            static_cast<int>(SendMessageA(header.hwndFrom, TCM_GETCURSEL, 0, 0)));
        return 0;
    }
    if (control->Kind() == ControlKind::UpDown && header.code == UDN_DELTAPOS) {
        static_cast<UpDown*>(control)->UserSpins(reinterpret_cast<const NMUPDOWN&>(header).iDelta);
        return TRUE;  // its own position stays
    }
    return std::nullopt;
}

// The brush behind a control; nothing for the system's.
std::optional<LRESULT> ColorsOf(const Form& form, HDC device, HWND window) {
    const Control* control = ControlOf(window);
    if (control == nullptr) return std::nullopt;
    const bool onForm = &control->Holder() == &form;
    const bool edits = control->Kind() == ControlKind::TextBox || control->Kind() == ControlKind::MaskedBox ||
                       control->Kind() == ControlKind::ListBox || control->Kind() == ControlKind::ComboBox ||
                       control->Kind() == ControlKind::VirtualList;
    std::optional<Color> own = control->BackColor();
    if (!own && onForm && !edits) own = form.BackColor();
    if (!own && !control->ForeColor()) return std::nullopt;
    const Color back = own.value_or(GetSysColor(edits ? COLOR_WINDOW : COLOR_BTNFACE));
    SetTextColor(device, control->ForeColor().value_or(GetSysColor(COLOR_WINDOWTEXT)));
    SetBkColor(device, back);
    SetDCBrushColor(device, back);
    return reinterpret_cast<LRESULT>(GetStockObject(DC_BRUSH));
}

void DrawPanel(const Frame& panel, HDC device, RECT area) {
    SetDCBrushColor(device, panel.BackColor().value_or(GetSysColor(COLOR_WINDOW)));
    FillRect(device, &area, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
    DrawEdge(device, &area, EDGE_RAISED, BF_RECT | BF_ADJUST);
    const HGDIOBJ before = SelectObject(device, FontFor(panel.FontUsed(), DpiOf(panel)));
    SetTextColor(device, panel.ForeColor().value_or(GetSysColor(COLOR_WINDOWTEXT)));
    SetBkMode(device, TRANSPARENT);
    constexpr int kTextTop = 120;  // twips
    area.top += ToPixels(kTextTop, DpiOf(panel));
    DrawTextA(device, panel.Text().c_str(), -1, &area, DT_CENTER | DT_SINGLELINE);
    SelectObject(device, before);
}

bool Draw(const DRAWITEMSTRUCT& item) {
    const Control* control = ControlOf(item.hwndItem);
    if (control == nullptr) return false;
    if (control->Kind() == ControlKind::Frame) {
        DrawPanel(static_cast<const Frame&>(*control), item.hDC, item.rcItem);
        return true;
    }
    if (control->Kind() == ControlKind::VirtualList) {
        DrawVirtualItem(static_cast<const VirtualList&>(*control), item);
        return true;
    }
    if (control->Kind() != ControlKind::Picture) return false;
    const int width = item.rcItem.right - item.rcItem.left;
    const int height = item.rcItem.bottom - item.rcItem.top;
    const auto icon =
        static_cast<HICON>(LoadImageA(Instance(), MAKEINTRESOURCEA(static_cast<const Picture*>(control)->Resource()),
                                      IMAGE_ICON, width, height, LR_DEFAULTCOLOR));
    if (icon == nullptr) return true;
    DrawIconEx(item.hDC, item.rcItem.left, item.rcItem.top, icon, width, height, 0, nullptr, DI_NORMAL);
    DestroyIcon(icon);
    return true;
}

}  // namespace

std::optional<LRESULT> NotificationFromControl(Form& form, UINT message, WPARAM wParam, LPARAM lParam) {
    const auto window = reinterpret_cast<HWND>(lParam);
    switch (message) {
        case WM_COMMAND:
            if (window == nullptr) return std::nullopt;
            if (PostedOn(WindowOf(form), message, wParam, lParam)) return 0;
            if (Control* control = ControlOf(window)) Command(*control, HIWORD(wParam));
            return 0;
        case WM_NOTIFY: return Notify(*reinterpret_cast<const NMHDR*>(lParam));
        case WM_CTLCOLORSTATIC:
        case WM_CTLCOLOREDIT:
        case WM_CTLCOLORLISTBOX:
        case WM_CTLCOLORBTN: return ColorsOf(form, reinterpret_cast<HDC>(wParam), window);
        case WM_DRAWITEM:
            if (Draw(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam))) return TRUE;
            return std::nullopt;
        default: return std::nullopt;
    }
}

}  // namespace quirn::win32
