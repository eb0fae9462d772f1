#pragma once

#include <string>

#include "platform/error.h"
#include "profile/profile.h"

namespace quirn {

// Reads the lines of a macro file (one macro a line, as they stand) over the sixteen macros. With fewer lines the other
// macros stay; lines after the 16th are ignored. The result tells whether a macro is another one now.
// Failure: the file cannot be read; the profile is then as before.
Result<bool> ImportMacroFile(Profile& profile, const std::string& path);

}  // namespace quirn
