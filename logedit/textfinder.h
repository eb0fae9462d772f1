#pragma once

#include <emmintrin.h>

#include <array>
#include <cstddef>
#include <cstdint>
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

    // All places at once: a bit for each of 64 * blocks places from one on, the lowest first. Behind the last place and
    // the length there must be 128 readable bytes. Not for an empty text.
    void MarkPlaces(const char* from, size_t blocks, uint64_t* places) const;

    // Whether the text, or its rest from a place in it on, stands exactly here.
    bool StandsAt(const char* place, size_t from = 0) const;

private:
    // A byte to look for: (byte | bits) == value for both cases of a letter, and seldom for anything else.
    struct Probe {
        ptrdiff_t offset = 0;
        char bits = 0;
        char value = 0;
    };
    class SixteenPlaces;
    template <size_t kProbes>
    void Mark(const char* from, size_t blocks, uint64_t* places) const;

    std::string folded_;
    std::array<Probe, 3> probes_;  // the rarest first
    size_t probeCount_ = 0;
};

}  // namespace quirn
