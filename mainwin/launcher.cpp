#include "mainwin/launcher.h"

#include "mainwin/transferwords.h"
#include "platform/dialogs.h"

namespace quirn {

namespace {

constexpr int kGraceTime = 1000;  // milliseconds that the run box stays when the game's window is there

}  // namespace

Launcher::Launcher(const Program& program) : program_(program) {
    game_.onState = [this](GameRun::State state) {
        if (state == GameRun::State::Running) runBox_.CloseAfter(kGraceTime);
        // Not before: the player waits for the game.
        if (state != GameRun::State::Starting) TransferLog(program_.dataFolder).Sweep();
        CallHandler(onChange);
    };
}

bool Launcher::Transfer(const Profile& profile, const TransferNote& note) {
    const bool wentWell = Write(profile, note);
    TransferLog(program_.dataFolder).Sweep();
    return wentWell;
}

bool Launcher::Write(const Profile& profile, const TransferNote& note) {
    const TransferResult result = TransferToGame(profile, program_.gameFolder, TransferLog(program_.dataFolder), note);
    oddWave_ = FindOddWave(profile, program_.gameFolder);
    return ShowResult(result);
}

bool Launcher::PutIntoGame(const GameState& part, const std::string& gameFolder, const TransferNote& note) {
    oddWave_.reset();
    return ShowResult(quirn::PutIntoGame(part, gameFolder, TransferLog(program_.dataFolder), note));
}

bool Launcher::ShowResult(const TransferResult& result) {
    keptLast_ = result.kept;
    if (!result.WentWell()) ShowMessage(TroublesInWords(result), kPlain, "Error");
    CallHandler(onChange);
    return result.WentWell();
}

bool Launcher::TransferAndLaunch(const Profile& profile, const TransferNote& note) {
    runBox_.Unload();
    Write(profile, note);
    if (LaunchGame(profile)) return true;
    TransferLog(program_.dataFolder).Sweep();
    return false;
}

bool Launcher::LaunchGame(const Profile& profile) {
    if (program_.gameFolder == kNotSet) {
        ShowMessage("You must set the location of the SUBSPACE.EXE file in the Options.", kExclamation);
        return false;
    }
    runBox_.Begin();
    // With SkipSplash the game opens at once and the box would only be in its way.
    if (profile.Advanced.Value(kSkipSplash) == "0") {
        runBox_.Show();
        runBox_.Repaint();
    }
    if (game_.Start(program_.gameFolder)) return true;
    ShowMessage("ERROR - Could not start Subspace, but Macros were transfered.", kCritical);
    runBox_.Unload();
    return false;
}

void Launcher::WaitForGame() {
    while (!runBox_.RunDone()) WaitForEvents(kGraceTime);  // each timer of the two ends a wait
}

}  // namespace quirn
