#pragma once

#include <optional>
#include <string>

#include "platform/form.h"

namespace quirn {

// Asks for a config code. The result is the text of the masked box, 14 characters with "_" for places that were left
// empty; nothing when the player cancels.
std::optional<std::string> AskConfigCode(Form& owner);

}  // namespace quirn
