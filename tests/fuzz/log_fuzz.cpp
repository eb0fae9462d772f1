// The parser and the filter against their plain counterparts, on whatever libFuzzer makes up:
//     cmake --preset fuzz && cmake --build --preset fuzz
//     mkdir -p build/corpus && build/fuzz/tests/log_fuzz -max_len=4096 -max_total_time=1200 build/corpus
//     tests/fuzz/corpus
// New inputs go into the first folder. To keep the second one small, merge into a fresh one:
//     build/fuzz/tests/log_fuzz -merge=1 FRESH build/corpus tests/fuzz/corpus
//
// The first byte of an input says in what pieces the rest comes, the second which types and players are hidden.
#include <cstdio>
#include <cstdlib>

#include "tests/logedit/reference.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size < 2) return 0;
    const std::string_view text(reinterpret_cast<const char*>(data) + 2, size - 2);
    const std::string difference = quirn::reference::Difference(text, data[0] == 0 ? size : data[0], data[1]);
    if (difference.empty()) return 0;
    std::fprintf(stderr, "different: %s\n", difference.c_str());
    std::abort();
}
