#pragma once

#include <string>

#include "platform/form.h"

namespace quirn {

// Opens a document, a program or an address with its registered program. False when the system cannot.
bool OpenWithRegisteredProgram(Form& owner, const std::string& target);

// Opens a help file at its contents. False when the file or the system's help viewer is missing.
bool ShowHelpContents(Form& owner, const std::string& helpFile);

}  // namespace quirn
