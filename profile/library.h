#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "profile/profile.h"

// What a list of all profiles shows of each, read without loading it.
namespace quirn {

struct LibraryEntry {
    std::string path;
    std::string name;    // without ".qrn"; a file with another ending or none keeps it
    std::string folder;  // empty for one in the folder of profiles
    std::string pilot, zone, ship;
    uint64_t changed = 0;  // as FolderEntry has it
    bool isThere = true;
};

// Finds the profiles in a folder, and others by their paths, a few at a time.
class LibraryReader {
public:
    LibraryReader() = default;
    // others: paths that may lie anywhere and need not be there. Those in the folder are not listed twice.
    LibraryReader(const std::string& folder, const std::vector<std::string>& others);

    bool FolderIsRead() const { return folderIsRead_; }  // false: it is not there, or does not open
    bool IsDone() const { return next_ == files_.size(); }
    // Looks at the next file; nothing when it is no profile.
    std::optional<LibraryEntry> Next();

private:
    struct File {
        std::string path;
        uint64_t size, changed;
        bool isOther;
    };

    std::vector<File> files_;
    size_t next_ = 0;
    bool folderIsRead_ = false;
};

}  // namespace quirn
