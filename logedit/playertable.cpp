#include "logedit/playertable.h"

#include <array>
#include <bit>

#include "logedit/foldsse2.h"
#include "logedit/parsedlog.h"
#include "platform/text.h"

namespace quirn {

namespace {

constexpr size_t kFirstBuckets = 256;
constexpr char kFiller = 'a';  // in no upper-case text, so keys of different lengths differ

// 32 set bytes and 32 clear ones: read from the right place, a mask of the first n bytes.
struct alignas(16) MaskSource {
    char bytes[2 * kKeyBytes]{};
    constexpr MaskSource() {
        for (size_t i = 0; i < kKeyBytes; ++i) bytes[i] = static_cast<char>(-1);
    }
};
constexpr MaskSource kMaskSource;

__m128i Load(const char* bytes) {
    return _mm_loadu_si128(reinterpret_cast<const __m128i*>(bytes));
}

__m128i Select(__m128i mask, __m128i bytes, __m128i others) {
    return _mm_or_si128(_mm_and_si128(mask, bytes), _mm_andnot_si128(mask, others));
}

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

void MakePlayerKey(const char* name, size_t length, PlayerKey& key) {
    const size_t inKey = length < kKeyBytes ? length : kKeyBytes;
    const char* masks = kMaskSource.bytes + kKeyBytes - inKey;
    const __m128i filler = _mm_set1_epi8(kFiller);
    const __m128i lowMask = Load(masks);
    const __m128i highMask = Load(masks + 16);
    __m128i low = Load(name);
    __m128i high = Load(name + 16);
    if (NeedsFoldAny(_mm_and_si128(low, lowMask), _mm_and_si128(high, highMask))) [[unlikely]] {
        low = FoldAny(low);
        high = FoldAny(high);
    } else {
        low = FoldLetters(low);
        high = FoldLetters(high);
    }
    low = Select(lowMask, low, filler);
    high = Select(highMask, high, filler);
    uint32_t hash = Hash(low, high);
    // Bytes that do not fit into the key count in the hash, or a log of long names would take for ever.
    for (size_t i = kKeyBytes; i < length; ++i)
        hash = (hash ^ static_cast<unsigned char>(FoldCase(name[i]))) * 0x01000193u;
    key.low = low;
    key.high = high;
    key.hash = hash;
}

PlayerTable::PlayerTable(std::vector<std::string_view>& names)
    : names_(names), buckets_(kFirstBuckets), mask_(kFirstBuckets - 1) {}

// The tags of a bucket that are equal to the hash's: two bits for each of the eight.
inline uint32_t PlayerTable::SameTags(const Bucket& bucket, uint32_t hash) {
    const __m128i tag = _mm_set1_epi16(static_cast<short>(hash >> 16));
    const __m128i tags = _mm_load_si128(reinterpret_cast<const __m128i*>(bucket.tags));
    return static_cast<uint32_t>(_mm_movemask_epi8(_mm_cmpeq_epi16(tags, tag)));
}

void PlayerTable::FetchName(const PlayerKey& key) const {
    const Bucket& bucket = buckets_[key.hash & mask_];
    const int bit = std::countr_zero(SameTags(bucket, key.hash) | 1u << 14);
    const size_t number = bucket.numbers[bit / 2];
    if (number != 0) _mm_prefetch(reinterpret_cast<const char*>(&keys_[number - 1]), _MM_HINT_T0);
}

std::optional<uint32_t> PlayerTable::Number(const PlayerKey& key, std::string_view name) {
    for (size_t at = key.hash & mask_;; at = (at + 1) & mask_) {
        Bucket& bucket = buckets_[at];
        for (uint32_t left = SameTags(bucket, key.hash); left != 0;) {
            const int bit = std::countr_zero(left);
            left &= ~(3u << bit);
            const uint32_t number = bucket.numbers[bit / 2];
            if (number == 0) break;
            const Key& stored = keys_[number - 1];
            const __m128i equal =
                _mm_and_si128(_mm_cmpeq_epi8(stored.low, key.low), _mm_cmpeq_epi8(stored.high, key.high));
            if (_mm_movemask_epi8(equal) == 0xFFFF && (name.size() < kKeyBytes || SameTail(number, name)))
                return number;
        }
        if (bucket.numbers[kPlayersPerBucket - 1] == 0) return Add(key, name, bucket);
    }
}

std::optional<uint32_t> PlayerTable::Add(const PlayerKey& key, std::string_view name, Bucket& bucket) {
    // Before the first player the list holds one empty name, which an empty name finds: the line goes to whoever
    // speaks first afterwards. Kept on purpose.
    if (name.empty() && names_.empty()) return 1;
    if (names_.size() == kMostPlayers) return std::nullopt;
    names_.push_back(name);
    keys_.push_back({key.low, key.high});
    hashes_.push_back(key.hash);
    size_t place = 0;
    while (bucket.numbers[place] != 0) ++place;
    bucket.tags[place] = static_cast<uint16_t>(key.hash >> 16);
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
