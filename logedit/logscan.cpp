#include "logedit/logscan.h"

#include <algorithm>
#include <bit>
#include <type_traits>
#include <utility>

namespace quirn {

namespace {

// Bit masks as wide as a register.
using Mask = std::conditional_t<sizeof(void*) == 8, uint64_t, uint32_t>;
constexpr size_t kMaskBits = sizeof(Mask) * 8;

__m128i Load(const char* bytes) {
    return _mm_loadu_si128(reinterpret_cast<const __m128i*>(bytes));
}

__m128i Is(__m128i bytes, char c) {
    return _mm_cmpeq_epi8(bytes, _mm_set1_epi8(c));
}

Mask Bits(__m128i matches, size_t shift) {
    return static_cast<Mask>(static_cast<unsigned>(_mm_movemask_epi8(matches))) << shift;
}

struct Masks {
    Mask ends = 0;      // LF
    Mask arrows = 0;    // "> "
    Mask closings = 0;  // ") "
};

// Written out without a loop, which the compiler would not do by itself.
template <size_t... shifts>
inline Masks MakeMasks(const char* text, std::index_sequence<shifts...>) {
    Masks masks;
    const auto add = [&](size_t shift) {
        const __m128i bytes = Load(text + shift);
        const __m128i blanks = Is(Load(text + shift + 1), ' ');
        masks.ends |= Bits(Is(bytes, '\n'), shift);
        masks.arrows |= Bits(_mm_and_si128(Is(bytes, '>'), blanks), shift);
        masks.closings |= Bits(_mm_and_si128(Is(bytes, ')'), blanks), shift);
    };
    (add(shifts * 16), ...);
    return masks;
}

// Appends the places of a mask's bits. Two at once without asking whether they are there: asking would be guessed wrong
// too often.
inline uint16_t* Append(uint16_t* out, Mask bits, size_t base) {
    for (int i = 0; i < 2; ++i) {
        *out = static_cast<uint16_t>(base + static_cast<size_t>(std::countr_zero(bits)));
        out += bits != 0;
        bits &= bits - 1;
    }
    while (bits != 0) [[unlikely]] {
            *out++ = static_cast<uint16_t>(base + static_cast<size_t>(std::countr_zero(bits)));
            bits &= bits - 1;
        }
    return out;
}

}  // namespace

void ScanWindow::Scan(const char* text, size_t size) {
    uint16_t* lineEnd = lineEnds.at;
    uint16_t* speaker = speakers.at;
    uint16_t* kill = kills.at;
    for (size_t base = 0; base < size; base += kMaskBits) {
        auto [ends, arrows, closings] = MakeMasks(text + base, std::make_index_sequence<kMaskBits / 16>());
        if (size - base < kMaskBits) ends &= (Mask{1} << (size - base)) - 1;
        lineEnd = Append(lineEnd, ends, base);
        speaker = Append(speaker, arrows, base);
        for (; closings != 0; closings &= closings - 1) {
            const size_t at = base + static_cast<size_t>(std::countr_zero(closings));
            if (std::memcmp(text + at, kKilledBy.data(), kKilledBy.size()) == 0) *kill++ = static_cast<uint16_t>(at);
        }
    }
    lineEndCount = static_cast<size_t>(lineEnd - lineEnds.at);
    *lineEnd = *speaker = *kill = kNoPlace;
}

}  // namespace quirn
