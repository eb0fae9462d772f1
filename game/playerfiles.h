#pragma once

#include <string>

#include "platform/error.h"
#include "profile/profile.h"

// What the game keeps per player in its own folder: "ignore.txt", the players whose chat is hidden, one name per line,
// and "record0.wav" and "record1.wav", the sounds behind F11 and F12.
namespace quirn {

// The ignore list without its blank entries. To a file that could not be read before, only names are added. Failure:
// the folder is missing, the file is read-only or held.
Failure WriteIgnoreFile(const Profile& profile, const std::string& gameFolder);

// Replaces the ignore list by the lines of the file, trimmed, without its "#" comments; empty lines are kept as empty
// entries. A missing file gives an empty list and is no failure.
Failure ReadIgnoreFile(Profile& profile, const std::string& gameFolder);

// Both files of each kind, from the game or to it. Without a configured game folder nothing is written, silently: the
// launch that follows says what to do. Every failure is shown as a run-time error and the other steps still done.
void ReadPlayerFiles(Profile& profile, const std::string& gameFolder);
void WritePlayerFiles(const Profile& profile, const std::string& gameFolder);

}  // namespace quirn
