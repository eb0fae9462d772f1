#pragma once

#include <functional>
#include <string>

#include "mainwin/launcher.h"
#include "mainwin/noticebar.h"
#include "mainwin/program.h"
#include "platform/form.h"

namespace quirn {

// What the commands of the Profiles menu need of the main window.
struct ProfilesView {
    std::function<void()> CollectProfile;  // controls to profile
    std::function<void()> ShowProfile;     // profile to controls
    std::function<void(const std::string&)> SetStatus;
    std::function<void(bool some)> ShowKeepRow;  // the tray menu's row for the game's changes
};

// The commands of the Profiles menu, by which a player goes back, and the notices beside the Run button.
class ProfilesCommands {
public:
    ProfilesCommands(Form& mainWindow, Program& program, Launcher& launcher, NoticeBar& notices, ProfilesView view);

    void mnuProfiles_Transfer_Click();
    void mnuProfiles_Undo_Click();
    void mnuProfiles_History_Click();
    void KeepChanges();  // asks, and takes what the game has changed into the profile in the window

    bool HasGameFolder() const;
    bool HasTransfer() const;

    void FollowNotice(Notice::Action action);

    // Looks what there is to tell, soon: when nothing else is under way.
    void LookSoon();
    void Look();

private:
    bool PutBack(const GameState& state, const std::string& gameFolder, const TransferNote& note);
    void PutBackWhole(const TransferLog& log, const TransferEntry& entry);
    bool MayWriteNow() const;
    NoticeFacts Facts() const;

    Form& mainWindow_;
    Program& program_;
    Launcher& launcher_;
    NoticeBar& notices_;
    ProfilesView view_;
    std::string firstGameFolder_;  // which the profile in the window was read from
    Timer lookTimer_;
};

}  // namespace quirn
