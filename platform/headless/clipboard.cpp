#include "platform/clipboard.h"

#include "platform/headless/headless.h"

namespace quirn {

Failure SetClipboardText(const std::string& text) {
    if (headless::TheWorld().clipboardIsHeld) return MakeError(ErrorNumber::PermissionDenied);
    headless::TheWorld().clipboard = text;
    return {};
}

}  // namespace quirn
