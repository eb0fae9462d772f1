#pragma once

#include <optional>

#include "platform/controls.h"
#include "platform/form.h"

// The colours that are really drawn: a player who has chosen high contrast gets the system's, whatever a form says.
namespace quirn::win32 {

bool IsHighContrast();

std::optional<Color> ForeColorOf(const Control& control);  // nothing is the system's
std::optional<Color> BackColorOf(const Control& control);
std::optional<Color> BackColorOf(const Form& form);

// The system's colours have changed: the windows of controls learn it from their form.
void SystemColorsChanged(const Form& form);

}  // namespace quirn::win32
