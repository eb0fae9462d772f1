#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

// Chat logs to measure and test with. Everything in them is invented.
namespace quirn {

struct LogShape {
    size_t bytes = 0;      // the log is cut at the end of the line that reaches them
    size_t players = 300;  // distinct names, at most 32767; few of them speak often, most seldom
    uint64_t seed = 1;     // the same shape gives the same log on every machine
};

// Every kind of line: public, private, team, freq, the chat channels in both forms, squad, kills, system, prefixes that
// nobody knows, blank lines, headers of saved logs; stretches with line-number tags; names in changing case; bytes
// above 127; "> " in messages; a long line now and then, and a lone LF as line end.
std::string GenerateLog(const LogShape& shape);

}  // namespace quirn
