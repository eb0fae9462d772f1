#pragma once

#include <string>

#include "mainwin/filecomparison.h"
#include "mainwin/gamecomparison.h"
#include "mainwin/launcher.h"
#include "mainwin/noticebar.h"
#include "mainwin/profilelibrary.h"
#include "mainwin/profilesview.h"
#include "mainwin/program.h"
#include "mainwin/transfercomparison.h"
#include "platform/form.h"

namespace quirn {

// The commands of the Profiles menu, by which a player goes back, and the notices beside the Run button.
class ProfilesCommands {
public:
    ProfilesCommands(Form& mainWindow, Program& program, Launcher& launcher, NoticeBar& notices, ProfilesView view);

    void mnuProfiles_Library_Click() { library_.Open(); }
    void mnuProfiles_Compare_Click() { comparison_.Open(); }
    void mnuProfiles_Transfer_Click();
    void mnuProfiles_Undo_Click();
    void mnuProfiles_History_Click();
    void mnuProfiles_Versions_Click() { ShowVersions(std::string(program_.CurrentFile)); }
    void mnuProfiles_Copy_Click();

    bool HasGameFolder() const;
    bool HasTransfer() const;
    bool HasVersions() const;  // of the file that Save writes

    void FollowNotice(Notice::Action action);
    void CloseWindows();  // those that stay open beside the main one

    // Looks what there is to tell, soon: when nothing else is under way.
    void LookSoon();
    void Look();

private:
    void PutBack(const TransferLog& log, const TransferEntry& entry, const GameState& state, TransferWay way);
    void ShowVersions(const std::string& path);
    void PutBackWhole(const TransferLog& log, const TransferEntry& entry);
    bool MayWriteNow() const;
    NoticeFacts Facts() const;

    Form& mainWindow_;
    Program& program_;
    Launcher& launcher_;
    NoticeBar& notices_;
    ProfilesView view_;
    GameComparison comparison_;
    TransferComparison transferComparison_;
    std::string versionsOf_;  // whose versions were shown last
    FileComparison versionComparison_;
    ProfileLibrary library_;
    std::string firstGameFolder_;  // which the profile in the window was read from
    Timer lookTimer_;
};

}  // namespace quirn
