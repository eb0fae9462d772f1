#pragma once

#include <string>
#include <vector>

#include "platform/error.h"

// Earlier versions of a QRN file, kept in the player's local data when a save replaces it: below "Versions" a folder
// for each file, by its name and a sum of its path, and in it the versions, whole files named by the local time at
// which they were replaced.
namespace quirn {

struct ProfileVersion {
    std::string file;  // where it is kept
    std::string time;  // when it was replaced, "2026-11-23 14.05.10"
};

class ProfileVersions {
public:
    static constexpr size_t kKept = 10;
    static constexpr size_t kFiles = 200;  // whose versions are kept: those that were saved last

    // dataFolder: the program's own in the player's local data; an empty one keeps nothing.
    ProfileVersions(const std::string& dataFolder, const std::string& profilePath);

    std::vector<ProfileVersion> List() const;  // the newest first

    // Before the file is replaced: keeps what it holds. The answer is the version, an empty text when there is no file.
    // Failure: it could not be kept.
    Result<std::string> KeepPresent() const;

    // After the file was replaced, or was not: forgets the version again if the file holds the same but for the time of
    // saving, and otherwise those that are more than ten.
    void Settle(const std::string& version) const;

    Failure ForgetAll() const;
    void MoveTo(const ProfileVersions& other) const;  // the file has got that name; as far as that has none yet

private:
    void SweepFiles() const;

    std::string path_;
    std::string folder_;
};

}  // namespace quirn
