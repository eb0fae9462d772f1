#pragma once

#include <functional>
#include <string>

#include "mainwin/program.h"
#include "platform/error.h"

namespace quirn {

// Calls a routine that replaces a QRN file, and keeps what the file held as an earlier version. A file that cannot be
// kept is replaced all the same, and program.keptLastVersion tells of it.
Failure SaveKeepingVersion(Program& program, const std::string& path, const std::function<Failure()>& save);

}  // namespace quirn
