#pragma once

#include <emmintrin.h>

#include <cstddef>
#include <string>
#include <string_view>

namespace quirn {

// Finds a text without regard to letter case (by code page 1252) in a long one: looks for two of its bytes, the rarest
// ones, in sixteen places at once, and compares the rest only where both stand.
class TextFinder {
public:
    explicit TextFinder(std::string_view text);

    size_t Length() const { return folded_.size(); }

    // The first place in [from, end), or null. There must be 64 readable bytes behind the end.
    const char* Next(const char* from, const char* end) const;

    // Whether the text, or its rest from a place in it on, stands exactly here.
    bool StandsAt(const char* place, size_t from = 0) const;

private:
    // A byte to look for: (byte | bits) == value for both cases of a letter, and seldom for anything else.
    struct Probe {
        ptrdiff_t offset = 0;
        char bits = 0;
        char value = 0;
    };
    Probe MakeProbe(size_t offset) const;

    std::string folded_;
    Probe first_, second_;
};

}  // namespace quirn
