#pragma once

#include <string>

#include "platform/form.h"

namespace quirn {

// Opens an address or a document with its registered program; says so when that fails.
void OpenDocument(Form& owner, const std::string& target);

}  // namespace quirn
