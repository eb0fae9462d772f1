#pragma once

#include <string>

#include "platform/error.h"
#include "platform/form.h"

namespace quirn {

// Opens a document, a program or an address with its registered program. The system raises no error when it cannot but
// returns a number; the failure is what that number means.
Failure OpenWithRegisteredProgram(Form& owner, const std::string& target);

// Opens a help file at its contents. False when the file or the system's help viewer is missing.
bool ShowHelpContents(Form& owner, const std::string& helpFile);

}  // namespace quirn
