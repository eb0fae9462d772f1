#pragma once

#include <string>

namespace quirn {

// The status bar's text while the player moves over an item of the main window's menus; empty for a heading, a
// separator, a recent file, or a number that is no item's.
std::string MenuHelpText(int command);

// The same for the window's system menu, by the system's numbers (0xF000 and the like).
std::string SystemMenuHelpText(int command);

}  // namespace quirn
