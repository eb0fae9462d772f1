#pragma once

#include <functional>
#include <string>

#include "logedit/filterrow.h"
#include "logedit/logfollower.h"
#include "logedit/viewcommands.h"
#include "platform/timer.h"

namespace quirn {

// Reads the log that is shown again, once or as it grows. Types, excluded players, text, selected lines and the place
// of the list stay what they are, and deleted lines deleted unless the files hold something else than before.
class FollowCommands {
public:
    // All outlive it.
    FollowCommands(Form& form, LogEdit& edit, VirtualList& list, PlayerPanel& players, ViewCommands& commands,
                   FilterRow& row);

    std::function<void(bool follows)> onFollow;  // it has begun or stopped

    const LogPaths& Paths() const { return paths_; }
    bool HasFile() const { return !paths_.empty(); }

    void Opened(const LogPaths& paths);  // another log, which nobody follows yet; without paths: none
    void Reload();
    void Follow();  // or stops it
    void GoToEnd();

private:
    bool Read(bool follow);
    void Stop(const std::string& words, const std::string& why = {});
    void Look();
    void End(const std::string& words, const std::string& why = {});
    void ShowReadAgain();
    void ShowNew(size_t lines, size_t players);
    void ShowNews();
    void ShowHeld();

    Form& form_;
    LogEdit& edit_;
    VirtualList& list_;
    PlayerPanel& players_;
    ViewCommands& commands_;
    FilterRow& row_;
    LogPaths paths_;
    LogFollower follower_;
    size_t unseen_ = 0;  // new lines since the end was in sight
    Timer timer_;
};

}  // namespace quirn
