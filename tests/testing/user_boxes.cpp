#include "tests/testing/user.h"

#include <cstdlib>
#include <map>

// Message boxes: which icon, which text.
namespace user {

namespace {

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

Commands BoxCommands() {
    return {
        {"icons", Icons},
        {"message", Message},  // WINDOW: a message box's caption, text, buttons and icon
        {"show", Show},        // TEXT CAPTION STYLE
    };
}

}  // namespace user
