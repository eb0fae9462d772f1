#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "platform/listselection.h"

namespace quirn {

// Which lines of a log the player has taken out of the display, deletion by deletion, so that each can be undone and
// done again. Lines count from 0; nothing here knows how long the log is.
class Deletions {
public:
    struct Range {
        uint32_t first, end;  // lines, without the end
    };
    class Step {
    public:
        size_t Top() const { return top_; }  // the line that was the first in sight

        // Calls the function with each range of lines that were deleted, in ascending order.
        template <class Function>
        void ForEachRange(Function function) const {
            for (const Range& range : ranges_) function(range);
            Range range{};
            for (size_t i = 0; i < bits_.size(); ++i) {
                for (uint64_t left = bits_[i]; left != 0;) {
                    const int zeros = std::countr_zero(left);
                    const int ones = std::countr_one(left >> zeros);
                    const auto first = static_cast<uint32_t>((firstWord_ + i) * 64 + static_cast<size_t>(zeros));
                    if (first != range.end) {
                        if (range.end > 0) function(range);
                        range.first = first;
                    }
                    range.end = first + static_cast<uint32_t>(ones);
                    left = zeros + ones == 64 ? 0 : left >> (zeros + ones) << (zeros + ones);
                }
            }
            if (range.end > 0) function(range);
        }

    private:
        friend class Deletions;

        // In the one or the other, whichever takes less room.
        std::vector<Range> ranges_;
        std::vector<uint64_t> bits_;  // one for each line
        size_t firstWord_ = 0;        // of the bits; line / 64
        size_t top_ = 0;
    };

    void Clear() { *this = Deletions(); }
    bool IsEmpty() const { return done_ == 0; }
    bool CanUndo() const { return done_ > 0; }
    bool CanRedo() const { return done_ < steps_.size(); }

    // Takes the selected ones out of these lines: the others move up, so many are left. What could be done again cannot
    // be any more.
    size_t Take(uint32_t* lines, size_t count, const ListSelection& selected, size_t top);
    const Step& Undo();
    const Step& Redo();

    // After Mark: whether a line is gone.
    void Mark();
    bool Has(uint32_t line) const {
        const size_t word = line / 64;
        return word < gone_.size() && (gone_[word] >> line % 64 & 1) != 0;
    }

private:
    template <class TakeLine>
    static size_t MoveUp(uint32_t* lines, size_t count, const ListSelection& selected, TakeLine takeLine);
    void MarkStep(const Step& step, bool gone);

    std::vector<Step> steps_;
    size_t done_ = 0;             // of the steps; those behind can be done again
    size_t marked_ = 0;           // of these, in gone_
    std::vector<uint64_t> gone_;  // a bit for each line, as far as there are any
};

}  // namespace quirn
