// The program's own start with "/LR:" and a clock: called with that argument it does everything that QUIRN does, and
// prints the time from its entry to the moment when the game's process has been created. The launch pumps events right
// after that, so the first message that is taken from the queue marks the moment.
#include <windows.h>

#include <cstdio>

#include "platform/form.h"
#include "startup/main.h"

namespace {

LARGE_INTEGER entered;

double Milliseconds(const FILETIME& time) {
    return static_cast<double>((static_cast<uint64_t>(time.dwHighDateTime) << 32) + time.dwLowDateTime) / 10000.0;
}

LRESULT CALLBACK OnMessageTaken(int, WPARAM, LPARAM) {
    LARGE_INTEGER now, frequency;
    QueryPerformanceCounter(&now);
    QueryPerformanceFrequency(&frequency);
    FILETIME created, ended, kernel, user;
    GetProcessTimes(GetCurrentProcess(), &created, &ended, &kernel, &user);
    std::printf("%.2f %.2f\n",
                1000.0 * static_cast<double>(now.QuadPart - entered.QuadPart) / static_cast<double>(frequency.QuadPart),
                Milliseconds(kernel) + Milliseconds(user));
    std::fflush(stdout);
    ExitProcess(0);
}

}  // namespace

int main() {
    QueryPerformanceCounter(&entered);
    SetWindowsHookExA(WH_GETMESSAGE, OnMessageTaken, nullptr, GetCurrentThreadId());
    PostThreadMessageA(GetCurrentThreadId(), WM_NULL, 0, 0);
    quirn::CallHandler(quirn::Main);
    std::puts("no game was started");
    return 1;
}
