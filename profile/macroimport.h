#pragma once

#include <functional>
#include <string>

#include "platform/error.h"
#include "profile/profile.h"

namespace quirn {

// Reads the lines of a macro file (one macro a line, as they stand) over the sixteen macros. With fewer lines the other
// macros stay; lines after the 16th are ignored, and not read. onRead: the file has been read, and no macro has changed
// yet. The result tells whether a macro is another one now.
// Failure: the file cannot be read, or its first sixteen lines are longer than a megabyte; the profile is then as
// before.
Result<bool> ImportMacroFile(Profile& profile, const std::string& path, const std::function<void()>& onRead = {});

}  // namespace quirn
