// The test user: looks at other processes' windows and acts on them from outside, as a player would.
//
// Reads one command per line from standard input, words separated by tabs and percent-encoded, and answers each with
// one line of JSON. Texts in the answers hold one character U+0000..U+00FF per byte. The commands are the table at
// the end of this file. An answer with "error" means that the command could not be done.
#include <windows.h>

#include <commctrl.h>
#include <tlhelp32.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <map>
#include <string>
#include <vector>

namespace {

using Words = std::vector<std::string>;

// --- Text ----------------------------------------------------------------------------------------------------------

std::string Quoted(const std::string& bytes) {
    std::string out = "\"";
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte < 32 || byte > 126 || c == '"' || c == '\\') {
            std::array<char, 8> escape{};
            std::snprintf(escape.data(), escape.size(), "\\u%04x", static_cast<unsigned>(byte));
            out += escape.data();
        } else {
            out += c;
        }
    }
    return out + '"';
}

std::string Member(const char* name, const std::string& json) {
    return Quoted(name) + ":" + json;
}
std::string Member(const char* name, long long number) {
    return Member(name, std::to_string(number));
}
std::string Flag(const char* name, bool value) {
    return Member(name, value ? "true" : "false");
}

std::string List(const std::vector<std::string>& items) {
    std::string out = "[";
    for (const auto& item : items) out += (out.size() > 1 ? "," : "") + item;
    return out + "]";
}

std::string Done(const std::string& members = "\"done\":true") {
    return "{" + members + "}";
}
std::string Error(const std::string& text) {
    return "{" + Member("error", Quoted(text)) + "}";
}

Words SplitLine(const std::string& line) {
    Words words(1);
    for (size_t i = 0; i < line.size(); ++i) {
        if (line[i] == '\t') words.emplace_back();
        else if (line[i] == '%' && i + 2 < line.size()) {
            words.back() += static_cast<char>(std::strtol(line.substr(i + 1, 2).c_str(), nullptr, 16));
            i += 2;
        } else if (line[i] != '\r' && line[i] != '\n') words.back() += line[i];
    }
    return words;
}

std::string Word(const Words& words, size_t index) {
    return index < words.size() ? words[index] : std::string();
}
long long Number(const Words& words, size_t index) {
    return std::atoll(Word(words, index).c_str());
}
HWND Window(const Words& words, size_t index = 1) {
    return reinterpret_cast<HWND>(static_cast<LONG_PTR>(Number(words, index)));
}
long long Handle(HWND window) {
    return static_cast<long long>(reinterpret_cast<LONG_PTR>(window));
}

// --- Looking ---------------------------------------------------------------------------------------------------------

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

// What the system keeps as caption; asks the window's process nothing, so it works while that one is busy.
std::string CaptionOf(HWND window) {
    std::vector<char> buffer(1 << 12);
    return {buffer.data(), static_cast<size_t>(GetWindowTextA(window, buffer.data(), static_cast<int>(buffer.size())))};
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

BOOL CALLBACK Collect(HWND window, LPARAM list) {
    reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
    return TRUE;
}

std::vector<HWND> TopLevel() {
    std::vector<HWND> windows;
    EnumWindows(Collect, reinterpret_cast<LPARAM>(&windows));
    return windows;
}

std::vector<HWND> Children(HWND parent) {
    std::vector<HWND> windows;
    EnumChildWindows(parent, Collect, reinterpret_cast<LPARAM>(&windows));
    return windows;
}

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

// --- Message boxes
// -----------------------------------------------------------------------------------------------------

HWND IconControl(HWND box) {
    for (HWND child : Children(box))
        if (ClassOf(child) == "Static" && (GetWindowLongA(child, GWL_STYLE) & SS_TYPEMASK) == SS_ICON &&
            IsWindowVisible(child))
            return child;
    return nullptr;
}

constexpr int kIconSize = 32;
using Pixels = std::vector<DWORD>;

// Read from the screen: an icon's handle means nothing in another process, what the player sees does.
Pixels PixelsOf(HWND control) {
    POINT at{0, 0};
    ClientToScreen(control, &at);
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = kIconSize;
    info.bmiHeader.biHeight = -kIconSize;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    const HDC screen = GetDC(nullptr);
    const HDC memory = CreateCompatibleDC(screen);
    void* bits = nullptr;
    const HBITMAP bitmap = CreateDIBSection(memory, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    Pixels pixels;
    if (bitmap) {
        const HGDIOBJ old = SelectObject(memory, bitmap);
        BitBlt(memory, 0, 0, kIconSize, kIconSize, screen, at.x, at.y, SRCCOPY);
        GdiFlush();
        const auto* first = static_cast<const DWORD*>(bits);
        pixels.assign(first, first + kIconSize * kIconSize);
        SelectObject(memory, old);
        DeleteObject(bitmap);
    }
    DeleteDC(memory);
    ReleaseDC(nullptr, screen);
    return pixels;
}

long long Distance(const Pixels& a, const Pixels& b) {
    long long sum = 0;
    for (size_t i = 0; i < a.size() && i < b.size(); ++i)
        for (unsigned shift = 0; shift < 24; shift += 8)
            sum += std::abs(static_cast<int>(a[i] >> shift & 255) - static_cast<int>(b[i] >> shift & 255));
    return sum;
}

struct Reference {
    const char* name;
    UINT style;
    Pixels pixels;
};

DWORD WINAPI ShowReference(void* style) {
    MessageBoxA(nullptr, "Reference", "Test user's reference", *static_cast<UINT*>(style));
    return 0;
}

bool OneColour(const Pixels& pixels) {
    for (const DWORD pixel : pixels)
        if ((pixel ^ pixels.front()) & 0xFFFFFF) return false;
    return true;
}

// The four icons as this system draws them, taken from boxes shown here.
std::vector<Reference>& References() {
    static std::vector<Reference> references;
    if (!references.empty()) return references;
    references = {{"critical", MB_ICONERROR, {}},
                  {"question", MB_ICONQUESTION, {}},
                  {"exclamation", MB_ICONWARNING, {}},
                  {"information", MB_ICONINFORMATION, {}}};
    for (Reference& reference : references) {
        const HANDLE thread = CreateThread(nullptr, 0, ShowReference, &reference.style, 0, nullptr);
        HWND box = nullptr;
        for (int i = 0; i < 200 && !box; ++i) {
            Sleep(15);
            box = FindWindowA("#32770", "Test user's reference");
        }
        // The window manager raises and the box paints in their own time: the picture counts once it stands still.
        Pixels last;
        for (int i = 0; i < 100; ++i) {
            Sleep(30);
            const HWND icon = IconControl(box);
            reference.pixels = icon ? PixelsOf(icon) : Pixels();
            if (!reference.pixels.empty() && reference.pixels == last && !OneColour(last)) break;
            last = reference.pixels;
        }
        PostMessageA(box, WM_COMMAND, IDOK, 0);
        WaitForSingleObject(thread, 5000);
        CloseHandle(thread);
    }
    return references;
}

// The nearest of the four icons, provided that no other comes close; "none" for a box without one, which has the
// control all the same.
std::string IconName(HWND box) {
    HWND icon = IconControl(box);
    DWORD_PTR held = 0;
    if (!icon || !SendMessageTimeoutA(icon, STM_GETICON, 0, 0, SMTO_ABORTIFHUNG, 2000, &held) || !held) return "none";
    std::vector<Reference>& references = References();
    for (int i = 0; i < 60; ++i) {
        SetWindowPos(box, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | SWP_ASYNCWINDOWPOS);
        const Pixels pixels = PixelsOf(icon);
        std::map<long long, const char*> byDistance;
        for (const Reference& reference : references)
            byDistance.emplace(Distance(pixels, reference.pixels), reference.name);
        if (byDistance.size() > 1 && byDistance.begin()->first * 3 < std::next(byDistance.begin())->first)
            return byDistance.begin()->second;
        Sleep(50);
    }
    return "unclear";
}

// icons: learns what the four look like, best while no other window can lie above them.
std::string Icons(const Words&) {
    References();
    return Done();
}

std::string Message(const Words& words) {
    const HWND box = Window(words);
    if (!IsWindow(box)) return Error("no such window");
    std::string text;
    std::vector<std::string> buttons;
    for (HWND child : Children(box)) {
        if (!IsWindowVisible(child)) continue;
        const std::string type = ClassOf(child);
        if (type == "Button") buttons.push_back(Quoted(TextOf(child)));
        if ((type == "Static" || type == "Edit") && child != IconControl(box)) text += TextOf(child);
    }
    return Done(Member("caption", Quoted(TextOf(box))) + "," + Member("text", Quoted(text)) + "," +
                Member("buttons", List(buttons)) + "," + Member("icon", Quoted(IconName(box))));
}

// --- Acting
// --------------------------------------------------------------------------------------------------------------

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

std::string Type(const Words& words) {
    for (const char c : Word(words, 2)) PostMessageA(Window(words), WM_CHAR, static_cast<unsigned char>(c), 1);
    return Done();
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

// drop WINDOW FILE: what the shell sends when a file is dropped on the window. The list of files must lie in the
// memory of the window's process.
std::string Drop(const Words& words) {
    struct Header {  // of such a list: where the names begin, the point, and two flags
        DWORD names;
        POINT at;
        BOOL outside, wide;
    };
    const HANDLE process = OpenProcess(PROCESS_ALL_ACCESS, FALSE, ProcessOf(Window(words)));
    const std::string names = Word(words, 2) + std::string(2, '\0');
    const Header header{sizeof(Header), {}, FALSE, FALSE};
    void* list = VirtualAllocEx(process, nullptr, sizeof header + names.size(), MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE);
    const bool written = list && WriteProcessMemory(process, list, &header, sizeof header, nullptr) &&
                         WriteProcessMemory(process, static_cast<char*>(list) + sizeof header, names.data(),
                                            names.size(), nullptr);
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

// --- Files and processes
// -----------------------------------------------------------------------------------------------

HANDLE heldFile = INVALID_HANDLE_VALUE;

std::string Release(const Words&) {
    if (heldFile != INVALID_HANDLE_VALUE) CloseHandle(heldFile);
    heldFile = INVALID_HANDLE_VALUE;
    return Done();
}

// Keeps a file open and shares it with nobody, as another program that works on it would.
std::string Hold(const Words& words) {
    Release(words);
    heldFile = CreateFileA(Word(words, 1).c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    return heldFile != INVALID_HANDLE_VALUE ? Done() : Error("could not open it");
}

std::string Processes(const Words&) {
    const HANDLE snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0);
    PROCESSENTRY32 entry{};
    entry.dwSize = sizeof entry;
    std::vector<std::string> rows;
    for (BOOL more = Process32First(snapshot, &entry); more; more = Process32Next(snapshot, &entry))
        rows.push_back(Done(Member("pid", static_cast<long long>(entry.th32ProcessID)) + "," +
                            Member("name", Quoted(entry.szExeFile))));
    CloseHandle(snapshot);
    return Done(Member("processes", List(rows)));
}

std::string End(const Words& words) {
    const HANDLE process = OpenProcess(PROCESS_TERMINATE | SYNCHRONIZE, FALSE, static_cast<DWORD>(Number(words, 1)));
    if (!process) return Error("no such process");
    TerminateProcess(process, 99);
    WaitForSingleObject(process, 5000);
    CloseHandle(process);
    return Done();
}

// show TEXT CAPTION STYLE: a message box of the test user's own, to try the reading of boxes on.
std::string boxText, boxCaption;
UINT boxStyle = 0;

DWORD WINAPI ShowBox(void*) {
    MessageBoxA(nullptr, boxText.c_str(), boxCaption.c_str(), boxStyle);
    return 0;
}

std::string Show(const Words& words) {
    boxText = Word(words, 1);
    boxCaption = Word(words, 2);
    boxStyle = static_cast<UINT>(Number(words, 3));
    CloseHandle(CreateThread(nullptr, 0, ShowBox, nullptr, 0, nullptr));
    for (int i = 0; i < 200; ++i) {
        Sleep(15);
        if (HWND box = FindWindowA("#32770", boxCaption.c_str())) return Describe(box, boxCaption);
    }
    return Error("the box did not show");
}

}  // namespace

int main() {
    const std::map<std::string, std::string (*)(const Words&)> commands = {
        {"windows", Windows},    // [all]: top-level windows, topmost first; visible ones only without "all"
        {"wait", Wait},          // CLASS CAPTION PROCESS MILLISECONDS
        {"controls", Controls},  // WINDOW: its children, all levels
        {"icons", Icons},
        {"message", Message},    // WINDOW: a message box's caption, text, buttons and icon
        {"press", Press},        // WINDOW BUTTON
        {"type", Type},          // WINDOW TEXT
        {"post", Post},          // WINDOW MESSAGE WPARAM LPARAM
        {"send", Send},          // the same, waiting for the result
        {"minimise", Minimise},  // WINDOW
        {"items", Items},          // WINDOW
        {"focus", Focus},          // WINDOW: of its process
        {"drop", Drop},            // WINDOW FILE
        {"panel", Panel},          // STATUSBAR NUMBER
        {"place", Place},          // WINDOW LEFT TOP [WIDTH HEIGHT]
        {"clipboard", Clipboard},  // TEXT
        {"foreground", Foreground},
        {"hold", Hold},  // FILE
        {"release", Release},
        {"processes", Processes},
        {"end", End},    // PROCESS
        {"show", Show},  // TEXT CAPTION STYLE
    };
    std::string line;
    for (int c = std::getchar(); c != EOF; c = std::getchar()) {
        line += static_cast<char>(c);
        if (c != '\n') continue;
        const Words words = SplitLine(line);
        line.clear();
        const auto command = commands.find(words[0]);
        std::puts((command == commands.end() ? Error("no such command") : command->second(words)).c_str());
        std::fflush(stdout);
    }
    return 0;
}
