#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "logedit/parsedlog.h"
#include "logedit/textfinder.h"

namespace quirn {

// Which lines are shown by their text: all words must occur in a line, "-word" must not, and words in quotes count as
// one with their spaces. Letter case does not matter (code page 1252).
class TextFilter {
public:
    TextFilter() = default;
    explicit TextFilter(std::string_view text);

    bool IsEmpty() const { return words_.empty(); }

    // Keeps those of the lines, ascending indexes, that pass, in front. Returns how many they are. Not when it is
    // empty.
    size_t Apply(const ParsedLog& log, uint32_t* lines, size_t count) const;

    // Where the wanted words stand in a text: first byte and length.
    std::vector<std::pair<size_t, size_t>> Marks(std::string_view text) const;

private:
    struct Word {
        std::string folded;
        TextFinder finder;
        bool wanted;
    };

    std::vector<Word> words_;
};

}  // namespace quirn
