#include "platform/clipboard.h"

#include <windows.h>

#include <cstring>

#include "platform/win32/errors.h"
#include "platform/win32/openedclipboard.h"

namespace quirn {

Failure SetClipboardText(const std::string& text) {
    const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, text.size() + 1);
    if (memory == nullptr) return MakeError(ErrorNumber::OutOfMemory);
    std::memcpy(GlobalLock(memory), text.c_str(), text.size() + 1);
    GlobalUnlock(memory);
    // Without an owner window what was emptied would belong to nobody, and nothing could be put there.
    const win32::OpenedClipboard clipboard(GetActiveWindow());
    if (!clipboard) {
        GlobalFree(memory);
        return MakeError(ErrorNumber::PermissionDenied);
    }
    EmptyClipboard();
    if (SetClipboardData(CF_TEXT, memory) != nullptr) return {};
    Failure failure = win32::LastError();
    GlobalFree(memory);
    return failure;
}

}  // namespace quirn
