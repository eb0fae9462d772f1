#pragma once

#include "mainwin/program.h"
#include "platform/form.h"

namespace quirn {

enum class LaunchMode {
    Interactive = 0,  // the main window is hidden and the program stays in the tray
    CommandLine = 1,  // the program ends after a successful launch
};

enum class LaunchResult {
    Refused,  // no game folder is set; the player has been told
    Failed,   // the game could not be started; the player has been told
    Done,     // in mode CommandLine the caller ends the program now, without any questions
};

// Starts the game in its folder with a profile that has been written into it before, then waits, without a limit, until
// the game's window exists and one more second has passed, the player closes the run box, or the program ends.
// mainWindow (null while there is none) is hidden as soon as the game has been started; in mode CommandLine it is
// unloaded.
LaunchResult LaunchGame(const Program& program, const Profile& profile, LaunchMode mode, Form* mainWindow);

}  // namespace quirn
