#include <windows.h>

#include "platform/form.h"
#include "startup/main.h"

namespace {

// From here on a library that is asked for without its folder comes from the system's alone: the program may lie in a
// folder of downloads, with anything beside it. Those that are loaded before this are ones that Windows never takes
// from elsewhere. Windows 7 has the function only with an update; without it, at least the current folder is left out.
void LoadFromSystemFolderOnly() {
    const auto set = reinterpret_cast<BOOL(WINAPI*)(DWORD)>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleA("kernel32.dll"), "SetDefaultDllDirectories")));
    if (set == nullptr || !set(LOAD_LIBRARY_SEARCH_SYSTEM32)) SetDllDirectoryA("");
}

}  // namespace

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
    LoadFromSystemFolderOnly();
    quirn::CallHandler(quirn::Main);
    return 0;
}
