#include "mainwin/launcher.h"

#include "game/transfer.h"
#include "platform/dialogs.h"

namespace quirn {

namespace {

constexpr int kGraceTime = 1000;  // milliseconds that the run box stays when the game's window is there

}  // namespace

Launcher::Launcher() {
    game_.onState = [this](GameRun::State state) {
        if (state == GameRun::State::Running) runBox_.CloseAfter(kGraceTime);
    };
}

bool Launcher::TransferAndLaunch(const Profile& profile, const std::string& gameFolder) {
    runBox_.Unload();
    ShowErrors(TransferToGame(profile, gameFolder).errors);
    return LaunchGame(profile, gameFolder);
}

bool Launcher::LaunchGame(const Profile& profile, const std::string& gameFolder) {
    if (gameFolder == kNotSet) {
        ShowMessage("You must set the location of the SUBSPACE.EXE file in the Options.", kExclamation);
        return false;
    }
    runBox_.Begin();
    // With SkipSplash the game opens at once and the box would only be in its way.
    if (profile.Advanced.Value(kSkipSplash) == "0") {
        runBox_.Show();
        runBox_.Repaint();
    }
    if (game_.Start(gameFolder)) return true;
    ShowMessage("ERROR - Could not start Subspace, but Macros were transfered.", kCritical);
    runBox_.Unload();
    return false;
}

void Launcher::WaitForGame() {
    while (!runBox_.RunDone()) WaitForEvents(kGraceTime);  // each timer of the two ends a wait
}

}  // namespace quirn
