#include "logedit/deletions.h"

namespace quirn {

void Deletions::Add(const uint32_t* lines, const ListSelection& selected, size_t top) {
    Step step{{}, top};
    selected.ForEach([&](size_t item) {
        const uint32_t line = lines[item];
        if (!step.lines.empty() && step.lines.back().end == line) ++step.lines.back().end;
        else step.lines.push_back({line, line + 1});
    });
    if (step.lines.empty()) return;
    steps_.resize(done_);
    steps_.push_back(std::move(step));
    Redo();
}

const Deletions::Step& Deletions::Undo() {
    Mark(steps_[--done_], false);
    return steps_[done_];
}

const Deletions::Step& Deletions::Redo() {
    Mark(steps_[done_], true);
    return steps_[done_++];
}

void Deletions::Mark(const Step& step, bool gone) {
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
