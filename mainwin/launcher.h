#pragma once

#include <string>

#include "game/gamerun.h"
#include "mainwin/frmrunbox.h"
#include "profile/profile.h"

namespace quirn {

// Puts a profile to use, for every command that does so: writes it into the game, starts the game, and shows the run
// box while it starts.
class Launcher {
public:
    Launcher();

    // What goes wrong is shown. True when the game has been started. It returns at once; the run box goes, without a
    // time limit, when the game's window has been there for one second or the player closes it. A launch that is under
    // way is given up for the new one.
    bool TransferAndLaunch(const Profile& profile, const std::string& gameFolder);

    // Waits until the run box goes, or would go if it were shown.
    void WaitForGame();

    // For the end of the program.
    void CloseRunBox() { runBox_.Unload(); }

private:
    bool LaunchGame(const Profile& profile, const std::string& gameFolder);

    GameRun game_;
    frmRunBox runBox_;
};

}  // namespace quirn
