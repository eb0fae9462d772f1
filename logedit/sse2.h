#pragma once

#include <emmintrin.h>

// Work on 16 bytes at once. FoldAny and FoldAscii make upper case by code page 1252, as FoldCase of platform/text.h
// does.
namespace quirn {

namespace sse2 {

inline __m128i Load(const char* bytes) {
    return _mm_loadu_si128(reinterpret_cast<const __m128i*>(bytes));
}

inline __m128i Is(__m128i bytes, int c) {
    return _mm_cmpeq_epi8(bytes, _mm_set1_epi8(static_cast<char>(c)));
}

// Bytes in [first, first + count): moved to the low end of the signed range, one comparison finds them.
inline __m128i In(__m128i bytes, int first, int count) {
    const __m128i moved = _mm_add_epi8(bytes, _mm_set1_epi8(static_cast<char>(128 - first)));
    return _mm_cmplt_epi8(moved, _mm_set1_epi8(static_cast<char>(count - 128)));
}

}  // namespace sse2

// Bytes below 128.
inline __m128i FoldAscii(__m128i bytes) {
    return _mm_sub_epi8(bytes, _mm_and_si128(sse2::In(bytes, 'a', 26), _mm_set1_epi8(0x20)));
}

// Any byte. Most accented letters stand 32 places behind their capitals, as a-z do.
inline __m128i FoldAny(__m128i bytes) {
    const __m128i small = _mm_or_si128(sse2::In(bytes, 'a', 26), sse2::In(bytes, 0xE0, 31));
    const __m128i outside =
        _mm_or_si128(_mm_or_si128(sse2::Is(bytes, 0x9A), sse2::Is(bytes, 0x9C)), sse2::Is(bytes, 0x9E));
    __m128i distance = _mm_and_si128(small, _mm_set1_epi8(0x20));
    distance = _mm_or_si128(distance, _mm_and_si128(outside, _mm_set1_epi8(0x10)));
    distance = _mm_or_si128(distance, _mm_and_si128(sse2::Is(bytes, 0xFF), _mm_set1_epi8(0x60)));
    const __m128i division = _mm_and_si128(sse2::Is(bytes, 0xF7), _mm_set1_epi8(0x20));
    return _mm_add_epi8(_mm_sub_epi8(bytes, distance), division);
}

}  // namespace quirn
