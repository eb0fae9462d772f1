// The main window's own work: how long it takes to show a profile in the controls and to collect it again, with the
// windows of all pages made. Called with the path of a profile.
#include <windows.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <string>

#include "benchmarks/ticks.h"
#include "mainwin/frmmain.h"
#include "profile/profilefile.h"

namespace {

constexpr int kRounds = 101;

template <class Work>
void Measure(const char* name, Work work) {
    std::array<double, kRounds> times{};
    for (double& time : times) {
        const double start = Milliseconds();
        work();
        time = Milliseconds() - start;
        quirn::DoEvents();
    }
    std::sort(times.begin(), times.end());
    std::printf("%-28s median %.2f ms (%.2f to %.2f)\n", name, times[kRounds / 2], times.front(), times.back());
}

}  // namespace

int main(int count, char** arguments) {
    quirn::Program program;
    program.gameFolder = "C:\\SubSpace";
    quirn::InitCatalogue(program.profile);
    quirn::frmMain window(program);
    window.Show();
    constexpr int kPages = 7;
    for (int i = 0; i < kPages; ++i) {
        window.UserTurnsPage(1);
        quirn::DoEvents();
    }
    const quirn::Profile ofGame = program.profile;
    quirn::Profile other = ofGame;
    if (count < 2 || quirn::LoadProfile(other, arguments[1]) != quirn::LoadResult::Loaded) return 1;

    // Two profiles in turn, so that every control has something new to show.
    bool turn = false;
    Measure("ShowProfile, another profile", [&] {
        program.profile = (turn = !turn) ? other : ofGame;
        window.ShowProfile();
    });
    Measure("ShowProfile, the same", [&] { window.ShowProfile(); });
    Measure("CollectProfile", [&] { window.CollectProfile(); });
    program.dirty = false;
    window.Unload();
    return 0;
}
