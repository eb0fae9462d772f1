#include <windows.h>

#include <commctrl.h>  // needs windows.h first

#include "platform/win32/window.h"

// One tool tip window for each form, made when the pointer first comes to a control that has a tip.
namespace quirn::win32 {

namespace {

// The size that every version of the common controls takes.
TTTOOLINFOA ToolFor(const Control& control) {
    TTTOOLINFOA tool{};
    tool.cbSize = TTTOOLINFOA_V2_SIZE;
    tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
    tool.hwnd = WindowOf(control.Holder());
    tool.uId = reinterpret_cast<UINT_PTR>(WindowOf(control));
    tool.lpszText = const_cast<char*>(control.ToolTip().c_str());
    return tool;
}

}  // namespace

void PrepareToolTip(Control& control) {
    if (control.ToolTip().empty()) return;
    const Form& form = control.Holder().Owner();
    FormWindow& state = StateOf(form);
    if (!state.toolTipOwners.insert(WindowOf(control)).second) return;
    if (state.toolTip == nullptr) {
        const INITCOMMONCONTROLSEX classes{sizeof(INITCOMMONCONTROLSEX), ICC_TAB_CLASSES};  // tool tips come with tabs
        InitCommonControlsEx(&classes);
        state.toolTip = CreateWindowExA(WS_EX_TOPMOST, TOOLTIPS_CLASSA, nullptr,
                                        static_cast<DWORD>(WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX), 0, 0, 0, 0,
                                        WindowOf(form), nullptr, Instance(), nullptr);
    }
    const TTTOOLINFOA tool = ToolFor(control);
    SendMessageA(state.toolTip, TTM_ADDTOOLA, 0, reinterpret_cast<LPARAM>(&tool));
}

void ToolTipChanged(Control& control) {
    const FormWindow& state = StateOf(control.Holder().Owner());
    if (!state.toolTipOwners.contains(WindowOf(control))) return;
    const TTTOOLINFOA tool = ToolFor(control);
    SendMessageA(state.toolTip, TTM_UPDATETIPTEXTA, 0, reinterpret_cast<LPARAM>(&tool));
}

}  // namespace quirn::win32
