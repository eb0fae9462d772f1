#include "platform/sound.h"

#include "platform/headless/headless.h"

namespace quirn {

void PlaySoundFile(const std::string& path) {
    headless::TheWorld().playedSounds.push_back(path);
}

}  // namespace quirn
