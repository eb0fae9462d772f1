#pragma once

#include "profile/profile.h"

// A profile that is passed on.
namespace quirn {

// What a copy for a friend lacks. The password never goes along.
struct LeftOut {
    bool proxy = true;
    bool ignoreList = true;
    bool waves = true;
    bool pilotName = false;
    bool macros = false;
};

// Texts that are left out are empty, wave messages are not set.
Profile CopyForFriend(Profile profile, const LeftOut& leftOut);

}  // namespace quirn
