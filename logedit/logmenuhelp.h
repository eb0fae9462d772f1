#pragma once

#include <string>

namespace quirn {

// The status bar's text while the player moves over an item of the log editor's menus; empty for any other item.
std::string LogMenuHelpText(int command);

// The same for the window's system menu, by the system's numbers.
std::string LogSystemMenuHelpText(int command);

}  // namespace quirn
