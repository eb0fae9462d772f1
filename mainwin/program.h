#pragma once

#include <array>
#include <string>

#include "profile/documentnames.h"
#include "profile/profile.h"

namespace quirn {

// One of the five favourites on the tray menu. A name that begins with "<" marks an empty slot.
struct Favourite {
    std::string name;
    std::string path;  // of its QRN file

    bool IsEmpty() const { return name.starts_with('<'); }
};

// "<click to add Favourite 1>" .. 5: the name of an empty slot; slot counts from 0.
inline std::string EmptyFavouriteName(size_t slot) {
    return "<click to add Favourite " + std::to_string(slot + 1) + ">";
}

// All state of the running program, made in the entry routine and passed by reference.
struct Program {
    Profile profile;
    std::string gameFolder;  // of subspace.exe, or kNotSet
    std::string qrnFolder;   // where profiles are looked for
    std::string helpFile;
    std::string dataFolder;                      // for what the program keeps of its own; empty: it keeps nothing
    bool quiet = false;                          // start hidden in the tray
    std::string CurrentFile = kCurrentSettings;  // of the profile: a full path, or a name in "<>" when it has no file
    bool dirty = false;                          // the profile has changes that no QRN file holds
    bool keptLastVersion = true;                 // there is a way back to what the last save replaced
    RecentFiles recentFiles;                     // the most recent first; an empty text is an unused slot
    std::array<Favourite, 5> favourites;
};

}  // namespace quirn
