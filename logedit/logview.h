#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "logedit/logfilter.h"
#include "logedit/parsedlog.h"
#include "platform/error.h"
#include "platform/listselection.h"

namespace quirn {

// The tags of displayed lines, "{0042} ": the line's number among all parsed lines, from 1, with as many digits as the
// highest has.
class LineNumberTag {
public:
    explicit LineNumberTag(size_t lineCount);
    size_t Length() const { return digits_ + 3; }  // bytes, the same for every line
    void Write(size_t line, char* out) const;      // exactly Length() bytes
    std::string Text(size_t line) const;

private:
    size_t digits_;
};

// What lstLog shows: indexes of lines, whose texts are made when somebody asks. Items count from 0. It keeps the log
// that it shows alive, which need not be the one that the next filter will be applied to.
class LogView {
public:
    size_t Count() const { return count_; }

    // An item as it is displayed: the line-number tag, when there are tags, and the stored line.
    std::string Text(size_t item) const;
    std::string_view Line(size_t item) const { return log_->Line(shown_[item]); }
    int32_t Info(size_t item) const { return log_->Info(shown_[item]); }
    size_t LineIndex(size_t item) const { return shown_[item]; }  // among all parsed lines
    const std::optional<LineNumberTag>& Tags() const { return tags_; }
    const ParsedLog* Log() const { return log_.get(); }  // null when nothing is shown

    // The longest text that an item of this log can have, in bytes: for the list's horizontal extent.
    size_t LongestText() const;

    // "Log Lines = 12": panel 2 of the status bar.
    std::string CountText() const { return "Log Lines = " + std::to_string(count_); }

    void Clear() { *this = LogView(); }

    // Shows the lines of a log that pass the filter; what was deleted before comes back. With 7 nothing has changed.
    Failure ApplyLogFilter(std::shared_ptr<const ParsedLog> log, uint32_t mask, const PlayerList& include,
                           const PlayerList& exclude, bool lineNumbers);

    // Takes the selected items out of the display; the parsed lines stay. The selection must have Count() items.
    void Delete(const ListSelection& selected);

    // The selected items as displayed, CR LF between them.
    std::string SelectedText(const ListSelection& selected) const;

private:
    std::shared_ptr<const ParsedLog> log_;
    std::unique_ptr<uint32_t[]> shown_;  // with room for every line of the log
    size_t count_ = 0;
    std::optional<LineNumberTag> tags_;
};

}  // namespace quirn
