#pragma once

#include <array>
#include <string>

// How profiles are named as documents, and the list of the files used last.
namespace quirn {

// Names of profiles that have no file yet. Any name that begins with "<" counts as such.
inline constexpr char kUntitled[] = "<untitled.qrn>";
inline constexpr char kCurrentSettings[] = "<current SS settings>";  // read from the game

inline bool IsUntitled(const std::string& file) {
    return file.starts_with('<');
}

// Whether two paths name one file. A name in "<>" is no file.
bool IsSameFile(const std::string& a, const std::string& b);

// The main window's title: base title, " - ", and the file without its folder.
std::string DocumentTitle(const std::string& baseTitle, const std::string& file);

// The name that Save As offers.
std::string SaveAsName(const std::string& file);

using RecentFiles = std::array<std::string, 5>;

// Puts a path at the top of the list, in this spelling; an entry that equals it in any case moves up, else the oldest
// drops out.
void AddRecentFile(RecentFiles& files, std::string path);

// The menu caption of an entry, index from 0: "&1 C:\profiles\ace.qrn".
std::string RecentFileCaption(size_t index, const std::string& path);

}  // namespace quirn
