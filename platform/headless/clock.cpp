#include "platform/clock.h"

#include "platform/headless/headless.h"

namespace quirn {

std::string ShortDateAndTime() {
    return headless::TheWorld().dateAndTime;
}

}  // namespace quirn
