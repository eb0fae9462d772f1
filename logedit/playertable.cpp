#include "logedit/playertable.h"

#include <algorithm>
#include <bit>

#include "logedit/parsedlog.h"
#include "logedit/sse2.h"
#include "platform/text.h"

namespace quirn {

namespace {

using sse2::Load;

constexpr size_t kFirstBuckets = 256;
constexpr size_t kAtOnce = 256;  // speakers, whose keys stay in the cache
constexpr char kFiller = 'a';    // in no upper-case text, so keys of different lengths differ

// Read from the right place, a mask of the first n bytes, and the filler for all others.
struct alignas(16) MaskSource {
    char mask[2 * kKeyBytes]{};
    char filler[2 * kKeyBytes]{};
    constexpr MaskSource() {
        for (size_t i = 0; i < kKeyBytes; ++i) {
            mask[i] = static_cast<char>(-1);
            filler[kKeyBytes + i] = kFiller;
        }
    }
};
constexpr MaskSource kMaskSource;

// Sums of products of neighbouring 32-bit words, each with a constant added: few instructions and no weak bits.
__m128i Products(__m128i words, __m128i constants) {
    const __m128i sums = _mm_add_epi32(words, constants);
    return _mm_mul_epu32(sums, _mm_srli_epi64(sums, 32));
}

uint32_t Hash(__m128i low, __m128i high) {
    const __m128i a = Products(low, _mm_set_epi32(0x243F6A89, 0x05A308D3, 0x13198A2F, 0x03707345));
    const __m128i b = Products(high, _mm_set_epi32(0x24093823, 0x299F31D1, 0x082EFA99, 0x6C4E6C89));
    __m128i sum = _mm_add_epi64(a, b);
    sum = _mm_add_epi64(sum, _mm_unpackhi_epi64(sum, sum));
    sum = _mm_xor_si128(sum, _mm_srli_epi64(sum, 29));
    uint32_t hash = static_cast<uint32_t>(_mm_cvtsi128_si32(sum)) ^
                    static_cast<uint32_t>(_mm_cvtsi128_si32(_mm_srli_epi64(sum, 32)));
    hash *= 0x9E3779B1u;
    return hash ^ hash >> 15;
}

}  // namespace

PlayerTable::PlayerTable(std::vector<std::string_view>& names)
    : names_(names),
      buckets_(kFirstBuckets),
      mask_(kFirstBuckets - 1),
      lookUps_(std::make_unique_for_overwrite<LookUp[]>(kAtOnce)) {
    // Small letters other than the filler: no name's key.
    const __m128i nobody = _mm_set1_epi8(kFiller + 1);
    keys_.push_back({nobody, nobody});
}

// First the keys, which lead to the buckets; then, with these in the cache, the names; then the numbers.
bool PlayerTable::Number(std::span<const Speaker> speakers) {
    for (; !speakers.empty(); speakers = speakers.subspan(std::min(kAtOnce, speakers.size()))) {
        const size_t count = std::min(kAtOnce, speakers.size());
        for (size_t i = 0; i < count; ++i) {
            MakeLookUp(speakers[i], lookUps_[i]);
            _mm_prefetch(reinterpret_cast<const char*>(&buckets_[lookUps_[i].hash & mask_]), _MM_HINT_T0);
        }
        for (size_t i = 0; i < count; ++i) {
            lookUps_[i].likely = LikelyNumber(lookUps_[i].hash);
            _mm_prefetch(reinterpret_cast<const char*>(&keys_[lookUps_[i].likely]), _MM_HINT_T0);
        }
        for (size_t i = 0; i < count; ++i) {
            const LookUp& lookUp = lookUps_[i];
            const std::string_view name(speakers[i].name, speakers[i].length);
            const uint32_t number = IsNamed(lookUp.likely, lookUp.key, name) ? lookUp.likely : Find(lookUp, name);
            if (number > kMostPlayers) return false;
            *speakers[i].info |= static_cast<int32_t>(number << 16);
        }
    }
    return true;
}

inline void PlayerTable::MakeLookUp(const Speaker& speaker, LookUp& lookUp) {
    const size_t inKey = std::min<size_t>(speaker.length, kKeyBytes);
    const char* const mask = kMaskSource.mask + kKeyBytes - inKey;
    const char* const filler = kMaskSource.filler + kKeyBytes - inKey;
    __m128i low = _mm_and_si128(Load(speaker.name), Load(mask));
    __m128i high = _mm_and_si128(Load(speaker.name + 16), Load(mask + 16));
    if (_mm_movemask_epi8(_mm_or_si128(low, high)) == 0) [[likely]] {
        low = FoldAscii(low);
        high = FoldAscii(high);
    } else {
        low = FoldAny(low);
        high = FoldAny(high);
    }
    low = _mm_or_si128(low, Load(filler));
    high = _mm_or_si128(high, Load(filler + 16));
    uint32_t hash = Hash(low, high);
    // Bytes that do not fit into the key count in the hash, or a log of long names would take for ever.
    for (size_t i = kKeyBytes; i < speaker.length; ++i)
        hash = (hash ^ static_cast<unsigned char>(FoldCase(speaker.name[i]))) * 0x01000193u;
    lookUp.key = {low, high};
    lookUp.hash = hash;
}

// The tags of a bucket that are equal to the hash's: two bits for each of the eight.
inline uint32_t PlayerTable::SameTags(const Bucket& bucket, uint32_t hash) {
    const __m128i tag = _mm_set1_epi16(static_cast<short>(hash >> 16));
    const __m128i tags = _mm_load_si128(reinterpret_cast<const __m128i*>(bucket.tags));
    return static_cast<uint32_t>(_mm_movemask_epi8(_mm_cmpeq_epi16(tags, tag)));
}

// Who is probably meant: it may be anybody or nobody (0), so IsNamed has the last word.
inline uint32_t PlayerTable::LikelyNumber(uint32_t hash) const {
    const Bucket& bucket = buckets_[hash & mask_];
    return bucket.numbers[std::countr_zero(SameTags(bucket, hash) | 1u << 14) / 2];
}

inline bool PlayerTable::IsNamed(uint32_t number, const Key& key, std::string_view name) const {
    const Key& stored = keys_[number];
    const __m128i equal = _mm_and_si128(_mm_cmpeq_epi8(stored.low, key.low), _mm_cmpeq_epi8(stored.high, key.high));
    return _mm_movemask_epi8(equal) == 0xFFFF && (name.size() < kKeyBytes || SameTail(number, name));
}

uint32_t PlayerTable::Find(const LookUp& lookUp, std::string_view name) {
    for (size_t at = lookUp.hash & mask_;; at = (at + 1) & mask_) {
        Bucket& bucket = buckets_[at];
        for (uint32_t left = SameTags(bucket, lookUp.hash); left != 0;) {
            const int bit = std::countr_zero(left);
            left &= ~(3u << bit);
            const uint32_t number = bucket.numbers[bit / 2];
            if (number == 0) break;
            if (IsNamed(number, lookUp.key, name)) return number;
        }
        if (bucket.numbers[kPlayersPerBucket - 1] == 0) return Add(lookUp, name, bucket);
    }
}

// The new player's number, more than kMostPlayers when there are too many.
uint32_t PlayerTable::Add(const LookUp& lookUp, std::string_view name, Bucket& bucket) {
    // Before the first player the list holds one empty name, which an empty name finds: the line goes to whoever
    // speaks first afterwards. Kept on purpose.
    if (name.empty() && names_.empty()) return 1;
    if (names_.size() == kMostPlayers) return kMostPlayers + 1;
    names_.push_back(name);
    keys_.push_back(lookUp.key);
    hashes_.push_back(lookUp.hash);
    size_t place = 0;
    while (bucket.numbers[place] != 0) ++place;
    bucket.tags[place] = static_cast<uint16_t>(lookUp.hash >> 16);
    bucket.numbers[place] = static_cast<uint16_t>(names_.size());
    if (names_.size() > buckets_.size() * kPlayersPerBucket / 2) Grow();
    return static_cast<uint32_t>(names_.size());
}

bool PlayerTable::SameTail(uint32_t number, std::string_view name) const {
    const std::string_view stored = names_[number - 1];
    return stored.size() == name.size() && EqualNoCase(stored.substr(kKeyBytes), name.substr(kKeyBytes));
}

void PlayerTable::Grow() {
    buckets_.assign(buckets_.size() * 4, Bucket());
    mask_ = buckets_.size() - 1;
    for (size_t i = 0; i < hashes_.size(); ++i) {
        size_t at = hashes_[i] & mask_;
        while (buckets_[at].numbers[kPlayersPerBucket - 1] != 0) at = (at + 1) & mask_;
        size_t place = 0;
        while (buckets_[at].numbers[place] != 0) ++place;
        buckets_[at].tags[place] = static_cast<uint16_t>(hashes_[i] >> 16);
        buckets_[at].numbers[place] = static_cast<uint16_t>(i + 1);
    }
}

}  // namespace quirn
