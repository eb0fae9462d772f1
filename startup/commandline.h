#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "mainwin/program.h"

namespace quirn {

// The words of a command line, between spaces and tabs. Element 0 is always empty, the words are 1..n; those after
// MaxCount are ignored. Double quotes have no meaning: file names with spaces cannot be passed.
std::vector<std::string> SplitCommandLine(std::string_view commandLine, int MaxCount = 10);

// Handles one argument: "/LR:file" loads a profile, writes it into the game and starts the game; "/Q" sets the quiet
// flag; anything else but an empty text is reported. Every call clears the quiet flag first, so that only a "/Q" that
// comes last stays in force. True when the game was started and the program is to end at once.
bool HandleCommandLineArg(Program& program, std::string_view Arg);

}  // namespace quirn
