#include "tests/testing/user.h"

#include <commctrl.h>

#include <array>

// Looking at windows.
namespace user {

namespace {

long long Handle(HWND window) {
    return static_cast<long long>(reinterpret_cast<LONG_PTR>(window));
}

// What the system keeps as caption; asks the window's process nothing, so it works while that one is busy.
std::string CaptionOf(HWND window) {
    std::vector<char> buffer(1 << 12);
    return {buffer.data(), static_cast<size_t>(GetWindowTextA(window, buffer.data(), static_cast<int>(buffer.size())))};
}

BOOL CALLBACK Collect(HWND window, LPARAM list) {
    reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
    return TRUE;
}

std::vector<HWND> TopLevel() {
    std::vector<HWND> windows;
    EnumWindows(Collect, reinterpret_cast<LPARAM>(&windows));
    return windows;
}

}  // namespace

std::string ClassOf(HWND window) {
    std::array<char, 256> name{};
    return {name.data(), static_cast<size_t>(GetClassNameA(window, name.data(), static_cast<int>(name.size())))};
}

// A window that does not answer must not hang the test: the time-out leaves its text empty.
std::string TextOf(HWND window) {
    std::vector<char> buffer(1 << 16);
    DWORD_PTR length = 0;
    if (!SendMessageTimeoutA(window, WM_GETTEXT, buffer.size(), reinterpret_cast<LPARAM>(buffer.data()),
                             SMTO_ABORTIFHUNG, 2000, &length))
        return {};
    return {buffer.data(), length};
}

DWORD ProcessOf(HWND window) {
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    return process;
}

std::string Describe(HWND window, const std::string& text) {
    RECT r{};
    GetWindowRect(window, &r);
    return Done(Member("handle", Handle(window)) + "," + Member("pid", static_cast<long long>(ProcessOf(window))) +
                "," + Member("class", Quoted(ClassOf(window))) + "," + Member("caption", Quoted(text)) + "," +
                Member("id", static_cast<long long>(GetDlgCtrlID(window))) + "," +
                Member("style", static_cast<long long>(static_cast<DWORD>(GetWindowLongA(window, GWL_STYLE)))) + "," +
                Flag("visible", IsWindowVisible(window)) + "," + Flag("enabled", IsWindowEnabled(window)) + "," +
                Flag("minimised", IsIconic(window)) + "," +
                Member("rect", List({std::to_string(r.left), std::to_string(r.top), std::to_string(r.right),
                                     std::to_string(r.bottom)})));
}

std::vector<HWND> Children(HWND parent) {
    std::vector<HWND> windows;
    EnumChildWindows(parent, Collect, reinterpret_cast<LPARAM>(&windows));
    return windows;
}

namespace {

std::string Windows(const Words& words) {
    const bool hiddenToo = Word(words, 1) == "all";
    std::vector<std::string> rows;
    for (HWND window : TopLevel())
        if (hiddenToo || IsWindowVisible(window)) rows.push_back(Describe(window, CaptionOf(window)));
    return Done(Member("windows", List(rows)));
}

// wait CLASS CAPTION PROCESS MILLISECONDS: a visible window of that class (empty = any) whose caption holds that
// text, of that process (0 = any but this one).
std::string Wait(const Words& words) {
    const ULONGLONG end = GetTickCount64() + static_cast<ULONGLONG>(Number(words, 4));
    for (;;) {
        for (HWND window : TopLevel()) {
            const DWORD process = ProcessOf(window);
            const auto wanted = static_cast<DWORD>(Number(words, 3));
            if (!IsWindowVisible(window) || process == GetCurrentProcessId() || (wanted && process != wanted)) continue;
            if (!Word(words, 1).empty() && lstrcmpiA(ClassOf(window).c_str(), Word(words, 1).c_str()) != 0) continue;
            const std::string caption = CaptionOf(window);
            if (caption.find(Word(words, 2)) != std::string::npos) return Describe(window, caption);
        }
        if (GetTickCount64() >= end) return Error("no such window in time");
        Sleep(15);
    }
}

std::string Controls(const Words& words) {
    std::vector<std::string> rows;
    for (HWND child : Children(Window(words))) rows.push_back(Describe(child, TextOf(child)));
    return Done(Member("controls", List(rows)));
}

bool IsIcon(HWND control) {
    return ClassOf(control) == "Static" && (GetWindowLongA(control, GWL_STYLE) & SS_TYPEMASK) == SS_ICON;
}

std::string Message(const Words& words) {
    const HWND box = Window(words);
    std::string text;
    for (HWND child : Children(box)) {
        const std::string type = ClassOf(child);
        if (IsWindowVisible(child) && (type == "Static" || type == "Edit") && !IsIcon(child)) text += TextOf(child);
    }
    return Done(Member("caption", Quoted(TextOf(box))) + "," + Member("text", Quoted(text)));
}

// items WINDOW: the texts of a list box or drop-down list, and which of them is selected.
std::string Items(const Words& words) {
    const HWND list = Window(words);
    const bool combo = ClassOf(list) == "ComboBox";
    const auto count = SendMessageA(list, combo ? CB_GETCOUNT : LB_GETCOUNT, 0, 0);
    std::vector<std::string> rows, selected;
    for (LRESULT i = 0; i < count; ++i) {
        // Between processes such a text may come wide although it was asked for as bytes; asked for as wide, it does.
        std::vector<wchar_t> wide(1 << 12);
        std::vector<char> text(1 << 12);
        SendMessageW(list, combo ? CB_GETLBTEXT : LB_GETTEXT, static_cast<WPARAM>(i),
                     reinterpret_cast<LPARAM>(wide.data()));
        WideCharToMultiByte(CP_ACP, 0, wide.data(), -1, text.data(), static_cast<int>(text.size()), nullptr, nullptr);
        rows.push_back(Quoted(text.data()));
        const bool isSelected = combo ? SendMessageA(list, CB_GETCURSEL, 0, 0) == i
                                      : SendMessageA(list, LB_GETSEL, static_cast<WPARAM>(i), 0) > 0;
        if (isSelected) selected.push_back(std::to_string(i));
    }
    return Done(Member("items", List(rows)) + "," + Member("selected", List(selected)));
}

// focus WINDOW: the control that has the keyboard in that window's process.
std::string Focus(const Words& words) {
    GUITHREADINFO info{};
    info.cbSize = sizeof info;
    if (!GetGUIThreadInfo(GetWindowThreadProcessId(Window(words), nullptr), &info)) return Error("no answer");
    return info.hwndFocus ? Describe(info.hwndFocus, TextOf(info.hwndFocus)) : Error("no window has it");
}

std::string Foreground(const Words&) {
    return Done(Member("handle", Handle(GetForegroundWindow())));
}

// panel STATUSBAR NUMBER: the text of a panel, from 0. It comes by way of the memory of the window's process.
std::string Panel(const Words& words) {
    const HANDLE process = OpenProcess(PROCESS_ALL_ACCESS, FALSE, ProcessOf(Window(words)));
    std::array<char, 256> text{};
    void* there = VirtualAllocEx(process, nullptr, text.size(), MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE);
    SendMessageA(Window(words), SB_GETTEXTA, static_cast<WPARAM>(Number(words, 2)), reinterpret_cast<LPARAM>(there));
    const bool read = there && ReadProcessMemory(process, there, text.data(), text.size() - 1, nullptr);
    VirtualFreeEx(process, there, 0, MEM_RELEASE);
    CloseHandle(process);
    return read ? Done(Member("text", Quoted(text.data()))) : Error("could not read it");
}

}  // namespace

Commands LookingCommands() {
    return {
        {"windows", Windows},    // [all]: top-level windows, topmost first; visible ones only without "all"
        {"wait", Wait},          // CLASS CAPTION PROCESS MILLISECONDS
        {"controls", Controls},  // WINDOW: its children, all levels
        {"message", Message},    // WINDOW: a message box's caption and text
        {"items", Items},        // WINDOW
        {"panel", Panel},        // STATUSBAR NUMBER
        {"focus", Focus},        // WINDOW: of its process
        {"foreground", Foreground},
    };
}

}  // namespace user
