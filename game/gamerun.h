#pragma once

#include <functional>
#include <string>

#include "platform/process.h"
#include "platform/timer.h"

namespace quirn {

// The game that this program has started. A timer looks what becomes of it; nothing waits.
class GameRun {
public:
    enum class State {
        None,      // nothing has been started
        Starting,  // the process is there, its window not yet: a slow machine may take minutes
        Running,   // there is a window of the game, or was and the process is there
        Ended,     // neither is there; a window that comes later makes it Running: programs hand over to others
    };

    GameRun();

    // Starts the game in its folder, in place of one that was started before. False when it cannot be started; the one
    // before is then looked after as ever.
    bool Start(const std::string& gameFolder);

    // The game that was started, or one that somebody else has started.
    bool IsRunning() const;

    // Called at each change. A window of the game that was there before makes it Running too.
    std::function<void(State)> onState;

private:
    void Look();
    void Become(State state);

    Process process_;
    Timer timer_;
    State state_ = State::None;
};

}  // namespace quirn
