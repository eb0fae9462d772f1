#pragma once

#include <string>

namespace quirn {

// Today's date, a blank, and the time, both in the user's short formats.
std::string ShortDateAndTime();

}  // namespace quirn
