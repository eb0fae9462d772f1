#include "logedit/logscan.h"

#include <bit>
#include <type_traits>
#include <utility>

#include "logedit/sse2.h"

namespace quirn {

namespace {

using sse2::Is;
using sse2::Load;

// Bit masks as wide as a register.
using Mask = std::conditional_t<sizeof(void*) == 8, uint64_t, uint32_t>;
constexpr size_t kMaskBits = sizeof(Mask) * 8;

Mask Bits(__m128i matches, size_t shift) {
    return static_cast<Mask>(static_cast<unsigned>(_mm_movemask_epi8(matches))) << shift;
}

// Written out without a loop, which the compiler would not do by itself.
template <size_t... shifts>
inline Mask FindPlaces(const char* text, std::index_sequence<shifts...>) {
    const auto find = [&](size_t shift) {
        const __m128i bytes = Load(text + shift);
        const __m128i beforeBlank = Is(Load(text + shift + 1), ' ');
        const __m128i closings = _mm_and_si128(Is(bytes, ')'), Is(Load(text + shift + 2), 'k'));
        const __m128i marks = _mm_or_si128(Is(bytes, '>'), closings);
        return Bits(_mm_or_si128(Is(bytes, '\n'), _mm_and_si128(marks, beforeBlank)), shift);
    };
    return (find(shifts * 16) | ...);
}

// Appends the places of a mask's bits: the first without asking whether it is there, because asking would be guessed
// wrong too often.
inline uint16_t* Append(uint16_t* out, Mask bits, size_t base) {
    *out = static_cast<uint16_t>(base + static_cast<size_t>(std::countr_zero(bits)));
    out += bits != 0;
    bits &= bits - 1;
    for (; bits != 0; bits &= bits - 1)
        *out++ = static_cast<uint16_t>(base + static_cast<size_t>(std::countr_zero(bits)));
    return out;
}

}  // namespace

void ScanWindow::Scan(const char* text, size_t size) {
    uint16_t* place = places;
    for (size_t base = 0; base < size; base += kMaskBits) {
        Mask found = FindPlaces(text + base, std::make_index_sequence<kMaskBits / 16>());
        if (size - base < kMaskBits) found &= (Mask{1} << (size - base)) - 1;
        place = Append(place, found, base);
    }
    while (place != places && text[place[-1]] != '\n') --place;
    placeCount = static_cast<size_t>(place - places);
}

}  // namespace quirn
