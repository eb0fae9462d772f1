#include "tests/testing/user.h"

#include <shellapi.h>

#include <cstring>

// Acting on windows.
namespace user {

namespace {

// press WINDOW NAME: the button with that caption (access key marks left out) or that id.
std::string Press(const Words& words) {
    for (HWND child : Children(Window(words))) {
        std::string caption = TextOf(child);
        std::erase(caption, '&');
        if (ClassOf(child) == "Button" &&
            (caption == Word(words, 2) || std::to_string(GetDlgCtrlID(child)) == Word(words, 2))) {
            PostMessageA(child, BM_CLICK, 0, 0);
            return Done();
        }
    }
    return Error("no such button");
}

std::string Post(const Words& words) {
    const BOOL posted = PostMessageA(Window(words), static_cast<UINT>(Number(words, 2)),
                                     static_cast<WPARAM>(Number(words, 3)), static_cast<LPARAM>(Number(words, 4)));
    return posted ? Done() : Error("not posted");
}

std::string Send(const Words& words) {
    DWORD_PTR result = 0;
    if (!SendMessageTimeoutA(Window(words), static_cast<UINT>(Number(words, 2)), static_cast<WPARAM>(Number(words, 3)),
                             static_cast<LPARAM>(Number(words, 4)), SMTO_ABORTIFHUNG, 5000, &result))
        return Error("no answer");
    return Done(Member("result", static_cast<long long>(result)));
}

// drop WINDOW FILE...: what the shell sends when files are dropped on the window. The list of files must lie in the
// memory of the window's process.
std::string Drop(const Words& words) {
    struct Header {  // of such a list: where the names begin, the point, and two flags
        DWORD names;
        POINT at;
        BOOL outside, wide;
    };
    const HANDLE process = OpenProcess(PROCESS_ALL_ACCESS, FALSE, ProcessOf(Window(words)));
    std::string names;
    for (size_t i = 2; i < words.size(); ++i) names += words[i] + '\0';
    names += '\0';
    const Header header{sizeof(Header), {}, FALSE, FALSE};
    void* list =
        VirtualAllocEx(process, nullptr, sizeof header + names.size(), MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE);
    const bool written =
        list && WriteProcessMemory(process, list, &header, sizeof header, nullptr) &&
        WriteProcessMemory(process, static_cast<char*>(list) + sizeof header, names.data(), names.size(), nullptr);
    CloseHandle(process);
    if (!written) return Error("could not write there");
    PostMessageA(Window(words), WM_DROPFILES, reinterpret_cast<WPARAM>(list), 0);
    return Done();
}

// place WINDOW LEFT TOP [WIDTH HEIGHT]: moves it to a point of the screen and gives it that size.
std::string Place(const Words& words) {
    SetWindowPos(Window(words), nullptr, static_cast<int>(Number(words, 2)), static_cast<int>(Number(words, 3)),
                 static_cast<int>(Number(words, 4)), static_cast<int>(Number(words, 5)),
                 static_cast<UINT>(Word(words, 4).empty() ? SWP_NOSIZE : 0) | SWP_NOZORDER | SWP_NOACTIVATE);
    return Done();
}

// clipboard TEXT: its text before, and puts that one there.
std::string Clipboard(const Words& words) {
    if (!OpenClipboard(nullptr)) return Error("another program has it");
    const auto held = static_cast<HGLOBAL>(GetClipboardData(CF_TEXT));
    const char* text = held ? static_cast<const char*>(GlobalLock(held)) : nullptr;
    const std::string before = text ? text : "";
    if (text) GlobalUnlock(held);
    const std::string after = Word(words, 1);
    EmptyClipboard();
    if (const HGLOBAL copy = GlobalAlloc(GMEM_MOVEABLE, after.size() + 1)) {
        std::memcpy(GlobalLock(copy), after.c_str(), after.size() + 1);
        GlobalUnlock(copy);
        SetClipboardData(CF_TEXT, copy);
    }
    CloseClipboard();
    return Done(Member("text", Quoted(before)));
}

std::string Minimise(const Words& words) {
    ShowWindowAsync(Window(words), SW_MINIMIZE);
    return Done();
}

// take-icon WINDOW NUMBER: the window's icon leaves the tray, as when the shell ends.
std::string TakeIcon(const Words& words) {
    NOTIFYICONDATAA record{};
    record.cbSize = NOTIFYICONDATAA_V1_SIZE;
    record.hWnd = Window(words);
    record.uID = static_cast<UINT>(Number(words, 2));
    return Shell_NotifyIconA(NIM_DELETE, &record) ? Done() : Error("no such icon");
}

// tell-all NAME: a message that is registered under a name goes to every window.
std::string TellAll(const Words& words) {
    PostMessageA(HWND_BROADCAST, RegisterWindowMessageA(Word(words, 1).c_str()), 0, 0);
    return Done();
}

}  // namespace

Commands ActingCommands() {
    return {
        {"press", Press},          // WINDOW BUTTON
        {"post", Post},            // WINDOW MESSAGE WPARAM LPARAM
        {"send", Send},            // the same, waiting for the result
        {"minimise", Minimise},    // WINDOW
        {"drop", Drop},            // WINDOW FILE...
        {"place", Place},          // WINDOW LEFT TOP [WIDTH HEIGHT]
        {"clipboard", Clipboard},  // TEXT
        {"take-icon", TakeIcon},   // WINDOW NUMBER
        {"tell-all", TellAll},     // NAME
    };
}

}  // namespace user
