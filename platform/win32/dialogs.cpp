#include "platform/dialogs.h"

#include <windows.h>

#include "platform/version.h"

namespace quirn {

Answer ShowMessage(const std::string& text, unsigned style, const std::string& caption) {
    const HWND owner = GetActiveWindow();
    // Without an owner the box would open behind other programs and leave hidden windows of this one usable.
    if (owner == nullptr) style |= MB_SETFOREGROUND | MB_TASKMODAL;
    switch (MessageBoxA(owner, text.c_str(), caption.empty() ? kTitle : caption.c_str(), style)) {
        case IDOK: return Answer::Ok;
        case IDYES: return Answer::Yes;
        case IDNO: return Answer::No;
        default: return Answer::Cancel;
    }
}

}  // namespace quirn
