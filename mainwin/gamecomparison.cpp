#include "mainwin/gamecomparison.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "game/comparerows.h"
#include "game/playerfiles.h"
#include "mainwin/windowsides.h"
#include "platform/dialogs.h"

namespace quirn {

namespace {

enum Side { kProfile, kGame, kSavedFile };

// Those in which the game and the profile are not the same: there is nothing to copy in the others.
CompareRows Differing(const CompareRows& rows) {
    CompareRows differing;
    std::copy_if(rows.begin(), rows.end(), std::back_inserter(differing),
                 [](const CompareRow& row) { return row.differs[kGame]; });
    return differing;
}

}  // namespace

GameComparison::GameComparison(Form& mainWindow, Program& program, Launcher& launcher, const ProfilesView& view,
                               std::function<void()> onChange)
    : mainWindow_(mainWindow),
      program_(program),
      launcher_(launcher),
      view_(view),
      onChange_(std::move(onChange)),
      window_({"Profile", "Game now", "Saved file"}, [this] { return ReadSides(); },
              // While a dialog waits before the main window, what it is about must not change.
              {{"Take Into &Profile", [this](auto& rows, auto& sides) { TakeIntoProfile(rows, sides); },
                [this] { return !mainWindow_.IsBlocked(); }},
               {"Write Into &Game", [this](auto& rows, auto& sides) { WriteIntoGame(rows, sides); },
                [this] { return !mainWindow_.IsBlocked() && !launcher_.GameIsRunning(); }}}) {}

void GameComparison::Open() {
    window_.Open(mainWindow_, [](const CompareRow&) { return false; });
}

// A change that the profile has already is no longer one.
void GameComparison::OpenWithChanges() {
    const TransferLog log(program_.dataFolder);
    const GameState changes = FindGameChanges(log, program_.gameFolder).now;
    if (changes.IsEmpty()) return;
    window_.Open(mainWindow_,
                 [&](const CompareRow& row) { return row.differs[kGame] && !PartOf(changes, {row}).IsEmpty(); });
    ShowError(AcceptGameChanges(log, Without(changes, PartOf(changes, Differing(window_.Rows())))));
    onChange_();
}

CompareSides GameComparison::ReadSides() const {
    return {WindowSide(program_, view_), GameSide(program_.gameFolder), FileSide(program_.CurrentFile)};
}

// The part of what the game has changed that a profile has with these rows. Of the ignore list either all or nothing:
// names that were not taken are still to be told of.
GameState GameComparison::ChangesIn(const CompareRows& rows) const {
    GameState part = PartOf(FindGameChanges(TransferLog(program_.dataFolder), program_.gameFolder).now, rows);
    if (!window_.HoldsAllNames(rows, kGame)) part.files.erase(kIgnoreFile);
    return part;
}

void GameComparison::TakeIntoProfile(const CompareRows& rows, const CompareSides& sides) {
    const CompareRows differing = Differing(rows);
    if (differing.empty()) return;
    TakeIntoWindow(differing, sides[kGame].profile, program_, view_);
    ShowError(AcceptGameChanges(TransferLog(program_.dataFolder), ChangesIn(differing)));
    onChange_();
}

void GameComparison::WriteIntoGame(const CompareRows& rows, const CompareSides& sides) {
    const Result<GameSettings> settings = ReadGameSettings();
    if (settings.Failed()) {
        ShowError(settings.Error());
        return;
    }
    const RowsPlan plan = PlanRows(Differing(rows), settings.Value(), sides[kProfile].profile, program_.gameFolder);
    ShowErrors(plan.errors);
    if (plan.state.IsEmpty()) return;
    if (launcher_.PutIntoGame(plan.state, program_.gameFolder, {program_.CurrentFile, TransferWay::Compare}) &&
        plan.errors.empty())
        view_.SetStatus("Settings have been written into the game");
}

}  // namespace quirn
