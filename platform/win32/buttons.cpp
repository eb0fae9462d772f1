#include <windows.h>

#include "platform/win32/colors.h"
#include "platform/win32/kind.h"
#include "platform/win32/metrics.h"

// Push buttons, check boxes and option buttons.
namespace quirn {

namespace win32 {

namespace {

// A button may also report a click when it only gets the focus.
template <class AnyButton>
void ButtonCommand(AnyButton& button, WORD code) {
    if (code == BN_CLICKED && !FocusArrives(WindowOf(button))) button.UserClicks();
}

Look ButtonLook(const Button& button) {
    const bool isDefault = &button == button.Holder().Owner().DefaultButton();
    return {.className = "BUTTON",
            .style = WS_TABSTOP | static_cast<DWORD>(isDefault ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON)};
}

Look LinkLook(const LinkButton&) {
    return {.className = "BUTTON", .style = WS_TABSTOP | BS_OWNERDRAW};
}

void DrawLink(const LinkButton& link, const DRAWITEMSTRUCT& item) {
    Font font = link.FontUsed();
    font.underline = true;
    RECT area = item.rcItem;
    FillRect(item.hDC, &area, GetSysColorBrush(COLOR_BTNFACE));
    const HGDIOBJ before = SelectObject(item.hDC, FontFor(font, DpiOf(link)));
    SetTextColor(item.hDC, link.Enabled() ? ForeColorOf(link).value_or(GetSysColor(COLOR_HOTLIGHT))
                                          : GetSysColor(COLOR_GRAYTEXT));
    SetBkMode(item.hDC, TRANSPARENT);
    DrawTextA(item.hDC, link.Text().c_str(), -1, &area, DT_LEFT | DT_SINGLELINE | DT_END_ELLIPSIS);
    SelectObject(item.hDC, before);
    if ((item.itemState & ODS_FOCUS) != 0) DrawFocusRect(item.hDC, &area);
}

std::optional<LRESULT> LinkMessage(const LinkButton&, const Message& m) {
    if (m.message != WM_SETCURSOR) return std::nullopt;
    SetCursor(LoadCursorA(nullptr, IDC_HAND));
    return TRUE;
}

// Neither changes by itself when clicked: the control's state does, and the window follows.
Look CheckLook(const CheckBox&) {
    return {.className = "BUTTON", .style = WS_TABSTOP | BS_CHECKBOX};
}

Look OptionLook(const OptionButton&) {
    return {.className = "BUTTON", .style = BS_RADIOBUTTON};
}

void ApplyCheck(const CheckBox& box, Aspect aspect) {
    if (aspect == Aspect::Value) SendMessageA(WindowOf(box), BM_SETCHECK, static_cast<WPARAM>(box.Value()), 0);
}

void FillCheck(const CheckBox& box) {
    if (box.Value() != 0) ApplyCheck(box, Aspect::Value);
}

// The Tab key stops at the selected button of a group, or at the first when none is.
void ApplyOption(const OptionButton& option, Aspect aspect) {
    if (aspect != Aspect::Value) return;
    const HWND window = WindowOf(option);
    const int selected = option.Group().Selected();
    SendMessageA(window, BM_SETCHECK, selected == option.Index() ? BST_CHECKED : BST_UNCHECKED, 0);
    const LONG_PTR style = GetWindowLongPtrA(window, GWL_STYLE);
    const bool stops = selected == option.Index() || (selected < 0 && option.Index() == 0);
    SetWindowLongPtrA(window, GWL_STYLE, stops ? style | WS_TABSTOP : style & ~static_cast<LONG_PTR>(WS_TABSTOP));
}

void FillOption(const OptionButton& option) {
    ApplyOption(option, Aspect::Value);
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

std::optional<LRESULT> OptionMessage(OptionButton& option, const Message& m) {
    if (m.message == WM_GETDLGCODE) return Pass(m) | DLGC_WANTARROWS;
    if (m.message != WM_KEYDOWN) return std::nullopt;
    if (m.wParam == VK_RIGHT || m.wParam == VK_DOWN) MoveOption(option, 1);
    else if (m.wParam == VK_LEFT || m.wParam == VK_UP) MoveOption(option, -1);
    else return std::nullopt;
    return 0;
}

}  // namespace

}  // namespace win32

namespace native {

using namespace win32;

const Kind kButton{.look = For<ButtonLook>, .command = For<ButtonCommand<Button>>};
const Kind kLinkButton{.look = For<LinkLook>,
                       .command = For<ButtonCommand<LinkButton>>,
                       .draw = For<DrawLink>,
                       .message = For<LinkMessage>};
const Kind kCheckBox{
    .look = For<CheckLook>, .fill = For<FillCheck>, .apply = For<ApplyCheck>, .command = For<ButtonCommand<CheckBox>>};
const Kind kOptionButton{.look = For<OptionLook>,
                         .fill = For<FillOption>,
                         .apply = For<ApplyOption>,
                         .command = For<ButtonCommand<OptionButton>>,
                         .message = For<OptionMessage>};

}  // namespace native

}  // namespace quirn
