#include "logedit/textfilter.h"

#include <algorithm>

#include "logedit/linesearch.h"
#include "platform/text.h"

namespace quirn {

namespace {

// In a line of a log, which has readable bytes behind it.
bool Holds(std::string_view line, const TextFinder& finder) {
    return finder.Next(line.data(), line.data() + line.size()) != nullptr;
}

// Takes the items with a hit out of the lines.
size_t Without(const ParsedLog& log, const TextFinder& finder, uint32_t* lines, size_t count) {
    size_t kept = 0;
    size_t next = 0;  // the first item that has not been looked at
    const auto keepUpTo = [&](size_t item) {
        std::copy(lines + next, lines + item, lines + kept);
        kept += item - next;
    };
    ForEachHit({log, lines, count}, finder, 0, [&](size_t item) {
        keepUpTo(item);
        next = item + 1;
        return true;
    });
    keepUpTo(count);
    return kept;
}

}  // namespace

TextFilter::TextFilter(std::string_view text) {
    while (!text.empty()) {
        text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
        const bool wanted = !text.starts_with('-');
        if (!wanted) text.remove_prefix(1);
        const bool quoted = text.starts_with('"');
        if (quoted) text.remove_prefix(1);
        const size_t end = std::min(text.find(quoted ? '"' : ' '), text.size());
        Add(text.substr(0, end), wanted);
        text.remove_prefix(std::min(end + 1, text.size()));
    }
}

void TextFilter::Add(std::string_view word, bool wanted) {
    if (!word.empty()) (wanted ? wanted_ : unwanted_).push_back({FoldCase(word), TextFinder(word)});
}

// known: a word that is known to be there.
bool TextFilter::Passes(std::string_view line, const Word* known) const {
    return std::all_of(wanted_.begin(), wanted_.end(),
                       [&](const Word& word) { return &word == known || Holds(line, word.finder); }) &&
           std::none_of(unwanted_.begin(), unwanted_.end(), [&](const Word& word) { return Holds(line, word.finder); });
}

// The longest word is searched in the whole text; the others are looked for where it stands.
size_t TextFilter::Apply(const ParsedLog& log, uint32_t* lines, size_t count) const {
    if (wanted_.empty()) {
        for (const Word& word : unwanted_) count = Without(log, word.finder, lines, count);
        return count;
    }
    const Word& longest = *std::max_element(
        wanted_.begin(), wanted_.end(), [](const Word& a, const Word& b) { return a.folded.size() < b.folded.size(); });
    const bool alone = wanted_.size() == 1 && unwanted_.empty();
    size_t kept = 0;
    ForEachHit({log, lines, count}, longest.finder, 0, [&](size_t item) {
        // Those in front of the present item are not needed any more.
        if (alone || Passes(log.Line(lines[item]), &longest)) lines[kept++] = lines[item];
        return true;
    });
    return kept;
}

std::vector<std::pair<size_t, size_t>> TextFilter::Marks(std::string_view text) const {
    std::vector<std::pair<size_t, size_t>> marks;
    if (wanted_.empty()) return marks;
    const std::string folded = FoldCase(text);
    for (const Word& word : wanted_)
        for (size_t at = folded.find(word.folded); at != std::string::npos;
             at = folded.find(word.folded, at + word.folded.size()))
            marks.emplace_back(at, word.folded.size());
    return marks;
}

}  // namespace quirn
