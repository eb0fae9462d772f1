#pragma once

#include <emmintrin.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string_view>
#include <vector>

// The distinct players of a log. Finds what a linear, case-blind search through the names from the first on finds.
namespace quirn {

// Who speaks a line: a name, and where his number is to go.
struct Speaker {
    const char* name;  // kKeyBytes readable bytes from here on, whatever the length
    uint32_t length;
    int32_t* info;  // the line's info word, still without a player
};

// Names are compared by this many bytes at once.
inline constexpr size_t kKeyBytes = 32;

class PlayerTable {
public:
    // names: filled by Number, in the order of numbers.
    explicit PlayerTable(std::vector<std::string_view>& names);

    // Puts the speakers' numbers, from 1, into their lines; new ones for names that are new. False when there are too
    // many players.
    bool Number(std::span<const Speaker> speakers);

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

    // A name as it is looked up: its first bytes in upper case, filled up with a byte that no upper-case text holds,
    // and a hash of all of them.
    struct LookUp {
        Key key;
        uint32_t hash;
        uint32_t likely;  // number of the player who is probably meant
    };

    static void MakeLookUp(const Speaker& speaker, LookUp& lookUp);
    static uint32_t SameTags(const Bucket& bucket, uint32_t hash);
    uint32_t LikelyNumber(uint32_t hash) const;
    uint32_t Find(const LookUp& lookUp, std::string_view name);
    uint32_t Add(const LookUp& lookUp, std::string_view name, Bucket& bucket);
    bool IsNamed(uint32_t number, const Key& key, std::string_view name) const;
    bool SameTail(uint32_t number, std::string_view name) const;
    void Grow();

    std::vector<std::string_view>& names_;
    std::vector<Key> keys_;  // by number; that of number 0 is nobody's
    std::vector<uint32_t> hashes_;
    std::vector<Bucket> buckets_;
    size_t mask_;
    std::unique_ptr<LookUp[]> lookUps_;
};

}  // namespace quirn
