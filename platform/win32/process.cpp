#include "platform/process.h"

#include <windows.h>

#include <array>

#include "platform/win32/handle.h"
#include "platform/win32/window.h"

namespace quirn {

namespace {

HWND ToWindow(WindowHandle window) {
    return reinterpret_cast<HWND>(window);
}
WindowHandle FromWindow(HWND window) {
    return reinterpret_cast<WindowHandle>(window);
}

}  // namespace

std::string CommandLineTail() {
    const char* at = GetCommandLineA();
    bool quoted = false;
    for (; *at != '\0' && (quoted || (*at != ' ' && *at != '\t')); ++at)
        if (*at == '"') quoted = !quoted;
    while (*at == ' ' || *at == '\t') ++at;
    return at;
}

bool ClaimSingleInstance() {
    static win32::KernelHandle claim;
    SetLastError(ERROR_SUCCESS);
    claim.Reset(CreateMutexA(nullptr, FALSE, "Local\\QUIRN.SingleInstance"));
    // Access is denied when the other copy runs with more rights than this one.
    const DWORD code = GetLastError();
    return code != ERROR_ALREADY_EXISTS && code != ERROR_ACCESS_DENIED;
}

Process::~Process() {
    if (handle_ != nullptr) CloseHandle(handle_);
}

bool Process::Start(const std::string& program, const std::string& folder) {
    static_assert(sizeof(void*) != 4 || sizeof(STARTUPINFOA) == 68);
    STARTUPINFOA startup{};
    startup.cb = sizeof(startup);
    PROCESS_INFORMATION started{};
    if (!CreateProcessA(program.c_str(), nullptr, nullptr, nullptr, TRUE, 0, nullptr, folder.c_str(), &startup,
                        &started))
        return false;
    CloseHandle(started.hThread);
    if (handle_ != nullptr) CloseHandle(handle_);
    handle_ = started.hProcess;
    return true;
}

bool Process::IsRunning() const {
    return handle_ != nullptr && WaitForSingleObject(handle_, 0) == WAIT_TIMEOUT;
}

bool WindowOfClassExists(const std::string& className) {
    return FindWindowA(className.c_str(), nullptr) != nullptr;
}

WindowHandle FirstTopLevelWindow() {
    const HWND any = FindWindowA(nullptr, nullptr);
    return any == nullptr ? 0 : FromWindow(GetWindow(any, GW_HWNDFIRST));
}

WindowHandle NextTopLevelWindow(WindowHandle window) {
    return FromWindow(GetWindow(ToWindow(window), GW_HWNDNEXT));
}

std::string WindowCaption(WindowHandle window) {
    std::array<char, 256> caption{};
    const int length = GetWindowTextA(ToWindow(window), caption.data(), static_cast<int>(caption.size()));
    return {caption.data(), static_cast<size_t>(length > 0 ? length : 0)};
}

bool ShowNormal(WindowHandle window) {
    // Showing another program's window waits for that program, and would wait for ever for one that hangs.
    constexpr UINT kPatience = 5000;  // milliseconds
    if (SendMessageTimeoutA(ToWindow(window), WM_NULL, 0, 0, SMTO_ABORTIFHUNG, kPatience, nullptr) == 0) return false;
    ShowWindow(ToWindow(window), SW_SHOWNORMAL);
    return true;
}

void BringToFront(WindowHandle window) {
    SetForegroundWindow(win32::AnswerableFor(ToWindow(window)));
}

}  // namespace quirn
