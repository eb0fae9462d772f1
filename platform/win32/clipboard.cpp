#include "platform/clipboard.h"

#include <windows.h>

#include <cstring>

#include "platform/win32/errors.h"

namespace quirn {

Failure SetClipboardText(const std::string& text) {
    const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, text.size() + 1);
    if (memory == nullptr) return MakeError(ErrorNumber::OutOfMemory);
    std::memcpy(GlobalLock(memory), text.c_str(), text.size() + 1);
    GlobalUnlock(memory);
    // Without an owner window what was emptied would belong to nobody, and nothing could be put there.
    if (!OpenClipboard(GetActiveWindow())) {
        GlobalFree(memory);
        return MakeError(ErrorNumber::PermissionDenied);
    }
    EmptyClipboard();
    Failure failure;
    if (SetClipboardData(CF_TEXT, memory) == nullptr) {
        failure = win32::LastError();
        GlobalFree(memory);
    }
    CloseClipboard();
    return failure;
}

}  // namespace quirn
