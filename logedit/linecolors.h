#pragma once

#include <cstdint>
#include <optional>

#include "platform/control.h"

namespace quirn {

// The colour that lines of a type have in the game, or nearly so: made darker or lighter until it can be read on this
// background (a contrast of 4.5 : 1 at least, as the accessibility guidelines for the web count it). Nothing for a kind
// that nobody knows.
std::optional<Color> ColorOfType(uint32_t type, Color background);

}  // namespace quirn
