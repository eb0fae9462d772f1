#include "logedit/logfind.h"

#include <algorithm>
#include <vector>

#include "logedit/textfinder.h"

namespace quirn {

namespace {

// The last item, from one on, whose line starts at a place of the log's text or before. Near ones are tried first.
size_t ItemAt(const LogView& view, size_t item, size_t place) {
    const auto startsBefore = [&](size_t i) { return view.Log()->Offset(view.LineIndex(i)) <= place; };
    size_t step = 1;
    while (item + step < view.Count() && startsBefore(item + step)) {
        item += step;
        step *= 2;
    }
    for (; step > 0; step /= 2)
        if (item + step < view.Count() && startsBefore(item + step)) item += step;
    return item;
}

// The first item whose stored line has a hit. Goes through the log's text in one go, hidden lines too: that is faster
// than a look at each line.
std::optional<size_t> FindInLines(const LogView& view, const TextFinder& finder, size_t item) {
    const ParsedLog& log = *view.Log();
    const std::string_view lastLine = view.Line(view.Count() - 1);
    const char* const end = lastLine.data() + lastLine.size();
    const char* from = view.Line(item).data();
    while (const char* hit = finder.Next(from, end)) {
        item = ItemAt(view, item, static_cast<size_t>(hit - log.Text()));
        const std::string_view line = view.Line(item);
        const char* const lineEnd = line.data() + line.size();
        if (hit + finder.Length() <= lineEnd) return item;
        from = hit + 1;  // across a line's end, or in what is not shown
        if (hit >= lineEnd) {
            if (item + 1 == view.Count()) return std::nullopt;
            from = std::max(from, log.Text() + log.Offset(view.LineIndex(item + 1)));
        }
    }
    return std::nullopt;
}

// Where in a tag ("{", digits, "} ") the text could start, by the kind of each character.
std::vector<size_t> StartsInTag(std::string_view text, size_t tagLength) {
    std::vector<size_t> starts;
    for (size_t start = 0; start < tagLength; ++start) {
        bool possible = true;
        for (size_t i = 0; i < text.size() && start + i < tagLength; ++i) {
            const size_t at = start + i;
            const char c = text[i];
            if (at == 0) possible &= c == '{';
            else if (at == tagLength - 2) possible &= c == '}';
            else if (at == tagLength - 1) possible &= c == ' ';
            else possible &= c >= '0' && c <= '9';
        }
        if (possible) starts.push_back(start);
    }
    return starts;
}

// The first item in [item, end) with a hit that starts in its tag.
std::optional<size_t> FindInTags(const LogView& view, std::string_view text, const TextFinder& finder, size_t item,
                                 size_t end) {
    const LineNumberTag& tags = *view.Tags();
    const std::vector<size_t> starts = StartsInTag(text, tags.Length());
    if (starts.empty()) return std::nullopt;
    std::string tag(tags.Length(), ' ');
    for (; item < end; ++item) {
        tags.Write(view.LineIndex(item), tag.data());
        for (const size_t start : starts) {
            const size_t inTag = std::min(text.size(), tag.size() - start);
            if (tag.compare(start, inTag, text, 0, inTag) != 0) continue;
            if (inTag == text.size() ||
                (view.Line(item).size() >= text.size() - inTag && finder.StandsAt(view.Line(item).data(), inTag)))
                return item;
        }
    }
    return std::nullopt;
}

}  // namespace

std::optional<size_t> FindItem(const LogView& view, std::string_view text, size_t start) {
    if (start >= view.Count()) return std::nullopt;
    if (text.empty()) return start;
    const TextFinder finder(text);
    const std::optional<size_t> inLines = FindInLines(view, finder, start);
    if (!view.Tags()) return inLines;
    const std::optional<size_t> inTags = FindInTags(view, text, finder, start, inLines.value_or(view.Count()));
    return inTags ? inTags : inLines;
}

bool FindInLog(const LogView& view, std::string_view text, const FindList& list) {
    const size_t top = list.topIndex();
    const size_t start = list.current() == top ? top + 1 : top;
    const std::optional<size_t> hit = FindItem(view, text, start);
    if (hit) list.showHit(*hit);
    return hit && list.topIndex() != top;
}

std::string CannotFindText(const std::string& text) {
    return "Cannot find '" + text + "'";
}

}  // namespace quirn
