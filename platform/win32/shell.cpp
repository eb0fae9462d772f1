#include "platform/shell.h"

#include <windows.h>

#include <objbase.h>  // these need windows.h first
#include <shellapi.h>

#include "platform/files.h"
#include "platform/win32/errors.h"
#include "platform/win32/window.h"

namespace quirn {

namespace {

constexpr INT_PTR kLastError = 32;

// The shell's own codes; the lower ones are the system's.
RuntimeError ErrorOfShell(INT_PTR code) {
    switch (code) {
        case 0: return MakeError(ErrorNumber::OutOfMemory);
        case SE_ERR_SHARE: return MakeError(ErrorNumber::PermissionDenied);
        case SE_ERR_DLLNOTFOUND: return MakeError(ErrorNumber::FileNotFound);
        case SE_ERR_ASSOCINCOMPLETE:
        case SE_ERR_NOASSOC: {
            RuntimeError error = MakeError(ErrorNumber::FileNotFound);
            error.description = "No program is registered for it";
            return error;
        }
        default: return win32::ErrorFrom(static_cast<DWORD>(code));
    }
}

}  // namespace

Failure OpenWithRegisteredProgram(Form& owner, const std::string& target) {
    // Some registered programs are started through COM, which the shell leaves to its caller.
    static const HRESULT com = CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED | COINIT_DISABLE_OLE1DDE);
    (void)com;
    const HCURSOR before = SetCursor(LoadCursorA(nullptr, IDC_WAIT));
    const auto result = reinterpret_cast<INT_PTR>(
        ShellExecuteA(win32::WindowOf(owner), "open", target.c_str(), nullptr, nullptr, SW_SHOWNORMAL));
    SetCursor(before);
    if (result > kLastError) return {};
    return ErrorOfShell(result);
}

bool ShowHelpContents(Form& owner, const std::string& helpFile) {
    return FileExists(helpFile) && WinHelpA(win32::WindowOf(owner), helpFile.c_str(), HELP_CONTENTS, 0) != FALSE;
}

}  // namespace quirn
