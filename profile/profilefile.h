#pragma once

#include <string>

#include "platform/error.h"
#include "profile/profile.h"

// QRN files: a profile as an INI file with the sections QUIRN (version and time of saving), Dialog, Messages, Options,
// Advanced, IgnoreList and HiddenOptions. Keys are the catalogue's names, values the profile's texts.
namespace quirn {

enum class LoadResult {
    Loaded,
    LoadedFromEarlierVersion,
    NotFound,  // this and the next leave the profile as it was
    NotValid,  // no QRN file: without a section Dialog
};

// Reads a file into the profile, silently. Missing keys get their defaults.
LoadResult LoadProfile(Profile& profile, const std::string& fileName);

// Writes the profile over the file (other keys in it survive) and, beside the game, the macro file
// "<game folder>\<base name>.ssm". The file is put in place in one step when all of it is safely on the disk; on
// failure the old one is whole. Only when the macro file fails is the part before it put in place, without
// HiddenOptions, and the error returned.
Failure SaveProfile(const Profile& profile, const std::string& gameFolder, const std::string& fileName);

// Writes a profile that is for somebody else: nothing of an older file of this name stays in it, and there is no macro
// file. On failure the old file is whole.
Failure SaveProfileCopy(const Profile& profile, const std::string& fileName);

}  // namespace quirn
