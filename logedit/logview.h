#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "logedit/deletions.h"
#include "logedit/linesearch.h"
#include "logedit/logfilter.h"
#include "logedit/parsedlog.h"
#include "logedit/textfilter.h"
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
    size_t TagLength() const { return tags_ ? tags_->Length() : 0; }      // bytes
    const std::shared_ptr<const ParsedLog>& Log() const { return log_; }  // null when nothing is shown
    const LineFilter& Filter() const { return filter_; }                  // as it was applied last

    LinesOfLog Lines() const { return {*log_, shown_.get(), count_}; }  // not when nothing is shown
    // The first item, from one on, of this line or a later one; Count() when there is none. Near ones are tried first.
    size_t ItemOfLine(size_t line, size_t from = 0) const;

    // Where the wanted words of the text filter stand in an item's text: first byte and length.
    std::vector<std::pair<size_t, size_t>> Marks(size_t item) const;

    // The longest text that an item of this log can have, in bytes: for the list's horizontal extent.
    size_t LongestText() const;

    // "Log Lines = 12": panel 2 of the status bar.
    std::string CountText() const { return "Log Lines = " + std::to_string(count_); }

    void Clear();  // all but the text filter

    // Shows the lines of a log that pass the filter and the text filter. What was deleted before comes back, and cannot
    // be undone any more, unless it is kept out, in another log too when that goes on from this one. With 7 nothing has
    // changed.
    Failure ApplyLogFilter(std::shared_ptr<const ParsedLog> log, LineFilter filter, bool lineNumbers,
                           bool keepDeletedOut = false);

    // The log has grown: shows what is new of it, by the same filters. lines, players: how many it had. Returns how
    // many items are new; the old ones stay what they are. With 7 nothing has changed.
    Result<size_t> Extend(size_t lines, size_t players);

    // On top of types and players, as they were applied last; what ShowAll does is over.
    void SetText(TextFilter text);

    // Shows the lines of all types, unknown ones too, whoever speaks and whatever they say, until the filter is applied
    // anew. What is deleted stays so.
    void ShowAll(bool all);
    bool ShowsAll() const { return showsAll_; }

    // Takes the selected items out of the display; the parsed lines stay. The selection must have Count() items. top:
    // the first item in sight.
    void Delete(const ListSelection& selected, size_t top = 0);

    // What Undo and Redo leave: the lines that are back and the item that was the first in sight.
    struct Restored {
        ListSelection selection;
        size_t top = 0;
    };
    bool CanUndo() const { return deletions_.CanUndo(); }
    bool CanRedo() const { return deletions_.CanRedo(); }
    Restored Undo();
    Restored Redo();

    // Why lines are not shown, each counted once, in this order.
    struct Hidden {
        size_t byType = 0, byPlayer = 0, deleted = 0, byText = 0;
        size_t unknown = 0;  // those of byType whose kind nobody knows
    };
    Hidden CountHidden() const;

    // The selected items as displayed, CR LF between them.
    std::string SelectedText(const ListSelection& selected) const;

private:
    inline static const LineFilter kEverything{UINT32_MAX};

    bool MakeRoom(size_t lines, size_t kept);
    void Recompute();
    const LineFilter& FilterInUse() const { return showsAll_ ? kEverything : filter_; }

    std::shared_ptr<const ParsedLog> log_;
    std::unique_ptr<uint32_t[]> shown_;  // with room for every line of the log
    size_t count_ = 0;
    std::optional<LineNumberTag> tags_;
    LineFilter filter_;
    TextFilter text_;
    bool showsAll_ = false;
    bool wasEmpty_ = true;  // the log, when its filter was applied last
    Deletions deletions_;
    size_t room_ = 0;       // of shown_, lines
    size_t passed_ = 0;     // lines that pass types and players
    size_t undeleted_ = 0;  // of these
};

}  // namespace quirn
