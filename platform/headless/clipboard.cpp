#include "platform/clipboard.h"

#include "platform/headless/headless.h"

namespace quirn {

bool SetClipboardText(const std::string& text) {
    headless::TheWorld().clipboard = text;
    return true;
}

}  // namespace quirn
