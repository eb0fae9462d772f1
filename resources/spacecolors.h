#pragma once

#include "platform/control.h"

// The colours that the splash and the run box share.
namespace quirn {

inline constexpr Color kSpaceBackground = Rgb(8, 12, 40);
inline constexpr Color kSpaceText = Rgb(190, 200, 225);
inline constexpr Color kSpaceGold = Rgb(255, 214, 92);

}  // namespace quirn
