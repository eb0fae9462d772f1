#include "logedit/textfinder.h"

#include <algorithm>
#include <array>
#include <bit>
#include <utility>

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
    const auto rarity = [this](const Probe& probe) { return Rarity(folded_[static_cast<size_t>(probe.offset)]); };
    for (size_t i = 0; i < folded_.size(); ++i) {
        Probe probe{.offset = static_cast<ptrdiff_t>(i)};
        for (size_t at = 0; at < probes_.size(); ++at) {
            if (at == probeCount_) {
                probes_[probeCount_++] = probe;
                break;
            }
            if (rarity(probe) > rarity(probes_[at])) std::swap(probe, probes_[at]);
        }
    }
    for (size_t i = 0; i < probeCount_; ++i) {
        const char folded = folded_[static_cast<size_t>(probes_[i].offset)];
        probes_[i].bits = CaseBits(folded);
        probes_[i].value = static_cast<char>(folded | probes_[i].bits);
    }
}

bool TextFinder::StandsAt(const char* place, size_t from) const {
    for (size_t i = from; i < folded_.size(); ++i)
        if (FoldCase(place[i - from]) != folded_[i]) return false;
    return true;
}

// Where a probe's byte stands, of sixteen places from one on.
class TextFinder::SixteenPlaces {
public:
    SixteenPlaces() = default;
    explicit SixteenPlaces(const Probe& probe)
        : offset_(probe.offset), bits_(_mm_set1_epi8(probe.bits)), value_(_mm_set1_epi8(probe.value)) {}

    __m128i Of(const char* at) const { return _mm_cmpeq_epi8(_mm_or_si128(Load(at + offset_), bits_), value_); }

private:
    ptrdiff_t offset_ = 0;
    __m128i bits_{}, value_{};
};

const char* TextFinder::Next(const char* from, const char* end) const {
    if (folded_.empty()) return from;
    if (end - from < static_cast<ptrdiff_t>(folded_.size())) return nullptr;
    const char* const last = end - folded_.size();
    const SixteenPlaces first(probes_[0]), second(probes_[probeCount_ > 1]);
    const auto matches = [&](const char* at) { return _mm_and_si128(first.Of(at), second.Of(at)); };
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

// With all bytes of a short word compared at once nothing is left to be looked at.
template <size_t kProbes>
void TextFinder::Mark(const char* from, size_t blocks, uint64_t* places) const {
    std::array<SixteenPlaces, kProbes> probes;
    for (size_t i = 0; i < kProbes; ++i) probes[i] = SixteenPlaces(probes_[i]);
    const auto bits = [&](const char* at) {
        __m128i all = probes[0].Of(at);
        for (size_t i = 1; i < kProbes; ++i) all = _mm_and_si128(all, probes[i].Of(at));
        return static_cast<unsigned>(_mm_movemask_epi8(all));
    };
    const bool sure =
        folded_.size() == kProbes && std::all_of(probes_.begin(), probes_.begin() + kProbes, [](const Probe& probe) {
            return std::popcount(static_cast<unsigned char>(probe.bits)) < 2;
        });
    for (size_t i = 0; i < blocks; ++i, from += 64) {
        places[i] = uint64_t{bits(from) | bits(from + 16) << 16} | uint64_t{bits(from + 32) | bits(from + 48) << 16}
                                                                       << 32;
        if (sure) continue;
        for (uint64_t left = places[i]; left != 0; left &= left - 1)
            if (!StandsAt(from + std::countr_zero(left))) places[i] ^= left & -left;
    }
}

void TextFinder::MarkPlaces(const char* from, size_t blocks, uint64_t* places) const {
    switch (probeCount_) {
        case 1: return Mark<1>(from, blocks, places);
        case 2: return Mark<2>(from, blocks, places);
        default: return folded_.size() == 3 ? Mark<3>(from, blocks, places) : Mark<2>(from, blocks, places);
    }
}

}  // namespace quirn
