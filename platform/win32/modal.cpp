#include <windows.h>

#include "platform/native.h"
#include "platform/win32/window.h"

namespace quirn {

namespace win32 {

namespace {

bool CanAnswer(HWND window) {
    return IsWindowVisible(window) && IsWindowEnabled(window);
}

BOOL CALLBACK FindAnswerable(HWND window, LPARAM found) {
    if (!CanAnswer(window)) return TRUE;
    *reinterpret_cast<HWND*>(found) = window;
    return FALSE;
}

BOOL CALLBACK CollectEnabledForm(HWND window, LPARAM found) {
    if (FormOf(window) != nullptr && IsWindowEnabled(window))
        reinterpret_cast<std::vector<HWND>*>(found)->push_back(window);
    return TRUE;
}

}  // namespace

HWND ForemostAnswerable(DWORD thread) {
    HWND found = nullptr;
    EnumThreadWindows(thread, FindAnswerable, reinterpret_cast<LPARAM>(&found));
    return found;
}

HWND AnswerableFor(HWND window) {
    if (IsWindowEnabled(window)) return window;
    const HWND dialog = GetLastActivePopup(window);
    if (CanAnswer(dialog)) return dialog;
    const HWND foremost = ForemostAnswerable(GetWindowThreadProcessId(window, nullptr));
    return foremost != nullptr ? foremost : window;
}

OneQuestion::OneQuestion(HWND owner) {
    if (owner == nullptr) return;
    EnumThreadWindows(GetCurrentThreadId(), CollectEnabledForm, reinterpret_cast<LPARAM>(&waiting_));
    std::erase(waiting_, owner);
    for (const HWND window : waiting_) EnableWindow(window, FALSE);
}

OneQuestion::~OneQuestion() {
    for (const HWND window : waiting_)
        if (IsWindow(window)) EnableWindow(window, TRUE);
}

// The owner is enabled again while the modal window is still there: otherwise the system would activate another
// program's window when that one goes.
void EndModal(Form& form) {
    HWND& owner = StateOf(form).disabledOwner;
    if (owner != nullptr) EnableWindow(owner, TRUE);
    owner = nullptr;
}

}  // namespace win32

namespace native {

using namespace win32;

void RunModal(Form& form, Form& owner) {
    const HWND ownerWindow = WindowOf(owner);
    if (ownerWindow != nullptr) {
        SetWindowLongPtrA(WindowOf(form), GWLP_HWNDPARENT, reinterpret_cast<LONG_PTR>(ownerWindow));
        if (IsWindowEnabled(ownerWindow)) {
            StateOf(form).disabledOwner = ownerWindow;
            EnableWindow(ownerWindow, FALSE);
        }
    }
    form.Show();
    RunUntil([&] { return !form.IsLoaded() || !form.Visible(); });
}

}  // namespace native

}  // namespace quirn
