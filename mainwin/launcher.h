#pragma once

#include <string>

#include "game/gamerun.h"
#include "game/transfer.h"
#include "mainwin/frmrunbox.h"
#include "mainwin/program.h"

namespace quirn {

// Puts a profile to use, for every command that does so: writes it into the game, starts the game, and shows the run
// box while it starts.
class Launcher {
public:
    explicit Launcher(const Program& program);

    // Writes a profile into the game. What goes wrong is shown. True when nothing did.
    bool Transfer(const Profile& profile, const TransferNote& note);
    // The same for a part of the game's state, with the files of one game folder.
    bool PutIntoGame(const GameState& part, const std::string& gameFolder, const TransferNote& note);

    // The same, and starts the game. True when it has been started. It returns at once; the run box goes, without a
    // time limit, when the game's window has been there for one second or the player closes it. A launch that is under
    // way is given up for the new one.
    bool TransferAndLaunch(const Profile& profile, const TransferNote& note);

    // Waits until the run box goes, or would go if it were shown.
    void WaitForGame();

    // For the end of the program.
    void CloseRunBox() { runBox_.Unload(); }

    bool GameIsRunning() const { return game_.IsRunning(); }

    // The last transfer could be kept.
    bool KeptLast() const { return keptLast_; }

    // A wave message of the last profile that went into the game, for as long as the player has not accepted it.
    const std::optional<OddWave>& OddWaveMessage() const { return oddWave_; }
    void AcceptOddWave() { oddWave_.reset(); }

    std::function<void()> onChange;  // the game has been started or has ended, or its settings have been changed

private:
    bool Write(const Profile& profile, const TransferNote& note);
    bool ShowResult(const TransferResult& result);
    bool LaunchGame(const Profile& profile);

    const Program& program_;
    bool keptLast_ = true;
    std::optional<OddWave> oddWave_;
    GameRun game_;
    frmRunBox runBox_;
};

}  // namespace quirn
