#pragma once

#include <vector>

#include "platform/control.h"

namespace quirn {

// What a control does, in one direction, when its form becomes larger or smaller.
enum class Anchor {
    Stay,
    Follow,  // keeps its distance from the right or lower edge
    Grow,    // keeps its distance from both edges
    Center,  // moves half the way
};

// Places the controls of a form for its size. A form that can be sized says once what each control does, in its
// constructor, and calls Place in onResize:
//     anchors_.Add(lstLog, Anchor::Grow, Anchor::Grow).Add(Frame1, Anchor::Stay, Anchor::Follow);
// What is in a frame goes with it. Controls that all stay need no line.
class Anchors {
public:
    // The size for which the controls' first places are meant.
    Anchors(int width, int height) : width_(width), height_(height) {}

    Anchors& Add(Control& control, Anchor across, Anchor down);
    void Place(int width, int height) const;

private:
    struct Row {
        Control* control;
        Bounds place;  // at the first size
        Anchor across, down;
    };
    int width_, height_;
    std::vector<Row> rows_;
};

}  // namespace quirn
