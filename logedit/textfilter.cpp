#include "logedit/textfilter.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "platform/text.h"

namespace quirn {

namespace {

constexpr size_t kAtOnce = 512;  // lines, whose text stays in the cache from word to word

// Where a word stands in a stretch of the text, so that a line costs a look at a few bits however frequent the word is.
class WordPlaces {
public:
    WordPlaces(const ParsedLog& log, const TextFinder& word, bool wanted) : log_(log), word_(word), wanted_(wanted) {}

    // Writes those of the lines that pass to a place in front of them or their own; returns how many they are. From
    // call to call lines must be in ascending order.
    size_t Keep(const uint32_t* lines, size_t count, uint32_t* kept) {
        size_t keptCount = 0;
        for (size_t i = 0; i < count; ++i) {
            const uint32_t line = lines[i];
            kept[keptCount] = line;
            keptCount += IsIn(log_.Line(line)) == wanted_;
        }
        return keptCount;
    }

private:
    bool IsIn(std::string_view line) {
        if (line.size() < word_.Length()) return false;
        const size_t places = line.size() - word_.Length() + 1;
        if (places > kPlaces) return word_.Next(line.data(), line.data() + line.size()) != nullptr;
        if (line.data() + places > begin_ + marked_) Mark(line.data());
        return Any(static_cast<size_t>(line.data() - begin_), places);
    }

    static constexpr size_t kBlocks = 128;
    static constexpr size_t kPlaces = kBlocks * 64;

    // No further than a word can stand.
    void Mark(const char* begin) {
        const auto last = static_cast<size_t>(log_.Text() + log_.TextSize() - begin) - word_.Length();
        const size_t blocks = std::min(kBlocks, last / 64 + 1);
        word_.MarkPlaces(begin, blocks, places_.data());
        begin_ = begin;
        marked_ = blocks * 64;
    }

    bool Any(size_t place, size_t count) const {
        for (; count > 127; count -= 64, place += 64)
            if (From(place) != 0) return true;
        // Lines are of any length; what a processor cannot guess is done without a branch.
        const size_t near = std::min<size_t>(count, 64), far = count - near;
        return (From(place) << (64 - near) | From(place + 64) << (63 - far) << 1) != 0;
    }

    uint64_t From(size_t place) const {
        const size_t shift = place % 64;
        return places_[place / 64] >> shift | places_[place / 64 + 1] << 1 << (63 - shift);
    }

    const ParsedLog& log_;
    const TextFinder& word_;
    bool wanted_;
    const char* begin_ = nullptr;
    size_t marked_ = 0;  // places from there on
    std::array<uint64_t, kBlocks + 2> places_{};
};

}  // namespace

TextFilter::TextFilter(std::string_view text) {
    while (!text.empty()) {
        text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
        const bool wanted = !text.starts_with('-');
        if (!wanted) text.remove_prefix(1);
        const bool quoted = text.starts_with('"');
        if (quoted) text.remove_prefix(1);
        const size_t end = std::min(text.find(quoted ? '"' : ' '), text.size());
        if (end > 0) words_.push_back({FoldCase(text.substr(0, end)), TextFinder(text.substr(0, end)), wanted});
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    // Those first that leave the fewest lines for the others.
    std::stable_sort(words_.begin(), words_.end(), [](const Word& a, const Word& b) {
        return a.wanted != b.wanted ? a.wanted : a.folded.size() > b.folded.size();
    });
}

size_t TextFilter::Apply(const ParsedLog& log, uint32_t* lines, size_t count) const {
    std::vector<WordPlaces> words;
    for (const Word& word : words_) words.emplace_back(log, word.finder, word.wanted);
    size_t kept = 0;
    for (size_t begin = 0; begin < count; begin += kAtOnce) {
        const uint32_t* from = lines + begin;
        size_t left = std::min(kAtOnce, count - begin);
        for (WordPlaces& word : words) {
            left = word.Keep(from, left, lines + kept);
            from = lines + kept;
        }
        kept += left;
    }
    return kept;
}

std::vector<std::pair<size_t, size_t>> TextFilter::Marks(std::string_view text) const {
    std::vector<std::pair<size_t, size_t>> marks;
    if (IsEmpty()) return marks;
    const std::string folded = FoldCase(text);
    for (const Word& word : words_)
        for (size_t at = word.wanted ? folded.find(word.folded) : std::string::npos; at != std::string::npos;
             at = folded.find(word.folded, at + word.folded.size()))
            marks.emplace_back(at, word.folded.size());
    return marks;
}

}  // namespace quirn
