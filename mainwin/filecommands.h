#pragma once

#include <functional>
#include <string>

#include "mainwin/program.h"
#include "platform/menu.h"
#include "profile/versions.h"

namespace quirn {

// What the commands of the File menu need of the main window.
struct FileCommandsView {
    std::function<void()> ShowProfile;     // profile to controls
    std::function<void()> CollectProfile;  // controls to profile
    std::function<void()> ShowMacros;      // the sixteen macros only
    std::function<void()> CollectMacros;
    std::function<void()> ShowMacroPage;  // brings the page "Macros Shift" to the front
    std::function<void(const std::string&)> SetTitle;
    std::function<void(const std::string&)> SetStatus;
    std::function<void()> RefreshRecentMenu;
};

// The commands of the File menu on the profile as a document. All of them leave everything as it was when the player
// cancels their dialog.
class FileCommands {
public:
    FileCommands(Program& program, std::string baseTitle, FileCommandsView view);

    // "Save changes to ...?" True: go on (saved, or the player does not want to); false: stop.
    bool AskSaveChanges();
    // The same for a player who goes on with edits in the window: those that are not saved stay marked.
    bool AskToSave();

    void mnuFile_New_Click();
    void mnuFile_Open_Click();
    void OpenDropped(const std::string& path);  // as Open, but current is only a file that loaded
    void mnuFile_Save_Click();
    bool mnuFile_SaveAs_Click();  // true when a file has been chosen and saved
    void mnuFileMRU_Click(size_t index);
    void mnuFile_Import_Click();

    // Makes a file what an earlier version of it was, after a question, and opens it when it is the current one. What
    // it holds now becomes a version. True when it has been done. path is a text of its own: the current file may
    // change meanwhile.
    bool PutBackVersion(const std::string& path, const ProfileVersion& version);

private:
    bool Save(const std::string& path);
    bool MayDiscard() { return !program_.dirty || AskSaveChanges(); }
    bool OpenProfile(const std::string& path);
    bool OpenAsCurrent(const std::string& path);
    bool ReplaceByVersion(const std::string& path, const ProfileVersion& version, const std::string& bytes);  // asks
    void AddToRecentFiles(const std::string& path);
    void ShowTitle(const std::string& file);

    Program& program_;
    std::string baseTitle_;
    FileCommandsView view_;
};

// The File menu without recent files, as it starts.
void HideRecentMenu(Menu& menu);

// Shows the recent files in it. An item that once was visible stays so.
void RefreshRecentMenu(Menu& menu, const RecentFiles& files);

}  // namespace quirn
