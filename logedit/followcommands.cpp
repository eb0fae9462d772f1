#include "logedit/followcommands.h"

#include "platform/dialogs.h"

namespace quirn {

namespace {

constexpr int kLook = 500;  // milliseconds
constexpr char kFollowing[] = "Following";
constexpr char kHeld[] = "Waiting: the file is held";

}  // namespace

FollowCommands::FollowCommands(Form& form, LogEdit& edit, VirtualList& list, PlayerPanel& players,
                               ViewCommands& commands, FilterRow& row)
    : form_(form), edit_(edit), list_(list), players_(players), commands_(commands), row_(row) {
    timer_.SetInterval(kLook);
    timer_.onTimer = [this] {
        if (!form_.IsBlocked()) Look();
    };
}

void FollowCommands::Opened(const LogPaths& paths) {
    Stop("");
    paths_ = paths;
}

void FollowCommands::Reload() {
    if (HasFile()) Read(follower_.IsFollowing());
}

void FollowCommands::Follow() {
    if (follower_.IsFollowing()) {
        End("");
    } else if (HasFile() && Read(true)) {
        timer_.SetEnabled(true);
        onFollow(true);
    }
}

void FollowCommands::Stop(const std::string& words, const std::string& why) {
    timer_.SetEnabled(false);
    follower_.Stop();
    if (words.empty()) row_.ShowNews("");
    else row_.ShowTrouble(words, why);
    onFollow(false);
}

// The line that the game has not ended is shown, lest it be missing from what is saved.
void FollowCommands::End(const std::string& words, const std::string& why) {
    if (edit_.LogLines.get() == follower_.Log()) {
        const size_t lines = edit_.LogLines->LineCount();
        const size_t players = edit_.LogLines->Players().size();
        const LogFollower::News news = follower_.TakeHalfLine();
        if (news == LogFollower::News::Grew) ShowNew(lines, players);
        if (news == LogFollower::News::Other) ShowReadAgain();
    }
    Stop(words, why);
}

// A log that cannot be read leaves what is shown.
bool FollowCommands::Read(bool follow) {
    Result<std::shared_ptr<const ParsedLog>> log = follow ? follower_.Start(paths_, {}, {}) : ReadLog(paths_, {}, {});
    if (log.Failed()) {
        const bool held = log.Error().number == static_cast<int>(ErrorNumber::PermissionDenied);
        if (follow && held && follower_.IsFollowing()) ShowHeld();
        else if (follow) End("Not followed: no file to read", log.Error().description);
        else ShowError(log.Error());
        return false;
    }
    edit_.LogLines = log.Take();
    ShowReadAgain();
    if (follow) row_.ShowNews(kFollowing);
    return true;
}

void FollowCommands::ShowReadAgain() {
    players_.FillAgain();
    commands_.ShowReadAgain();
    unseen_ = 0;
}

void FollowCommands::Look() {
    // The editor may have been opened anew, which forgets the log.
    if (edit_.LogLines.get() != follower_.Log() && !Read(true)) return;
    const size_t lines = edit_.LogLines->LineCount();
    const size_t players = edit_.LogLines->Players().size();
    switch (follower_.Look()) {
        case LogFollower::News::None: break;
        case LogFollower::News::Held: ShowHeld(); return;
        case LogFollower::News::Grew: ShowNew(lines, players); break;
        case LogFollower::News::Other:
            if (!Read(true)) return;
            break;
        case LogFollower::News::Gone: End("Not followed: the file is gone"); break;
        case LogFollower::News::Full: Stop("Not followed: log too large"); break;
    }
    if (!follower_.IsFollowing()) return;
    if (list_.ShowsEnd()) unseen_ = 0;
    ShowNews();
}

// The list goes on with the log only while its end is in sight: who reads something else is not disturbed.
void FollowCommands::ShowNew(size_t lines, size_t players) {
    const bool goesOn = list_.ShowsEnd();
    if (edit_.LogLines->Players().size() > players) players_.AddNew(players);
    const size_t added = commands_.ShowNew(lines, players);
    if (goesOn) {
        if (edit_.view.Count() > 0) list_.SetTopIndex(edit_.view.Count() - 1);
        row_.ShowFile(commands_.FileInSight());
        return;
    }
    unseen_ += added;
    ShowNews();
}

void FollowCommands::ShowHeld() {
    row_.ShowTrouble(kHeld, "another program lets nobody read it");
}

void FollowCommands::ShowNews() {
    row_.ShowNews(unseen_ == 0 ? kFollowing : std::to_string(unseen_) + (unseen_ == 1 ? " new line" : " new lines"));
}

void FollowCommands::GoToEnd() {
    if (list_.Count() == 0) return;
    list_.SetCurrent(list_.Count() - 1);
    list_.SetTopIndex(list_.Count() - 1);
    unseen_ = 0;
    if (follower_.IsFollowing()) ShowNews();
}

}  // namespace quirn
