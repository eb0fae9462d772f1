#pragma once

#include <functional>

#include "mainwin/frmcompare.h"
#include "mainwin/launcher.h"
#include "mainwin/profilesview.h"
#include "mainwin/program.h"

namespace quirn {

// The command "Compare With Game": the profile in the window, the game, and the saved file, and rows of the first two
// copied either way.
class GameComparison {
public:
    // view outlives it. onChange: the profile has taken something from the game.
    GameComparison(Form& mainWindow, Program& program, Launcher& launcher, const ProfilesView& view,
                   std::function<void()> onChange);

    void Open();
    void OpenWithChanges();  // what the game has changed since the last transfer is ticked
    void Close() { window_.Unload(); }
    void ShowWhatCanBeDone() { window_.ShowWhatCanBeDone(); }

private:
    CompareSides ReadSides() const;
    void TakeIntoProfile(const CompareRows& rows, const CompareSides& sides);
    void WriteIntoGame(const CompareRows& rows, const CompareSides& sides);
    GameState ChangesIn(const CompareRows& rows) const;

    Form& mainWindow_;
    Program& program_;
    Launcher& launcher_;
    const ProfilesView& view_;
    std::function<void()> onChange_;
    frmCompare window_;
};

}  // namespace quirn
