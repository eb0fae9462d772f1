#include "platform/sound.h"

#include <windows.h>

#include <mmsystem.h>  // needs windows.h first

#include <array>
#include <string>

namespace quirn {

namespace {

// Loaded at the first sound, and by its full path: the library is none of those that Windows always takes from its own
// folder, and a file of its name beside the program must not come first.
decltype(&PlaySoundA) Player() {
    std::array<char, MAX_PATH + 1> folder{};
    GetSystemDirectoryA(folder.data(), MAX_PATH);
    const HMODULE library = LoadLibraryA((std::string(folder.data()) + "\\winmm.dll").c_str());
    if (library == nullptr) return nullptr;
    return reinterpret_cast<decltype(&PlaySoundA)>(reinterpret_cast<void*>(GetProcAddress(library, "PlaySoundA")));
}

}  // namespace

void PlaySoundFile(const std::string& path) {
    static const auto play = Player();
    if (play == nullptr) return;
    play(path.c_str(), nullptr, SND_FILENAME | SND_NOWAIT | SND_APPLICATION | SND_NODEFAULT | SND_ASYNC);
}

}  // namespace quirn
