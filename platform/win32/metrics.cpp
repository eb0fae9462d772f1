#include "platform/win32/metrics.h"

#include <vector>

namespace quirn::win32 {

namespace {

constexpr int kMessageFontPoints = 8;

// GetDpiForWindow and GetDpiForSystem came with Windows 10; older systems have one DPI for everything.
template <class Function>
Function User32(const char* name) {
    return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(GetModuleHandleA("user32.dll"), name)));
}

int SystemDpi() {
    static const int dpi = [] {
        if (const auto getDpiForSystem = User32<UINT(WINAPI*)()>("GetDpiForSystem"))
            return static_cast<int>(getDpiForSystem());
        const HDC screen = GetDC(nullptr);
        const int result = GetDeviceCaps(screen, LOGPIXELSX);
        ReleaseDC(nullptr, screen);
        return result;
    }();
    return dpi > 0 ? dpi : USER_DEFAULT_SCREEN_DPI;
}

HFONT MakeFont(const Font& font, int dpi) {
    LOGFONTA description{};
    if (font.face.empty()) {
        // The system's message font, but always at 8 points: the layouts are measured for that size.
        NONCLIENTMETRICSA metrics{};
        metrics.cbSize = sizeof(metrics);
        SystemParametersInfoA(SPI_GETNONCLIENTMETRICS, sizeof(metrics), &metrics, 0);
        description = metrics.lfMessageFont;
    } else {
        description.lfCharSet = DEFAULT_CHARSET;
        font.face.copy(description.lfFaceName, LF_FACESIZE - 1);
        // Where there is no Courier New, some other face of one width for all characters.
        if (font.face.starts_with("Courier")) description.lfPitchAndFamily = FIXED_PITCH | FF_MODERN;
    }
    description.lfHeight = -MulDiv(font.points > 0 ? font.points : kMessageFontPoints, dpi, 72);
    description.lfWidth = 0;
    if (font.bold) description.lfWeight = FW_BOLD;
    if (font.italic) description.lfItalic = TRUE;
    if (font.underline) description.lfUnderline = TRUE;
    if (font.strikeout) description.lfStrikeOut = TRUE;
    return CreateFontIndirectA(&description);
}

}  // namespace

int DpiOf(HWND window) {
    static const auto getDpiForWindow = User32<UINT(WINAPI*)(HWND)>("GetDpiForWindow");
    if (window != nullptr && getDpiForWindow != nullptr)
        if (const UINT dpi = getDpiForWindow(window)) return static_cast<int>(dpi);
    return SystemDpi();
}

HFONT FontFor(const Font& font, int dpi) {
    struct Made {
        Font font;
        int dpi;
        HFONT handle;
    };
    static std::vector<Made> made;
    for (const Made& entry : made)
        if (entry.dpi == dpi && entry.font == font) return entry.handle;
    made.push_back({font, dpi, MakeFont(font, dpi)});
    return made.back().handle;
}

TEXTMETRICA MetricsOf(HFONT font) {
    const HDC screen = GetDC(nullptr);
    const HGDIOBJ before = SelectObject(screen, font);
    TEXTMETRICA metrics{};
    GetTextMetricsA(screen, &metrics);
    SelectObject(screen, before);
    ReleaseDC(nullptr, screen);
    return metrics;
}

}  // namespace quirn::win32
