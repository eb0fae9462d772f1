// Reads and writes a QRN file and the game's registry keys through the real functions and prints the median times.
#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <vector>

#include "benchmarks/sampleprofile.h"
#include "benchmarks/ticks.h"
#include "game/gamestate.h"
#include "game/transfer.h"
#include "profile/profilefile.h"

namespace {

using namespace quirn;

constexpr int kRounds = 21;

void Time(const char* name, const std::function<void()>& work) {
    std::vector<double> times;
    for (int i = 0; i < kRounds; ++i) {
        const double start = Milliseconds();
        work();
        times.push_back(Milliseconds() - start);
    }
    std::sort(times.begin(), times.end());
    std::printf("%-28s median %7.2f ms   (%.2f to %.2f, %d rounds)\n", name, times[kRounds / 2], times.front(),
                times.back(), kRounds);
}

}  // namespace

int main() {
    char folder[MAX_PATH];
    GetTempPathA(MAX_PATH, folder);
    const std::string gameFolder = std::string(folder) + "quirn-bench";
    CreateDirectoryA(gameFolder.c_str(), nullptr);
    const std::string file = gameFolder + "\\sample.qrn";
    // Not the player's own settings: a scratch key stands in for the current user's root.
    HKEY scratch = nullptr;
    RegCreateKeyExA(HKEY_CURRENT_USER, "Software\\QUIRN-bench", 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &scratch,
                    nullptr);
    RegOverridePredefKey(HKEY_CURRENT_USER, scratch);
    Profile profile = SampleProfile();
    for (const Section* section : profile.Sections()) {
        HKEY key = nullptr;
        RegCreateKeyExA(HKEY_CURRENT_USER, ("Software\\Virgin\\SubSpace\\" + section->name).c_str(), 0, nullptr, 0,
                        KEY_ALL_ACCESS, nullptr, &key, nullptr);
        RegCloseKey(key);
    }

    Time("save a QRN file", [&] { SaveProfile(profile, gameFolder, file); });
    Time("load a QRN file", [&] { LoadProfile(profile, file); });
    Time("write a profile to the game", [&] { TransferToGame(profile, gameFolder, TransferLog(""), {}); });
    Time("read a profile from the game", [&] { ReadProfileFromGame(profile, gameFolder); });

    Time("read the game's state", [&] { ReadGameState(gameFolder); });

    RegOverridePredefKey(HKEY_CURRENT_USER, nullptr);
    RegDeleteTreeA(scratch, nullptr);
    RegCloseKey(scratch);
    RegDeleteKeyA(HKEY_CURRENT_USER, "Software\\QUIRN-bench");
    for (const char* name : {"sample.qrn", "sample.ssm", "ignore.txt"}) DeleteFileA((gameFolder + "\\" + name).c_str());
    RemoveDirectoryA(gameFolder.c_str());
    return 0;
}
