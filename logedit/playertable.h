#pragma once

#include <emmintrin.h>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

// The distinct players of a log. Finds what a linear, case-blind search through the names from the first on finds.
namespace quirn {

// A name as it is looked up: its first bytes in upper case, filled up with a byte that no upper-case text holds, and a
// hash of all of them.
struct PlayerKey {
    __m128i low, high;
    uint32_t hash;
};

inline constexpr size_t kKeyBytes = 32;

// Fills a key in its place. There must be kKeyBytes readable bytes from the name's start on.
void MakePlayerKey(const char* name, size_t length, PlayerKey& key);

class PlayerTable {
public:
    // names: filled by Number, in the order of numbers.
    explicit PlayerTable(std::vector<std::string_view>& names);

    // The player's number, from 1; a new one when the name is new. Nothing when there are too many players.
    std::optional<uint32_t> Number(const PlayerKey& key, std::string_view name);

    // Fetches what Number will look at: first where the hash leads, and once that is there, the names found there.
    void FetchBucket(const PlayerKey& key) const {
        _mm_prefetch(reinterpret_cast<const char*>(&buckets_[key.hash & mask_]), _MM_HINT_T0);
    }
    void FetchName(const PlayerKey& key) const;

private:
    // Eight players whose hashes end alike, found by comparing eight tags at once. Full ones overflow into the next.
    static constexpr size_t kPlayersPerBucket = 8;
    struct alignas(32) Bucket {
        uint16_t tags[kPlayersPerBucket];
        uint16_t numbers[kPlayersPerBucket];  // 0 is free; filled from the first on
    };
    // Aligned to more than any allocation is by itself: 32-bit Windows gives 8, and the compiler believes 16.
    struct alignas(32) Key {
        __m128i low, high;
    };

    static uint32_t SameTags(const Bucket& bucket, uint32_t hash);
    std::optional<uint32_t> Add(const PlayerKey& key, std::string_view name, Bucket& bucket);
    bool SameTail(uint32_t number, std::string_view name) const;
    void Grow();

    std::vector<std::string_view>& names_;
    std::vector<Key> keys_;
    std::vector<uint32_t> hashes_;
    std::vector<Bucket> buckets_;
    size_t mask_;
};

}  // namespace quirn
