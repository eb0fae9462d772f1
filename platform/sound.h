#pragma once

#include <string>

namespace quirn {

// Plays a sound file in the background and returns at once. Silent when the file is missing, is no sound, or the sound
// device is busy.
void PlaySoundFile(const std::string& path);

}  // namespace quirn
