#pragma once

#include "platform/control.h"

// What the layouts of the windows share, in twips.
namespace quirn {

inline constexpr int kRowHeight = 285;    // a text box or list
inline constexpr int kLabelHeight = 195;  // one line of text
inline constexpr int kCheckHeight = 225;
inline constexpr int kButtonHeight = 345;

// Places of one size in columns of so many rows, counted from 0 down each column.
struct Grid {
    Bounds first;
    int stepX;
    int stepY;
    int rows;

    constexpr Bounds Cell(size_t index) const {
        const int cell = static_cast<int>(index);
        return first.MovedBy(cell / rows * stepX, cell % rows * stepY);
    }
};

}  // namespace quirn
