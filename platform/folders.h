#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/error.h"

// Folders and what is in them. Paths as in files.h.
namespace quirn {

struct FolderEntry {
    std::string name;
    bool isFolder;
    uint64_t size;         // bytes; 0 for a folder
    uint64_t writtenLast;  // 100 nanoseconds each, for comparing; 0 where the system does not say
};

// Everything in the folder but "." and "..", hidden files too, in no order.
Result<std::vector<FolderEntry>> ListFolder(const std::string& folder);

// One file or folder; nothing when it is not there.
std::optional<FolderEntry> FindEntry(const std::string& path);

// Makes the folder and those above it. One that is there already is no failure.
Failure MakeFolders(const std::string& folder);

// Removes an empty folder.
Failure RemoveFolder(const std::string& folder);

// The same with the files in it.
Failure RemoveFolderWithFiles(const std::string& folder);

// Gives a file or folder another name or place on the same disk. The new one must not be there yet.
Failure RenameEntry(const std::string& from, const std::string& to);

// True for a folder on a disk of this machine. No network and no empty drive is asked.
bool IsOnLocalDisk(const std::string& folder);

// True for a path that leads over the network: one of a share, or on a drive that stands for one.
bool IsOnOtherComputer(const std::string& path);

// A path in the folder that nothing has yet, for what is kept by its time. It sorts behind all others: one of the same
// second gets a number, and so does one after the clock was set back, which then has the newest one's time.
std::string NewPathByTime(const std::string& folder, const std::string& time, const std::string& ending);

// Where programs usually lie: the system's disk and its program folders, without a trailing "\".
std::vector<std::string> ProgramPlaces();

// Where programs keep what belongs to this player on this machine, without a trailing "\"; empty when the system has no
// such folder.
std::string LocalDataFolder();

}  // namespace quirn
