#include "platform/shell.h"

#include <windows.h>

#include <objbase.h>  // these need windows.h first
#include <shellapi.h>

#include "platform/files.h"
#include "platform/win32/window.h"

namespace quirn {

bool OpenWithRegisteredProgram(Form& owner, const std::string& target) {
    // Some registered programs are started through COM, which the shell leaves to its caller.
    static const HRESULT com = CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED | COINIT_DISABLE_OLE1DDE);
    (void)com;
    constexpr INT_PTR kLastError = 32;
    const HCURSOR before = SetCursor(LoadCursorA(nullptr, IDC_WAIT));
    const HINSTANCE result =
        ShellExecuteA(win32::WindowOf(owner), "open", target.c_str(), nullptr, nullptr, SW_SHOWNORMAL);
    SetCursor(before);
    return reinterpret_cast<INT_PTR>(result) > kLastError;
}

bool ShowHelpContents(Form& owner, const std::string& helpFile) {
    return FileExists(helpFile) && WinHelpA(win32::WindowOf(owner), helpFile.c_str(), HELP_CONTENTS, 0) != FALSE;
}

}  // namespace quirn
