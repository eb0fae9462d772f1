#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// The parser and the filter a second time, plainly: one step after the other, a linear search for each player, a copy
// of each line. What the fast ones are compared with.
namespace quirn::reference {

struct Log {
    std::vector<std::string> lines{""};
    std::vector<int32_t> info{0};
    std::vector<std::string> players{""};
    int nextPlayer = 1;
    uint64_t consumed = 0;
    bool overflow = false;
};

Log Parse(std::string_view file);

struct Player {
    std::string name;
    int number;
};

// The indexes of the shown lines.
std::vector<size_t> Filter(const Log& log, int mask, const std::vector<Player>& include,
                           const std::vector<Player>& exclude);

// The first thing in which the program's parser, filter and search differ from these; empty when there is none. The
// text comes in pieces of so many bytes; the bits say which types and players are hidden.
std::string Difference(std::string_view text, size_t piece, uint32_t hidden);

}  // namespace quirn::reference
