#pragma once

#include <functional>
#include <string>

#include "game/gamestate.h"
#include "mainwin/filecomparison.h"
#include "mainwin/frmlibrary.h"
#include "mainwin/profilesview.h"
#include "mainwin/program.h"

namespace quirn {

// What the library needs of the main window's other commands.
struct LibraryView {
    std::function<void(const std::string& path)> Open;
    std::function<void(const std::string& path)> Play;
    std::function<void(const std::string& path)> ShowVersions;
    std::function<void()> RefreshMenus;  // with recent files and favourites
};

// The command "Profile Library", and what its window does with a profile.
class ProfileLibrary {
public:
    // profilesView outlives it.
    ProfileLibrary(Form& mainWindow, Program& program, const ProfilesView& profilesView, LibraryView view);

    void Open();
    void Close();
    void ShowWhatCanBeDone();
    void Refresh() { window_.Refresh(); }

private:
    LibraryDeeds Deeds();
    LibraryReader Read();
    int FavouriteNumber(const std::string& path) const;
    bool IsInGame(const LibraryEntry& entry) const;
    void Rename(const std::string& path);
    void SaveCopy(const std::string& path);
    void Delete(const std::string& path);
    void MakeLink(const std::string& path);
    void MakeFavourite(const std::string& path, size_t slot);
    void FollowRename(const std::string& path, const std::string& newPath);

    Form& mainWindow_;
    Program& program_;
    const ProfilesView& profilesView_;
    LibraryView view_;
    GameSettings game_;  // when the profiles were last read
    frmLibrary window_;
    FileComparison comparison_;
};

}  // namespace quirn
