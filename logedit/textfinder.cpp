#include "logedit/textfinder.h"

#include <algorithm>
#include <bit>

#include "logedit/sse2.h"
#include "platform/text.h"

namespace quirn {

namespace {

using sse2::Load;

// How often a byte stands in a chat log: a place in this list, or rarer than all of them.
size_t Rarity(char folded) {
    constexpr std::string_view kFrequentFirst = " EOTANRISLHDUKMGPYCBF>:W)(V,.0123456789J-X'ZQ";
    return std::min(kFrequentFirst.find(folded), kFrequentFirst.size());
}

// The bits in which the two cases of a letter differ; all of them are set in the one that is not folded.
char CaseBits(char folded) {
    for (int c = 0; c < 256; ++c) {
        const char other = static_cast<char>(c);
        if (other != folded && FoldCase(other) == folded) return static_cast<char>(other ^ folded);
    }
    return 0;
}

}  // namespace

TextFinder::TextFinder(std::string_view text) : folded_(FoldCase(text)) {
    size_t rarest = 0;
    for (size_t i = 1; i < folded_.size(); ++i)
        if (Rarity(folded_[i]) > Rarity(folded_[rarest])) rarest = i;
    size_t next = rarest == 0 ? folded_.size() - 1 : 0;
    for (size_t i = 0; i < folded_.size(); ++i)
        if (i != rarest && Rarity(folded_[i]) > Rarity(folded_[next])) next = i;
    if (folded_.empty()) return;
    first_ = MakeProbe(rarest);
    second_ = MakeProbe(next);
}

TextFinder::Probe TextFinder::MakeProbe(size_t offset) const {
    const char bits = CaseBits(folded_[offset]);
    return {static_cast<ptrdiff_t>(offset), bits, static_cast<char>(folded_[offset] | bits)};
}

bool TextFinder::StandsAt(const char* place, size_t from) const {
    for (size_t i = from; i < folded_.size(); ++i)
        if (FoldCase(place[i - from]) != folded_[i]) return false;
    return true;
}

const char* TextFinder::Next(const char* from, const char* end) const {
    if (folded_.empty()) return from;
    if (end - from < static_cast<ptrdiff_t>(folded_.size())) return nullptr;
    const char* const last = end - folded_.size();
    const __m128i firstBits = _mm_set1_epi8(first_.bits), firstValue = _mm_set1_epi8(first_.value);
    const __m128i secondBits = _mm_set1_epi8(second_.bits), secondValue = _mm_set1_epi8(second_.value);
    const auto matches = [&](const char* at) {
        const __m128i first = _mm_or_si128(Load(at + first_.offset), firstBits);
        const __m128i second = _mm_or_si128(Load(at + second_.offset), secondBits);
        return _mm_and_si128(_mm_cmpeq_epi8(first, firstValue), _mm_cmpeq_epi8(second, secondValue));
    };
    // Sixty-four places a round, sorted out only when there is anything in them.
    for (const char* at = from; at <= last; at += 64) {
        const __m128i found[4] = {matches(at), matches(at + 16), matches(at + 32), matches(at + 48)};
        const __m128i any = _mm_or_si128(_mm_or_si128(found[0], found[1]), _mm_or_si128(found[2], found[3]));
        if (_mm_movemask_epi8(any) == 0) [[likely]]
            continue;
        for (int i = 0; i < 4; ++i) {
            for (auto left = static_cast<unsigned>(_mm_movemask_epi8(found[i])); left != 0; left &= left - 1) {
                const char* const place = at + ptrdiff_t{16} * i + std::countr_zero(left);
                if (place > last) return nullptr;
                if (StandsAt(place)) return place;
            }
        }
    }
    return nullptr;
}

}  // namespace quirn
