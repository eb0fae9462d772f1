// How long programs take to start: from the start of the process until its main window is on the screen and the
// process waits for the player with everything painted. Called with pairs of a program and a text of its main
// window's caption; starts them in turn, round after round, and prints the medians, also as ratios within a round.
#include <windows.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include "benchmarks/ticks.h"

namespace {

constexpr int kWarmUps = 2;
constexpr int kRounds = 15;
constexpr double kGiveUp = 20000;

struct Wanted {
    DWORD process;
    const char* caption;
    HWND found;
};

BOOL CALLBACK Look(HWND window, LPARAM parameter) {
    auto& wanted = *reinterpret_cast<Wanted*>(parameter);
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    if (process != wanted.process || !IsWindowVisible(window)) return TRUE;
    std::array<char, 256> caption{};
    GetWindowTextA(window, caption.data(), static_cast<int>(caption.size()));
    if (std::strstr(caption.data(), wanted.caption) == nullptr) return TRUE;
    wanted.found = window;
    return FALSE;
}

double StartOnce(const char* program, const char* caption) {
    STARTUPINFOA startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION started{};
    std::string command = std::string("\"") + program + "\"";
    const double start = Milliseconds();
    if (!CreateProcessA(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup, &started)) {
        std::printf("%s does not start\n", program);
        std::exit(1);
    }
    Wanted wanted{started.dwProcessId, caption, nullptr};
    while (!wanted.found && Milliseconds() - start < kGiveUp) {
        EnumWindows(Look, reinterpret_cast<LPARAM>(&wanted));
        if (!wanted.found) Sleep(1);
    }
    // A process is idle when it waits with nothing left to do; painting is the last that it does.
    WaitForInputIdle(started.hProcess, 10000);
    DWORD_PTR unused = 0;
    SendMessageTimeoutA(wanted.found, WM_NULL, 0, 0, SMTO_NORMAL, 10000, &unused);
    const double time = Milliseconds() - start;
    Sleep(150);
    TerminateProcess(started.hProcess, 0);
    WaitForSingleObject(started.hProcess, 5000);
    CloseHandle(started.hThread);
    CloseHandle(started.hProcess);
    Sleep(150);
    return time;
}

double Median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

}  // namespace

int main(int count, char** arguments) {
    const int programs = (count - 1) / 2;
    std::vector<std::vector<double>> times(static_cast<size_t>(programs));
    for (int round = -kWarmUps; round < kRounds; ++round)
        for (int i = 0; i < programs; ++i) {
            const double time = StartOnce(arguments[1 + 2 * i], arguments[2 + 2 * i]);
            if (round >= 0) times[static_cast<size_t>(i)].push_back(time);
        }
    for (size_t i = 0; i < times.size(); ++i) {
        std::vector<double> ratios;
        for (size_t k = 0; k < times[i].size(); ++k) ratios.push_back(times[0][k] / times[i][k]);
        std::vector<double> sorted = times[i];
        std::sort(sorted.begin(), sorted.end());
        std::printf("%-28s median %6.1f ms (%.1f to %.1f)%s", arguments[1 + 2 * i], Median(sorted), sorted.front(),
                    sorted.back(), i == 0 ? "\n" : "");
        if (i > 0) std::printf("; the first takes %.2f times as long (median of pairs)\n", Median(ratios));
    }
    return 0;
}
