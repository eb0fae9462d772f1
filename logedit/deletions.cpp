#include "logedit/deletions.h"

#include <algorithm>
#include <utility>

namespace quirn {

namespace {

constexpr size_t kUsualRanges = 200'000;

}  // namespace

size_t Deletions::Take(uint32_t* lines, size_t count, const ListSelection& selected, size_t top) {
    Step step{{}, top};
    // Room for all of it at once, but not for each line of a long row.
    step.lines.reserve(std::min(selected.SelectedCount(), kUsualRanges));
    size_t kept = 0, next = 0;  // the first that has not been looked at
    const auto keepUpTo = [&](size_t item) {
        if (kept == next) kept = item;
        else
            for (size_t i = next; i < item; ++i) lines[kept++] = lines[i];
    };
    selected.ForEach([&](size_t item) {
        const uint32_t line = lines[item];
        if (!step.lines.empty() && step.lines.back().end == line) ++step.lines.back().end;
        else step.lines.push_back({line, line + 1});
        keepUpTo(item);
        next = item + 1;
    });
    if (step.lines.empty()) return count;
    keepUpTo(count);
    if (step.lines.size() < step.lines.capacity() / 2) step.lines.shrink_to_fit();
    steps_.resize(done_);
    marked_ = std::min(marked_, done_);
    steps_.push_back(std::move(step));
    ++done_;
    return kept;
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
    const size_t words = step.lines.back().end / 64 + 1;
    if (gone && gone_.size() < words) gone_.resize(words);
    for (const Range& range : step.lines)
        for (uint32_t line = range.first; line < range.end; ++line) {
            const uint64_t bit = uint64_t{1} << line % 64;
            if (gone) gone_[line / 64] |= bit;
            else gone_[line / 64] &= ~bit;
        }
}

}  // namespace quirn
