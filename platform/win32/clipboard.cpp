#include "platform/clipboard.h"

#include <windows.h>

#include <cstring>

namespace quirn {

bool SetClipboardText(const std::string& text) {
    const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, text.size() + 1);
    if (memory == nullptr) return false;
    std::memcpy(GlobalLock(memory), text.c_str(), text.size() + 1);
    GlobalUnlock(memory);
    // Without an owner window what was emptied would belong to nobody, and nothing could be put there.
    if (!OpenClipboard(GetActiveWindow())) {
        GlobalFree(memory);
        return false;
    }
    EmptyClipboard();
    const bool done = SetClipboardData(CF_TEXT, memory) != nullptr;
    if (!done) GlobalFree(memory);
    CloseClipboard();
    return done;
}

}  // namespace quirn
