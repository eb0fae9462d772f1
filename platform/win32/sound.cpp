#include "platform/sound.h"

#include <windows.h>

#include <mmsystem.h>  // needs windows.h first

namespace quirn {

void PlaySoundFile(const std::string& path) {
    PlaySoundA(path.c_str(), nullptr, SND_FILENAME | SND_NOWAIT | SND_APPLICATION | SND_NODEFAULT | SND_ASYNC);
}

}  // namespace quirn
