#include "logedit/deletions.h"

#include <algorithm>
#include <utility>

namespace quirn {

// The lines that are not selected move up over the others; so many are left.
template <class TakeLine>
size_t Deletions::MoveUp(uint32_t* lines, size_t count, const ListSelection& selected, TakeLine takeLine) {
    size_t kept = 0, next = 0;  // the first that has not been looked at
    const auto keepUpTo = [&](size_t item) {
        if (kept == next) kept = item;
        else
            for (size_t i = next; i < item; ++i) lines[kept++] = lines[i];
    };
    selected.ForEach([&](size_t item) {
        takeLine(lines[item]);
        keepUpTo(item);
        next = item + 1;
    });
    keepUpTo(count);
    return kept;
}

size_t Deletions::Take(uint32_t* lines, size_t count, const ListSelection& selected, size_t top) {
    const size_t selectedCount = selected.SelectedCount();
    if (selectedCount == 0) return count;
    Step step;
    step.top_ = top;
    step.firstWord_ = lines[0] / 64;
    const size_t words = lines[count - 1] / 64 + 1 - step.firstWord_;
    if (selectedCount > words) {
        step.bits_.resize(words);
        count = MoveUp(lines, count, selected, [bits = step.bits_.data(), first = step.firstWord_](uint32_t line) {
            bits[line / 64 - first] |= uint64_t{1} << line % 64;
        });
    } else {
        count = MoveUp(lines, count, selected, [&ranges = step.ranges_](uint32_t line) {
            if (!ranges.empty() && ranges.back().end == line) ++ranges.back().end;
            else ranges.push_back({line, line + 1});
        });
        step.ranges_.shrink_to_fit();
    }
    steps_.resize(done_);
    marked_ = std::min(marked_, done_);
    steps_.push_back(std::move(step));
    ++done_;
    return count;
}

const Deletions::Step& Deletions::Undo() {
    const Step& step = steps_[--done_];
    if (marked_ > done_) MarkStep(steps_[--marked_], false);
    return step;
}

const Deletions::Step& Deletions::Redo() {
    return steps_[done_++];
}

// Late, since most deletions are never asked for again.
void Deletions::Mark() {
    while (marked_ < done_) MarkStep(steps_[marked_++], true);
}

void Deletions::MarkStep(const Step& step, bool gone) {
    step.ForEachRange([&](const Range& range) {
        if (gone_.size() < range.end / 64 + 1) gone_.resize(range.end / 64 + 1);
        for (uint32_t line = range.first; line < range.end; ++line) {
            const uint64_t bit = uint64_t{1} << line % 64;
            if (gone) gone_[line / 64] |= bit;
            else gone_[line / 64] &= ~bit;
        }
    });
}

}  // namespace quirn
