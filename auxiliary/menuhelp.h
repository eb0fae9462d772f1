#pragma once

#include <string>
#include <vector>

#include "platform/form.h"

namespace quirn {

// Shows in the status bar what the item does that the player moves over, in these menus or in the form's system menu;
// nothing over headings and separators. Closing means something else in every window.
void ShowMenuHelp(Form& form, StatusBar& bar, const std::vector<Menu*>& menus, const char* closeHelp);

// The text for a command of the system menu, by the system's numbers (0xF000 and the like); empty for any other.
std::string SystemMenuHelp(int command, const char* closeHelp);

}  // namespace quirn
