#include "logedit/logview.h"

#include <algorithm>
#include <new>
#include <utility>

namespace quirn {

LineNumberTag::LineNumberTag(size_t lineCount) : digits_(std::to_string(lineCount).size()) {}

void LineNumberTag::Write(size_t line, char* out) const {
    out[0] = '{';
    size_t number = line + 1;
    for (size_t i = digits_; i > 0; --i) {
        out[i] = static_cast<char>('0' + number % 10);
        number /= 10;
    }
    out[digits_ + 1] = '}';
    out[digits_ + 2] = ' ';
}

std::string LineNumberTag::Text(size_t line) const {
    std::string text(Length(), ' ');
    Write(line, text.data());
    return text;
}

std::string LogView::Text(size_t item) const {
    std::string text = tags_ ? tags_->Text(shown_[item]) : std::string();
    return text.append(Line(item));
}

size_t LogView::LongestText() const {
    if (!log_) return 0;
    return log_->LongestLine() + TagLength();
}

Failure LogView::ApplyLogFilter(std::shared_ptr<const ParsedLog> log, LineFilter filter, bool lineNumbers,
                                bool keepDeletedOut) {
    const bool another = log != log_;
    // The one line of an empty log is none of the game's: who deleted it has not deleted the first one that comes.
    const bool keeps = keepDeletedOut && !wasEmpty_ && (!another || (log_ && log->GoesOnFrom(*log_)));
    if (another || log->LineCount() > room_) {
        if (!MakeRoom(log->LineCount(), 0)) return MakeError(ErrorNumber::OutOfMemory);
        log_ = std::move(log);
    }
    wasEmpty_ = log_->IsEmpty();
    if (!keeps) deletions_.Clear();
    filter_ = std::move(filter);
    showsAll_ = false;
    Recompute();
    tags_.reset();
    if (lineNumbers) tags_.emplace(log_->LineCount());
    return {};
}

// One more than the lines, since the filter writes ahead of what it counts. The first `kept` indexes stay.
bool LogView::MakeRoom(size_t lines, size_t kept) {
    // Filled with zeros it would cost as much as the filter itself.
    std::unique_ptr<uint32_t[]> room(new (std::nothrow) uint32_t[lines + 1]);
    if (!room) return false;
    std::copy_n(shown_.get(), kept, room.get());
    shown_ = std::move(room);
    room_ = lines;
    return true;
}

Result<size_t> LogView::Extend(size_t lines, size_t players) {
    const size_t now = log_->LineCount();
    if (now > room_ && !MakeRoom(now + now / 8, count_)) return ErrorNumber::OutOfMemory;
    AddPlayers(filter_, *log_, players);
    uint32_t* const added = shown_.get() + count_;
    size_t count = FilterLines(*log_, FilterInUse(), added, lines);
    passed_ += count;
    undeleted_ += count;
    if (!showsAll_ && !text_.IsEmpty()) count = text_.Apply(*log_, added, count);
    count_ += count;
    if (tags_) tags_.emplace(now);
    return count;
}

void LogView::Recompute() {
    if (!log_) return;
    // A log that grew may have more lines than there was memory for: it stays as it is shown.
    if (log_->LineCount() > room_ && !MakeRoom(log_->LineCount(), count_)) return;
    passed_ = FilterLines(*log_, FilterInUse(), shown_.get());
    undeleted_ = passed_;
    if (!deletions_.IsEmpty()) {
        deletions_.Mark();
        undeleted_ = 0;
        for (size_t i = 0; i < passed_; ++i) {
            shown_[undeleted_] = shown_[i];
            undeleted_ += !deletions_.Has(shown_[i]);
        }
    }
    count_ = showsAll_ || text_.IsEmpty() ? undeleted_ : text_.Apply(*log_, shown_.get(), undeleted_);
}

void LogView::Clear() {
    TextFilter text = std::move(text_);
    *this = LogView();
    text_ = std::move(text);
}

void LogView::SetText(TextFilter text) {
    text_ = std::move(text);
    showsAll_ = false;
    Recompute();
}

void LogView::ShowAll(bool all) {
    showsAll_ = all;
    Recompute();
}

size_t LogView::ItemOfLine(size_t line, size_t from) const {
    const uint32_t* const lines = shown_.get();
    size_t end = from;
    for (size_t step = 1; end < count_ && lines[end] < line; step *= 2) {
        from = end + 1;
        end += step;
    }
    return static_cast<size_t>(std::lower_bound(lines + from, lines + std::min(end, count_), line) - lines);
}

// Line numbers are no part of the line.
std::vector<std::pair<size_t, size_t>> LogView::Marks(size_t item) const {
    std::vector<std::pair<size_t, size_t>> marks = text_.Marks(Line(item));
    for (auto& mark : marks) mark.first += TagLength();
    return marks;
}

LogView::Restored LogView::Undo() {
    const Deletions::Step& step = deletions_.Undo();
    Recompute();
    Restored restored{{}, ItemOfLine(step.Top())};
    restored.selection.Reset(count_);
    size_t end = 0;
    step.ForEachRange([&](const Deletions::Range& range) {
        const size_t first = ItemOfLine(range.first, end);
        end = ItemOfLine(range.end, first);
        if (first < end) restored.selection.SelectRange(first, end - 1, true);
    });
    return restored;
}

LogView::Restored LogView::Redo() {
    const Deletions::Step& step = deletions_.Redo();
    Recompute();
    Restored restored{{}, ItemOfLine(step.Top())};
    restored.selection.Reset(count_);
    return restored;
}

LogView::Hidden LogView::CountHidden() const {
    Hidden hidden;
    if (!log_) return hidden;
    const uint32_t mask = FilterInUse().mask;
    const size_t ofTypes = CountLines(*log_, mask);
    hidden.byType = log_->LineCount() - ofTypes;
    hidden.byPlayer = ofTypes - passed_;
    hidden.deleted = passed_ - undeleted_;
    hidden.byText = undeleted_ - count_;
    hidden.unknown = CountLines(*log_, mask | kUnknown) - ofTypes;
    return hidden;
}

void LogView::Delete(const ListSelection& selected, size_t top) {
    if (count_ == 0) return;
    const size_t kept = deletions_.Take(shown_.get(), count_, selected, LineIndex(std::min(top, count_ - 1)));
    undeleted_ -= count_ - kept;
    count_ = kept;
}

std::string LogView::SelectedText(const ListSelection& selected) const {
    std::string text;
    const char* before = "";
    selected.ForEach([&](size_t item) {
        text += std::exchange(before, "\r\n");
        if (tags_) text += tags_->Text(shown_[item]);
        text += Line(item);
    });
    return text;
}

}  // namespace quirn
