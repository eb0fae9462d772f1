#pragma once

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
    struct Step {
        std::vector<Range> lines;
        size_t top;  // the line that was the first in sight
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
    void MarkStep(const Step& step, bool gone);

    std::vector<Step> steps_;
    size_t done_ = 0;             // of the steps; those behind can be done again
    size_t marked_ = 0;           // of these, in gone_
    std::vector<uint64_t> gone_;  // a bit for each line, as far as there are any
};

}  // namespace quirn
