#pragma once

#include <string>

#include "platform/process.h"

namespace quirn {

// The first top-level window of any program whose caption contains the text, in any case; 0 when there is none.
WindowHandle FindWindowContaining(const std::string& TitleText);

// Called when another copy is running: brings its window forward or, when it has none yet, says that it is running.
void HandOverToRunningCopy();

}  // namespace quirn
