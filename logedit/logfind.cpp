#include "logedit/logfind.h"

#include <algorithm>
#include <vector>

#include "logedit/linesearch.h"
#include "logedit/textfinder.h"
#include "platform/text.h"

namespace quirn {

namespace {

// The first item whose stored line has a hit.
std::optional<size_t> FindInLines(const LogView& view, const TextFinder& finder, size_t item) {
    std::optional<size_t> hit;
    ForEachHit(view.Lines(), finder, item, [&](size_t found) {
        hit = found;
        return false;
    });
    return hit;
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

// Some items at a time, from the end on; in each the last hit counts.
std::optional<size_t> FindItemBefore(const LogView& view, std::string_view text, size_t end) {
    constexpr size_t kItems = 4096;
    const TextFinder finder(text);
    const std::string folded = FoldCase(text);
    // A hit may start in the tag, which is no part of the line.
    const bool mayStartInTag = view.Tags() && !StartsInTag(text, view.Tags()->Length()).empty();
    for (end = std::min(end, view.Count()); end > 0;) {
        const size_t begin = end - std::min(end, kItems);
        std::optional<size_t> last;
        ForEachHit({*view.Log(), view.Lines().lines, end}, finder, begin, [&](size_t item) {
            last = item;
            return true;
        });
        for (size_t item = end; mayStartInTag && item > last.value_or(begin); --item)
            if (FoldCase(view.Text(item - 1)).find(folded) != std::string::npos) return item - 1;
        if (last) return last;
        end = begin;
    }
    return std::nullopt;
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
