#include "platform/tray.h"

#include <windows.h>

#include <shellapi.h>  // needs windows.h first

#include <algorithm>
#include <vector>

#include "platform/native.h"
#include "platform/win32/window.h"
#include "resources/resource.h"

namespace quirn {

namespace win32 {

namespace {

constexpr UINT kIconId = 100;

// The 32-bit record is 88 bytes long in its first form; 152, the size with a wide tip, is what is passed, and the
// system takes it for the first form. The structure is longer than that, so nothing foreign is read. A 64-bit system's
// record has other sizes: there it is the first form's own.
constexpr DWORD kRecordSize = sizeof(void*) == 4 ? 152 : NOTIFYICONDATAA_V1_SIZE;
static_assert(sizeof(NOTIFYICONDATAA) >= kRecordSize);
constexpr size_t kLongestTip = 63;  // in the first form, and a NUL

std::vector<TrayIcon*> icons;

void Tell(DWORD mode, const TrayIcon& icon) {
    static const auto picture =
        static_cast<HICON>(LoadImageA(Instance(), MAKEINTRESOURCEA(IDI_QUIRN), IMAGE_ICON,
                                      GetSystemMetrics(SM_CXSMICON), GetSystemMetrics(SM_CYSMICON), LR_DEFAULTCOLOR));
    NOTIFYICONDATAA record{};
    record.cbSize = kRecordSize;
    record.hWnd = WindowOf(icon.Owner());
    record.uID = kIconId;
    record.uFlags = NIF_MESSAGE | NIF_ICON | NIF_TIP;
    record.uCallbackMessage = kTrayMessage;
    record.hIcon = picture;
    icon.Tip().copy(record.szTip, kLongestTip);
    Shell_NotifyIconA(mode, &record);
}

UINT TaskbarCreated() {
    static const UINT message = RegisterWindowMessageA("TaskbarCreated");
    return message;
}

}  // namespace

bool TrayMessage(Form& form, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message != kTrayMessage && (icons.empty() || message != TaskbarCreated())) return false;
    const auto found =
        std::find_if(icons.begin(), icons.end(), [&](const TrayIcon* icon) { return &icon->Owner() == &form; });
    if (found == icons.end()) return false;
    if (message == TaskbarCreated()) Tell(NIM_ADD, **found);
    else if (wParam == kIconId) (*found)->UserPoints(static_cast<unsigned>(lParam));
    return true;
}

}  // namespace win32

namespace native {

using namespace win32;

void AddTrayIcon(TrayIcon& icon) {
    icons.push_back(&icon);
    Tell(NIM_ADD, icon);
}

void RemoveTrayIcon(TrayIcon& icon) {
    std::erase(icons, &icon);
    Tell(NIM_DELETE, icon);
}

// Balloons came with the record's second form.
void ShowTrayBalloon(TrayIcon& icon, const std::string& title, const std::string& text) {
    NOTIFYICONDATAA record{};
    record.cbSize = NOTIFYICONDATAA_V2_SIZE;
    record.hWnd = WindowOf(icon.Owner());
    record.uID = kIconId;
    record.uFlags = NIF_INFO;
    record.dwInfoFlags = NIIF_INFO;
    title.copy(record.szInfoTitle, sizeof(record.szInfoTitle) - 1);
    text.copy(record.szInfo, sizeof(record.szInfo) - 1);
    Shell_NotifyIconA(NIM_MODIFY, &record);
}

}  // namespace native

}  // namespace quirn
