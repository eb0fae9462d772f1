#include "game/gamerun.h"

#include "game/findgame.h"

namespace quirn {

namespace {

constexpr char kGameWindowClass[] = "SubSpaceClass";
constexpr int kSearchPause = 50;   // milliseconds between two looks for the game's first window
constexpr int kWatchPause = 1000;  // and between two looks afterwards

}  // namespace

GameRun::GameRun() {
    timer_.onTimer = [this] { Look(); };
}

bool GameRun::Start(const std::string& gameFolder) {
    // A trailing backslash of the folder is doubled here; Windows does not mind.
    if (!process_.Start(gameFolder + "\\" + kGameProgram, gameFolder)) return false;
    Become(State::Starting);
    timer_.SetEnabled(true);
    return true;
}

bool GameRun::IsRunning() const {
    return process_.IsRunning() || WindowOfClassExists(kGameWindowClass);
}

void GameRun::Look() {
    if (WindowOfClassExists(kGameWindowClass)) Become(State::Running);
    else if (!process_.IsRunning()) Become(State::Ended);
}

void GameRun::Become(State state) {
    if (state == state_) return;
    state_ = state;
    timer_.SetInterval(state == State::Starting ? kSearchPause : kWatchPause);
    if (onState) onState(state);
}

}  // namespace quirn
