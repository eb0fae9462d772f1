#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "logedit/parsedlog.h"
#include "logedit/textfinder.h"

namespace quirn {

// Lines of a log by their ascending indexes. Items count from 0.
struct LinesOfLog {
    const ParsedLog& log;
    const uint32_t* lines;
    size_t count;

    std::string_view Line(size_t item) const { return log.Line(lines[item]); }
    size_t Offset(size_t item) const { return log.Offset(lines[item]); }
};

// The last item, from one on, whose line starts at a place of the log's text or before. Near ones are tried first.
inline size_t ItemAt(const LinesOfLog& lines, size_t item, size_t place) {
    size_t step = 1;
    while (item + step < lines.count && lines.Offset(item + step) <= place) {
        item += step;
        step *= 2;
    }
    for (; step > 0; step /= 2)
        if (item + step < lines.count && lines.Offset(item + step) <= place) item += step;
    return item;
}

// Calls found(item) for each item with a hit, from an item on, until it says false. Goes through the log's text in one
// go, the lines between the items too: that is faster than a look at each line.
template <class Found>
void ForEachHit(const LinesOfLog& lines, const TextFinder& finder, size_t item, Found found) {
    if (item >= lines.count) return;
    const char* const text = lines.log.Text();
    const std::string_view lastLine = lines.Line(lines.count - 1);
    const char* const end = lastLine.data() + lastLine.size();
    const char* from = text + lines.Offset(item);
    while (const char* hit = finder.Next(from, end)) {
        item = ItemAt(lines, item, static_cast<size_t>(hit - text));
        const std::string_view line = lines.Line(item);
        const char* const lineEnd = line.data() + line.size();
        const bool inLine = hit + finder.Length() <= lineEnd;
        if (inLine && !found(item)) return;
        if (inLine || hit >= lineEnd) {
            // What lies between this line and the next one is not shown.
            if (++item == lines.count) return;
            from = text + lines.Offset(item);
            if (from <= hit) from = hit + 1;
        } else {
            from = hit + 1;  // across the line's end
        }
    }
}

}  // namespace quirn
