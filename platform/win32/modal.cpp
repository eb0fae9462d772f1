#include <windows.h>

#include "platform/native.h"
#include "platform/win32/window.h"

namespace quirn {

namespace win32 {

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
