#pragma once

#include <emmintrin.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

#include "logedit/playertable.h"

// One window of a log's text: the places in it that the parser needs, and the lines whose speaker is still to be
// numbered.
namespace quirn {

inline constexpr size_t kWindowBytes = 8192;
inline constexpr size_t kScanReadsOn = 66;
inline constexpr std::string_view kKilledBy = ") killed by: ";

struct ScanWindow {
    // Offsets in the window, ascending, of what may matter: each LF, "> " and ") k". The last one is that of an LF.
    uint16_t places[kWindowBytes + 8];
    size_t placeCount;

    // A line with a speaker takes five bytes at least.
    Speaker pending[kWindowBytes / 5 + 8];
    size_t pendingCount = 0;

    // Fills the places from size bytes. Up to kScanReadsOn bytes behind them are read too, and must be readable.
    void Scan(const char* text, size_t size);
};

}  // namespace quirn
