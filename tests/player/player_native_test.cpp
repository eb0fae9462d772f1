#include "tests/player/player.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <numeric>

// Whole runs of the program with a player who presses anything. QUIRN_PLAYER_SEED and QUIRN_PLAYER_ACTIONS choose
// others and more.
namespace quirn::test {
namespace {

constexpr unsigned kLongestRun = 400;
constexpr unsigned kPatience = 60;  // seconds that a run may take

uint64_t Setting(const char* name, uint64_t otherwise) {
    const char* const text = std::getenv(name);
    return text != nullptr ? std::strtoull(text, nullptr, 10) : otherwise;
}

std::vector<unsigned> FirstSteps(size_t count) {
    std::vector<unsigned> steps(count);
    std::iota(steps.begin(), steps.end(), 0);
    return steps;
}

unsigned LengthOfRun(uint64_t seed) {
    return 1 + static_cast<unsigned>(Random(seed).Below(kLongestRun));
}

struct Outcome {
    bool failed = false;
    std::string told;  // on the error output, by the player and the sanitizers
    std::string Why() const { return told.substr(told.find_last_of('\n', told.size() - 2) + 1); }
};

// Runs something in a process of its own, because a sanitizer ends the process.
template <class Body>
Outcome Apart(Body body) {
    int ends[2];
    if (pipe(ends) != 0) return {true, "no pipe"};
    const pid_t child = fork();
    if (child == 0) {
        dup2(ends[1], STDERR_FILENO);
        close(ends[0]);
        close(ends[1]);
        body();
        std::exit(0);
    }
    close(ends[1]);
    Outcome outcome;
    char buffer[4096];
    for (ssize_t got; (got = read(ends[0], buffer, sizeof buffer)) > 0;)
        outcome.told.append(buffer, static_cast<size_t>(got));
    close(ends[0]);
    int status = 0;
    waitpid(child, &status, 0);
    outcome.failed = status != 0;
    return outcome;
}

Outcome TryRun(uint64_t seed, const std::vector<unsigned>& steps, bool tells) {
    return Apart([&] {
        alarm(kPatience);
        Player(seed, steps, tells).Play();
    });
}

// Leaves out what is not needed for the run to fail.
std::vector<unsigned> Shortest(uint64_t seed, std::vector<unsigned> steps) {
    for (size_t part = std::max<size_t>(steps.size() / 2, 1); part > 0; part /= 2)
        for (size_t at = 0; at < steps.size();) {
            std::vector<unsigned> fewer = steps;
            fewer.erase(fewer.begin() + static_cast<ptrdiff_t>(at),
                        fewer.begin() + static_cast<ptrdiff_t>(std::min(at + part, steps.size())));
            if (TryRun(seed, fewer, false).failed) steps = fewer;
            else at += part;
        }
    return steps;
}

TEST(PlayerTest, WhatMustHoldHoldsWhateverIsPressed) {
    const uint64_t first = Setting("QUIRN_PLAYER_SEED", 1);
    const uint64_t actions = Setting("QUIRN_PLAYER_ACTIONS", 20000);
    const Outcome all = Apart([&] {
        uint64_t done = 0;
        for (uint64_t seed = first; done < actions; done += LengthOfRun(seed++)) {
            std::fprintf(stderr, "%llu\n", static_cast<unsigned long long>(seed));
            alarm(kPatience);
            Player(seed, FirstSteps(LengthOfRun(seed)), false).Play();
        }
    });
    if (!all.failed) return;
    // The last seed told is the one that failed; what follows it is why.
    uint64_t seed = first;
    while (all.told.find("\n" + std::to_string(seed + 1) + "\n") != std::string::npos) ++seed;
    const std::vector<unsigned> steps = Shortest(seed, FirstSteps(LengthOfRun(seed)));
    ADD_FAILURE() << "seed " << seed << ", the shortest of it:\n" << TryRun(seed, steps, true).told;
}

}  // namespace
}  // namespace quirn::test
