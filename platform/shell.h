#pragma once

#include <string>
#include <vector>

#include "platform/error.h"
#include "platform/form.h"

namespace quirn {

// Opens a document, a program or an address with its registered program. The system raises no error when it cannot but
// returns a number; the failure is what that number means.
Failure OpenWithRegisteredProgram(Form& owner, const std::string& target);

// Opens the folder of a file with the file selected.
Failure ShowInFolder(Form& owner, const std::string& path);

// Moves a file to where the player can get it back from. Where there is no such place, the system asks him first.
Failure MoveToRecycleBin(Form& owner, const std::string& path);

// Makes a link on the player's desktop that starts this program, or replaces the one of that name.
Failure MakeDesktopLink(const std::string& name, const std::string& arguments);

// The programs of this file name that links in the Start menu lead to, by their full paths.
std::vector<std::string> StartMenuPrograms(const std::string& fileName);

// Opens a help file at its contents. False when the file or the system's help viewer is missing.
bool ShowHelpContents(Form& owner, const std::string& helpFile);

}  // namespace quirn
