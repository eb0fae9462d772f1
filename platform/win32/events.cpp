#include <windows.h>

#include "platform/form.h"
#include "platform/win32/window.h"

// Messages from the queue, and the keyboard: what it means for the form comes before what it means for a control.
namespace quirn {

namespace win32 {

namespace {

enum class Key { Done, ForControl, ForDialogManager };

// The dialog manager knows two more names of Enter and Esc.
int PlainKey(WPARAM key) {
    if (key == VK_EXECUTE) return kKeyEnter;
    if (key == VK_CANCEL) return kKeyEscape;
    return static_cast<int>(key);
}

// What the form does with Enter and Esc. They never reach the dialog manager: it would send the form the commands 1 and
// 2, which are menu items.
void AnswerEnterOrEscape(Form& form, int key) {
    form.UserTypes(static_cast<char>(key));
    if (!form.IsLoaded()) return;
    if (key == kKeyEnter) form.UserPressesEnter();
    else form.UserPressesEscape();
}

Key AnswerKey(Form& form, int key) {
    const bool control = Pressed(VK_CONTROL);
    const bool shift = Pressed(VK_SHIFT);
    const bool enterOrEscape = key == kKeyEnter || key == kKeyEscape;
    // Windows sends a key with Ctrl and Alt (AltGr) as one without: it is none of the form's, and Esc must not reach
    // the dialog manager all the same.
    if (Pressed(VK_MENU)) return enterOrEscape ? Key::ForControl : Key::ForDialogManager;
    if (control && key == VK_TAB && form.UserTurnsPage(shift ? -1 : 1)) return Key::Done;
    if (control && (key == VK_NEXT || key == VK_PRIOR) && form.UserTurnsPage(key == VK_NEXT ? 1 : -1)) return Key::Done;
    if (form.ActiveControl() != nullptr && form.ActiveControl()->KeepsKey(key, control && !shift))
        return Key::ForControl;
    if (form.UserPressesShortcut({key, control, shift})) return Key::Done;
    if (!enterOrEscape) return Key::ForDialogManager;
    AnswerEnterOrEscape(form, key);
    return Key::Done;
}

// The dialog manager would find access keys too, but for a label it asks the form to move the focus, which only a
// dialog box understands.
bool AnswerAccessKey(Form& form, const MSG& message) {
    if (message.message == WM_CHAR) {
        const LRESULT wants = SendMessageA(message.hwnd, WM_GETDLGCODE, 0, 0);
        if ((wants & (DLGC_WANTCHARS | DLGC_WANTALLKEYS)) != 0 || message.wParam <= ' ') return false;
    } else if (message.message != WM_SYSCHAR) {
        return false;
    }
    const HWND before = GetFocus();
    if (!form.UserPressesAccessKey(static_cast<char>(message.wParam))) return false;
    const HWND focus = GetFocus();
    if (focus != before && (SendMessageA(focus, WM_GETDLGCODE, 0, 0) & DLGC_HASSETSEL) != 0)
        SendMessageA(focus, EM_SETSEL, 0, -1);
    return true;
}

// True when the message needs nothing more.
bool Answered(MSG& message) {
    Form* const form = FormOf(message.hwnd);
    // A minimised form has no dialog keys: IsDialogMessage looks for the next control that can be seen, and among
    // windows that all cannot it may look for ever.
    if (form == nullptr || form->IsMinimized()) return false;
    const HWND window = WindowOf(*form);
    if (message.message == WM_CHAR) {
        form->UserTypes(static_cast<char>(message.wParam));
        if (!IsWindow(message.hwnd)) return true;
        // A form that takes characters invites typing: there only Alt makes an access key of one.
        if (form->onKeyPress && message.wParam > ' ') return false;
    }
    if (message.message == WM_KEYDOWN) {
        switch (AnswerKey(*form, PlainKey(message.wParam))) {
            case Key::Done: return true;
            case Key::ForControl: return false;
            case Key::ForDialogManager: break;
        }
    }
    if (AnswerAccessKey(*form, message)) return true;
    return IsDialogMessageA(window, &message) != FALSE;
}

bool onlyPainting = false;  // events are let through, but no command may begin

}  // namespace

bool PostedOn(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_COMMAND:
        case WM_QUERYENDSESSION:  // is always sent, and wants its answer at once when there can be one
            if (!onlyPainting) return false;
            break;
        case WM_CLOSE:
        case WM_DROPFILES:
        case kTrayMessage:
            if (!onlyPainting && !InSendMessage()) return false;
            break;
        default: return false;
    }
    return PostMessageA(window, message, wParam, lParam) != FALSE;
}

bool RunOneEvent() {
    MSG message;
    if (!PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) return false;
    if (Answered(message)) return true;
    TranslateMessage(&message);
    DispatchMessageA(&message);
    return true;
}

void RunUntil(const std::function<bool()>& done) {
    while (!done()) {
        // A message that was sent has been handled inside of looking for one, and may have made it done.
        if (RunOneEvent() || done()) continue;
        MsgWaitForMultipleObjectsEx(0, nullptr, INFINITE, QS_ALLINPUT, MWMO_INPUTAVAILABLE);
    }
}

}  // namespace win32

void DoEvents() {
    while (win32::RunOneEvent()) {
    }
}

void DoPaintEvents() {
    win32::onlyPainting = true;
    MSG message{};
    while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE | PM_QS_PAINT | PM_QS_SENDMESSAGE))
        DispatchMessageA(&message);
    win32::onlyPainting = false;
}

void WaitForEvents(int milliseconds) {
    MsgWaitForMultipleObjectsEx(0, nullptr, static_cast<DWORD>(milliseconds), QS_ALLINPUT, MWMO_INPUTAVAILABLE);
    DoEvents();
}

}  // namespace quirn
