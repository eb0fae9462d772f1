#pragma once

#include <functional>
#include <string>

#include "profile/versions.h"

namespace quirn {

// What the commands of the Profiles menu need of the main window.
struct ProfilesView {
    std::function<void()> CollectProfile;  // controls to profile
    std::function<void()> ShowProfile;     // profile to controls
    std::function<void(const std::string&)> SetStatus;
    std::function<bool(const std::string& path, const ProfileVersion&)> PutBackVersion;
    std::function<void(const std::string& path)> Open;  // as File, Open does
    std::function<void(const std::string& path)> Play;  // as the tray does
    std::function<void()> RefreshMenus;                 // with recent files and favourites
    std::function<void(bool some)> ShowKeepRow;         // the tray menu's row for the game's changes
};

}  // namespace quirn
