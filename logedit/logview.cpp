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
    return log_->LongestLine() + (tags_ ? tags_->Length() : 0);
}

Failure LogView::ApplyLogFilter(std::shared_ptr<const ParsedLog> log, uint32_t mask, const PlayerList& include,
                                const PlayerList& exclude, bool lineNumbers) {
    if (log != log_) {
        // Filled with zeros it would cost as much as the filter itself.
        std::unique_ptr<uint32_t[]> room(new (std::nothrow) uint32_t[log->LineCount() + 1]);
        if (!room) return MakeError(ErrorNumber::OutOfMemory);
        shown_ = std::move(room);
        log_ = std::move(log);
    }
    count_ = FilterLines(*log_, mask, include, exclude, shown_.get());
    tags_.reset();
    if (lineNumbers) tags_.emplace(log_->LineCount());
    return {};
}

void LogView::Delete(const ListSelection& selected) {
    size_t kept = 0;
    for (size_t i = 0; i < count_; ++i) {
        shown_[kept] = shown_[i];
        kept += !selected.IsSelected(i);
    }
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
