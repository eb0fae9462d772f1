#include "profile/friendcopy.h"

namespace quirn {

Profile CopyForFriend(Profile profile, const LeftOut& leftOut) {
    profile.Dialog.Value(kPlayerPassword).clear();
    if (leftOut.proxy) profile.Dialog.Value(kProxyIP).clear();
    if (leftOut.ignoreList) profile.IgnoreList.clear();
    if (leftOut.waves) profile.WaveFiles.fill(kNotSet);
    if (leftOut.pilotName) profile.Dialog.Value(kPlayerName).clear();
    if (leftOut.macros)
        for (int macro = 1; macro <= kMacroCount; ++macro) profile.Messages.Value(macro).clear();
    return profile;
}

}  // namespace quirn
