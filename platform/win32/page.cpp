#include <windows.h>

#include "platform/version.h"
#include "platform/win32/metrics.h"
#include "platform/win32/window.h"

// The pages of a tab strip: windows that lie over the strip, hold the windows of their controls and are shown and
// hidden as one.
namespace quirn::win32 {

namespace {

constexpr char kPageClass[] = QUIRN_TITLE "Page";

// Knows no page of its own: the form may outlive the object.
LRESULT CALLBACK PageProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (Form* form = FormOf(window))
        if (const auto result = NotificationFromControl(*form, message, wParam, lParam)) return *result;
    return DefWindowProcA(window, message, wParam, lParam);
}

void RegisterPageClass() {
    static const ATOM registered = [] {
        WNDCLASSEXA description{};
        description.cbSize = sizeof(description);
        description.lpfnWndProc = PageProc;
        description.hInstance = Instance();
        description.hCursor = LoadCursor(nullptr, IDC_ARROW);
        description.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
        description.lpszClassName = kPageClass;
        return RegisterClassExA(&description);
    }();
    (void)registered;
}

void CreatePage(TabPage& page) {
    RegisterPageClass();
    const TabStrip& strip = page.Strip();
    const RECT area = ToPixels(strip.PageArea(), DpiOf(strip));
    page.window = CreateWindowExA(WS_EX_CONTROLPARENT, kPageClass, page.Caption().c_str(), WS_CHILD | WS_CLIPSIBLINGS,
                                  area.left, area.top, area.right - area.left, area.bottom - area.top,
                                  WindowOf(strip.Holder()), nullptr, Instance(), nullptr);
    if (page.window != nullptr) CreateControls(page);
}

}  // namespace

void ShowFrontPage(TabStrip& strip) {
    if (strip.window == nullptr) return;
    for (TabPage* page : strip.Pages()) {
        if (!page->IsInFront()) continue;
        if (page->window == nullptr) CreatePage(*page);
        const HWND above = GetWindow(WindowOf(strip), GW_HWNDPREV);
        const bool there = above == WindowOf(*page);
        SetWindowPos(
            WindowOf(*page), above == nullptr ? HWND_TOP : above, 0, 0, 0, 0,
            SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | SWP_SHOWWINDOW | static_cast<UINT>(there ? SWP_NOZORDER : 0));
    }
    for (TabPage* page : strip.Pages())
        if (page->window != nullptr && !page->IsInFront()) ShowWindow(WindowOf(*page), SW_HIDE);
}

void PlacePages(TabStrip& strip) {
    const RECT area = ToPixels(strip.PageArea(), DpiOf(strip));
    for (TabPage* page : strip.Pages())
        if (page->window != nullptr)
            SetWindowPos(WindowOf(*page), nullptr, area.left, area.top, area.right - area.left, area.bottom - area.top,
                         SWP_NOZORDER | SWP_NOACTIVATE);
}

}  // namespace quirn::win32
