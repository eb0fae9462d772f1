#include "logedit/parsedlog.h"

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

std::string_view ParsedLog::Line(size_t line) const {
    const char* begin = Text() + Offset(line);
    if (DirectlyFollowed(line)) return {begin, Text() + Offset(line + 1) - 2};
    // There is a line end behind the text too.
    const char* end = static_cast<const char*>(std::memchr(begin, '\n', textSize_ + 1 - Offset(line)));
    // A CR belongs to the line's end only when an LF of the file follows.
    if (end > begin && end[-1] == '\r' && end < Text() + textSize_) --end;
    return {begin, end};
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
