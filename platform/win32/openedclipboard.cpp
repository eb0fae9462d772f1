#include "platform/win32/openedclipboard.h"

namespace quirn::win32 {

namespace {

constexpr int kTries = 10;
constexpr DWORD kPauseMs = 10;

}  // namespace

OpenedClipboard::OpenedClipboard(HWND owner) {
    for (int tries = 1; !(isOpen_ = OpenClipboard(owner) != 0) && tries < kTries; ++tries) Sleep(kPauseMs);
}

OpenedClipboard::~OpenedClipboard() {
    if (isOpen_) CloseClipboard();
}

}  // namespace quirn::win32
