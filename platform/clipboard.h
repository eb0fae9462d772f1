#pragma once

#include <string>

#include "platform/error.h"

namespace quirn {

// Puts a text on the clipboard in place of what is there. Failure: another program holds it (70), or memory ran out
// (7); what was there may then be gone. A NUL ends the text for those who paste it.
Failure SetClipboardText(const std::string& text);

}  // namespace quirn
