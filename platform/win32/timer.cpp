#include <windows.h>

#include <map>

#include "platform/native.h"

namespace quirn::native {

namespace {

std::map<UINT_PTR, Timer*>& RunningTimers() {
    static std::map<UINT_PTR, Timer*> timers;
    return timers;
}

void CALLBACK OnTimer(HWND, UINT, UINT_PTR id, DWORD) {
    const auto found = RunningTimers().find(id);
    if (found != RunningTimers().end()) found->second->Fire();
}

}  // namespace

void StopTimer(Timer& timer) {
    std::erase_if(RunningTimers(), [&](const auto& entry) {
        if (entry.second == &timer) KillTimer(nullptr, entry.first);
        return entry.second == &timer;
    });
}

void StartTimer(Timer& timer) {
    StopTimer(timer);
    const UINT_PTR id = SetTimer(nullptr, 0, static_cast<UINT>(timer.Interval()), OnTimer);
    if (id != 0) RunningTimers()[id] = &timer;
}

}  // namespace quirn::native
