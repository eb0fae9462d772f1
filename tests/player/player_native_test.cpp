#include "tests/player/player.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <numeric>

// Whole runs of the program with a player who presses anything. QUIRN_PLAYER_SEED and QUIRN_PLAYER_ACTIONS choose
// others and more.
namespace quirn::test {
namespace {

using Steps = std::vector<unsigned>;

constexpr unsigned kLongestRun = 400;
constexpr unsigned kPatience = 60;  // seconds that a run may take

uint64_t Setting(const char* name, uint64_t otherwise) {
    const char* const text = std::getenv(name);
    return text != nullptr ? std::strtoull(text, nullptr, 10) : otherwise;
}

Steps StepsOf(uint64_t seed) {
    Steps steps(1 + Random(seed).Below(kLongestRun));
    std::iota(steps.begin(), steps.end(), 0);
    return steps;
}

void Play(uint64_t seed, const Steps& steps, bool tells) {
    alarm(kPatience);
    Player(seed, steps, tells).Play();
}

// In a process of its own, because a sanitizer ends the process.
template <class Body>
bool Fails(Body body, bool tells = false) {
    const pid_t child = fork();
    if (child == 0) {
        if (!tells && std::freopen("/dev/null", "w", stderr) == nullptr) std::exit(1);
        body();
        std::exit(0);
    }
    int status = 1;
    waitpid(child, &status, 0);
    return status != 0;
}

// Leaves out what is not needed for the run to fail.
Steps Shortest(uint64_t seed) {
    Steps steps = StepsOf(seed);
    for (size_t part = steps.size(); part > 0; part /= 2)
        for (size_t at = 0; at < steps.size();) {
            Steps fewer(steps.begin(), steps.begin() + static_cast<ptrdiff_t>(at));
            fewer.insert(fewer.end(), steps.begin() + static_cast<ptrdiff_t>(std::min(at + part, steps.size())),
                         steps.end());
            if (Fails([&] { Play(seed, fewer, false); })) steps = fewer;
            else at += part;
        }
    return steps;
}

TEST(PlayerTest, WhatMustHoldHoldsWhateverIsPressed) {
    const uint64_t actions = Setting("QUIRN_PLAYER_ACTIONS", 20000);
    std::vector<uint64_t> seeds;
    for (uint64_t seed = Setting("QUIRN_PLAYER_SEED", 1), planned = 0; planned < actions; ++seed) {
        seeds.push_back(seed);
        planned += StepsOf(seed).size();
    }
    const auto playAll = [&] {
        for (const uint64_t seed : seeds) Play(seed, StepsOf(seed), false);
    };
    if (!Fails(playAll)) return;
    uint64_t planned = 0;
    for (const uint64_t seed : seeds) {
        planned += StepsOf(seed).size();
        if (!Fails([&] { Play(seed, StepsOf(seed), false); })) continue;
        const Steps steps = Shortest(seed);
        Fails([&] { Play(seed, steps, true); }, true);
        FAIL() << "seed " << seed << ", within " << planned << " actions; the shortest of it stands above";
    }
    Fails(playAll, true);
    FAIL() << "no run fails by itself";
}

}  // namespace
}  // namespace quirn::test
