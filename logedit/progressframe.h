#pragma once

#include <cstdint>
#include <string>

#include "platform/controls.h"
#include "platform/form.h"
#include "platform/virtuallist.h"

namespace quirn {

// Shows in the middle of a list, and in its colours, how far work on it is.
class ProgressFrame {
public:
    // over outlives this object, but may be made after it.
    ProgressFrame(Form& form, const VirtualList& over);

    void Show(const std::string& caption, uint64_t maximum);  // 0 counts as 1
    void SetValue(uint64_t value) { ProgBar.SetValue(value); }
    void Hide();

private:
    const VirtualList& over_;
    Frame famProgFrame;
    ProgressBar ProgBar;
};

}  // namespace quirn
