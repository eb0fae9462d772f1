// Stands in for the game: reads the settings that the game would read, writes them to started.txt in its working
// folder and shows a window of the game's class. What a launch left behind can so be checked by another process.
#include <windows.h>

#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

namespace {

std::string DataText(DWORD type, const std::vector<BYTE>& data) {
    if (type == REG_SZ) {
        std::string text(data.begin(), data.end());
        if (!text.empty() && text.back() == '\0') text.pop_back();
        return text;
    }
    if (type == REG_DWORD && data.size() == 4) {
        return std::to_string(static_cast<long>(data[0] | data[1] << 8 | data[2] << 16) |
                              static_cast<long>(static_cast<DWORD>(data[3]) << 24));
    }
    std::string hex;
    for (const BYTE byte : data) {
        char digits[3];
        std::snprintf(digits, sizeof digits, "%02x", static_cast<unsigned>(byte));
        hex += digits;
    }
    return hex;
}

std::string GroupText(const std::string& group) {
    HKEY key = nullptr;
    if (RegOpenKeyExA(HKEY_CURRENT_USER, ("Software\\Virgin\\SubSpace\\" + group).c_str(), 0, KEY_READ, &key) != 0)
        return {};
    std::string text;
    std::vector<char> name(16384);
    std::vector<BYTE> data(1 << 20);
    for (DWORD i = 0;; ++i) {
        DWORD nameLength = static_cast<DWORD>(name.size());
        DWORD size = static_cast<DWORD>(data.size());
        DWORD type = 0;
        if (RegEnumValueA(key, i, name.data(), &nameLength, nullptr, &type, data.data(), &size) != 0) break;
        text += group + "." + std::string(name.data(), nameLength) + " (" + std::to_string(type) +
                ") = " + DataText(type, {data.begin(), data.begin() + static_cast<std::ptrdiff_t>(size)}) + "\r\n";
    }
    RegCloseKey(key);
    return text;
}

void WriteReport() {
    char folder[MAX_PATH] = {};
    GetCurrentDirectoryA(MAX_PATH, folder);
    std::string text = "Folder = " + std::string(folder) + "\r\nCommandLine = " + GetCommandLineA() +
                       "\r\nProcess = " + std::to_string(GetCurrentProcessId()) + "\r\n";
    for (const char* group : {"Dialog", "Messages", "Options", "Advanced", "HiddenOptions"}) text += GroupText(group);

    // Whoever waits for started.txt must never read half of it.
    std::FILE* file = std::fopen("started.tmp", "wb");
    if (!file) return;
    std::fwrite(text.data(), 1, text.size(), file);
    std::fclose(file);
    MoveFileExA("started.tmp", "started.txt", MOVEFILE_REPLACE_EXISTING);
}

void Store(const char* group, const char* name, DWORD type, const void* data, DWORD size) {
    HKEY key = nullptr;
    if (RegOpenKeyExA(HKEY_CURRENT_USER, (std::string("Software\\Virgin\\SubSpace\\") + group).c_str(), 0,
                      KEY_SET_VALUE, &key) != 0)
        return;
    RegSetValueExA(key, name, 0, type, static_cast<const BYTE*>(data), size);
    RegCloseKey(key);
}

// As a player changes them in the game, which writes its settings when it ends. Only beside a file changes.txt.
void ChangeSettings() {
    if (GetFileAttributesA("changes.txt") == INVALID_FILE_ATTRIBUTES) return;
    const DWORD volume = 77, ship = 5;
    const char macro[] = "Back at %coord after \"one\" lap";
    Store("Options", "MusicVolume", REG_DWORD, &volume, sizeof volume);
    Store("Dialog", "PlayerShipType", REG_DWORD, &ship, sizeof ship);
    Store("Messages", "ShiftF2", REG_SZ, macro, sizeof macro);
}

LRESULT CALLBACK WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_TIMER) DestroyWindow(window);
    if (message == WM_DESTROY) PostQuitMessage(0);
    return DefWindowProcA(window, message, wParam, lParam);
}

}  // namespace

int WINAPI WinMain(HINSTANCE instance, HINSTANCE, LPSTR, int) {
    WriteReport();
    WNDCLASSA windowClass = {};
    windowClass.lpfnWndProc = WindowProc;
    windowClass.hInstance = instance;
    windowClass.hCursor = LoadCursorA(nullptr, IDC_ARROW);
    windowClass.hbrBackground = static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH));
    windowClass.lpszClassName = "SubSpaceClass";
    RegisterClassA(&windowClass);
    const HWND window = CreateWindowA("SubSpaceClass", "Stand-in game", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 40, 560, 320,
                                      200, nullptr, nullptr, instance, nullptr);
    if (!window) return 1;
    const char* seconds = std::getenv("SUBSPACE_SECONDS");
    SetTimer(window, 1, static_cast<UINT>(seconds ? std::atoi(seconds) : 30) * 1000, nullptr);

    MSG message;
    while (GetMessageA(&message, nullptr, 0, 0) > 0) DispatchMessageA(&message);
    ChangeSettings();
    return 0;
}
