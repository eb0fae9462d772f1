#include "platform/anchors.h"

namespace quirn {

namespace {

void Adjust(Anchor anchor, int more, int& start, int& length) {
    switch (anchor) {
        case Anchor::Stay: break;
        case Anchor::Follow: start += more; break;
        case Anchor::Grow: length += more; break;
        case Anchor::Center: start += more / 2; break;
    }
}

}  // namespace

Anchors& Anchors::Add(Control& control, Anchor across, Anchor down) {
    rows_.push_back({&control, control.Place(), across, down});
    return *this;
}

void Anchors::Place(int width, int height) const {
    for (const Row& row : rows_) {
        Bounds place = row.place;
        Adjust(row.across, width - width_, place.left, place.width);
        Adjust(row.down, height - height_, place.top, place.height);
        row.control->Move(place);
    }
}

}  // namespace quirn
