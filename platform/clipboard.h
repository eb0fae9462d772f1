#pragma once

#include <string>

namespace quirn {

// Puts a text on the clipboard in place of what is there. False when another program holds it or memory ran out; what
// was there may then be gone. A NUL ends the text for those who paste it.
bool SetClipboardText(const std::string& text);

}  // namespace quirn
