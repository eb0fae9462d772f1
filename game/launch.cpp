#include "game/launch.h"

#include "game/frmrunbox.h"
#include "platform/dialogs.h"
#include "platform/process.h"

namespace quirn {

namespace {

constexpr char kGameWindowClass[] = "SubSpaceClass";
constexpr int kGraceTime = 1000;  // milliseconds that the run box stays when the game's window is there
constexpr int kSearchPause = 50;  // milliseconds between two looks for the game's window

}  // namespace

LaunchResult LaunchGame(const Program& program, const Profile& profile, LaunchMode mode, Form* mainWindow) {
    if (program.gameFolder == kNotSet) {
        ShowMessage("You must set the location of the SUBSPACE.EXE file in the Options.", kExclamation);
        return LaunchResult::Refused;
    }

    frmRunBox runBox;
    // With SkipSplash the game opens at once and the box would only be in its way.
    if (profile.Advanced.Value(kSkipSplash) == "0") {
        runBox.Show();
        runBox.Repaint();
    }

    // A trailing backslash of the folder is doubled here; Windows does not mind.
    if (!StartProgram(program.gameFolder + "\\subspace.exe", program.gameFolder)) {
        ShowMessage("ERROR - Could not start Subspace, but Macros were transfered.", kCritical);
        runBox.Unload();
        return LaunchResult::Failed;
    }
    if (mainWindow != nullptr) {
        if (mode == LaunchMode::CommandLine) mainWindow->Unload();
        else mainWindow->Hide();
    }

    // No time-out, by design: a slow machine may take minutes to show the game.
    const auto waiting = [&] {
        const bool leaving = program.ending && mode == LaunchMode::Interactive;
        return !runBox.RunDone() && !leaving;
    };
    DoEvents();
    while (waiting() && !WindowOfClassExists(kGameWindowClass)) WaitForEvents(kSearchPause);
    if (waiting()) runBox.CloseAfter(kGraceTime);
    while (waiting()) WaitForEvents(kGraceTime);
    runBox.Unload();
    return LaunchResult::Done;
}

}  // namespace quirn
