#include "logedit/parsedlog.h"

#include <algorithm>
#include <cstring>
#include <new>

namespace quirn {

ParsedLog::ParsedLog() : text_(std::make_unique_for_overwrite<char[]>(2 * kMargin)) {
    std::memset(text_.get(), '\n', 2 * kMargin);
    // One line's worth of a block would do, but then the last block were a special case everywhere.
    AddBlock();
    blocks_[0]->begin[0] = 0;
    blocks_[0]->info[0] = 0;
}

std::string_view ParsedLog::LineAlone(const char* begin) const {
    // There is a line end behind the text too.
    const auto left = static_cast<size_t>(Text() + textSize_ - begin);
    const char* end = static_cast<const char*>(std::memchr(begin, '\n', left + 1));
    // A CR belongs to the line's end only when an LF of the file follows.
    if (end > begin && end[-1] == '\r' && end < Text() + textSize_) --end;
    return {begin, end};
}

size_t ParsedLog::FileOf(size_t line) const {
    const auto next = std::upper_bound(files_.begin(), files_.end(), Offset(line),
                                       [](size_t offset, const LogFile& file) { return offset < file.begin; });
    return static_cast<size_t>(std::max(next, files_.begin() + 1) - files_.begin()) - 1;
}

size_t ParsedLog::FirstLineOf(size_t file) const {
    size_t first = 0;
    for (size_t count = lineCount_; count > 0;) {
        const size_t half = count / 2;
        const bool before = Offset(first + half) < files_[file].begin;
        if (before) first += half + 1;
        count = before ? count - half - 1 : half;
    }
    return first;
}

bool ParsedLog::GoesOnFrom(const ParsedLog& earlier) const {
    size_t last = earlier.lineCount_ - 1;
    const std::string_view end = earlier.Line(last);
    const bool hasEnd = end.data() + end.size() < earlier.Text() + earlier.textSize_;
    if (lineCount_ == last && !hasEnd) --last;
    if (lineCount_ <= last || Offset(last) != earlier.Offset(last)) return false;
    const std::string_view line = earlier.Line(last);
    const auto size = static_cast<size_t>(line.data() + line.size() - earlier.Text());
    return size <= textSize_ && std::memcmp(Text(), earlier.Text(), size) == 0;
}

bool ParsedLog::Allocate(size_t size) {
    // Not filled with zeros: a page is touched when the file's bytes come in.
    text_.reset(new (std::nothrow) char[size + 2 * kMargin]);
    if (!text_) return false;
    textSize_ = size;
    std::memset(text_.get(), '\n', kMargin);
    std::memset(text_.get() + kMargin + size, '\n', kMargin);
    return true;
}

}  // namespace quirn
