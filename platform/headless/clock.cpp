#include "platform/clock.h"

#include "platform/headless/headless.h"

namespace quirn {

std::string ShortDateAndTime() {
    return headless::TheWorld().dateAndTime;
}

std::string ShortDateAndTimeOf(uint64_t writtenLast) {
    return writtenLast == 0 ? std::string() : headless::TheWorld().dateAndTime;
}

std::string SortableTime() {
    return headless::TheWorld().sortableTime;
}

}  // namespace quirn
