#include "platform/shell.h"

#include <windows.h>

#include <shellapi.h>  // needs windows.h first

#include "platform/files.h"
#include "platform/win32/com.h"
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

Failure Execute(Form& owner, const std::string& target, const char* arguments) {
    win32::InitCom();
    const HCURSOR before = SetCursor(LoadCursorA(nullptr, IDC_WAIT));
    const auto result = reinterpret_cast<INT_PTR>(
        ShellExecuteA(win32::WindowOf(owner), "open", target.c_str(), arguments, nullptr, SW_SHOWNORMAL));
    SetCursor(before);
    return result > kLastError ? Failure() : ErrorOfShell(result);
}

}  // namespace

Failure OpenWithRegisteredProgram(Form& owner, const std::string& target) {
    return Execute(owner, target, nullptr);
}

Failure ShowInFolder(Form& owner, const std::string& path) {
    return Execute(owner, "explorer.exe", ("/select,\"" + path + "\"").c_str());
}

Failure MoveToRecycleBin(Form& owner, const std::string& path) {
    const std::string list = AbsolutePath(path) + '\0';  // and the text's own NUL ends it
    SHFILEOPSTRUCTA deed{};
    deed.hwnd = win32::WindowOf(owner);
    deed.wFunc = FO_DELETE;
    deed.pFrom = list.c_str();
    deed.fFlags = FOF_ALLOWUNDO | FOF_NOCONFIRMATION | FOF_WANTNUKEWARNING | FOF_SILENT | FOF_NOERRORUI;
    const bool failed = SHFileOperationA(&deed) != 0 || deed.fAnyOperationsAborted;
    return failed && FileExists(path) ? MakeError(ErrorNumber::PathFileAccess) : Failure();
}

bool ShowHelpContents(Form& owner, const std::string& helpFile) {
    return FileExists(helpFile) && WinHelpA(win32::WindowOf(owner), helpFile.c_str(), HELP_CONTENTS, 0) != FALSE;
}

}  // namespace quirn
