#pragma once

#include <string>

#include "mainwin/program.h"
#include "platform/form.h"

namespace quirn {

inline constexpr char kCopySaved[] = "A copy without the password has been saved";

// Asks what to leave out of a profile and where to save the copy, and saves it. The copy does not become the open
// profile, and neither that nor the file that it is made from is written over. True when there is a copy.
bool SaveCopyForFriend(Form& owner, Program& program, const Profile& profile, const std::string& file);

}  // namespace quirn
