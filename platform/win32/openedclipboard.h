#pragma once

#include <windows.h>

namespace quirn::win32 {

// The clipboard, open while this lives. Programs that watch it (histories, remote desktops) open it for a moment after
// every change, and whoever comes then is refused; so a refusal is tried again for up to a tenth of a second.
class OpenedClipboard {
public:
    // What is put there belongs to owner. Without an owner nothing can be put there, only read.
    explicit OpenedClipboard(HWND owner);
    ~OpenedClipboard();
    OpenedClipboard(const OpenedClipboard&) = delete;
    OpenedClipboard& operator=(const OpenedClipboard&) = delete;

    // Whether it is open: false while another program holds it for longer.
    explicit operator bool() const { return isOpen_; }

private:
    bool isOpen_ = false;
};

}  // namespace quirn::win32
