#include <windows.h>

#include <commctrl.h>  // needs windows.h first

#include "platform/version.h"
#include "platform/win32/kind.h"
#include "platform/win32/metrics.h"

// Tab strips. The pages of a tab strip: windows that lie over the strip, hold the windows of their controls and are
// shown and hidden as one.
namespace quirn {

namespace win32 {

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

void ShowFrontPage(TabStrip& strip) {
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

Look StripLook(const TabStrip&) {
    return {.className = WC_TABCONTROLA, .style = WS_TABSTOP | WS_CLIPSIBLINGS, .commonClass = ICC_TAB_CLASSES};
}

void FillStrip(TabStrip& strip) {
    for (const TabPage* page : strip.Pages()) {
        TCITEMA item{};
        item.mask = TCIF_TEXT;
        item.pszText = const_cast<char*>(page->Caption().c_str());
        SendMessageA(WindowOf(strip), TCM_INSERTITEMA, strip.Pages().size(), reinterpret_cast<LPARAM>(&item));
    }
    SendMessageA(WindowOf(strip), TCM_SETCURSEL, static_cast<WPARAM>(strip.Tab()), 0);
    ShowFrontPage(strip);
}

void ApplyStrip(TabStrip& strip, Aspect aspect) {
    if (aspect == Aspect::Value && SendMessageA(WindowOf(strip), TCM_GETCURSEL, 0, 0) != strip.Tab())
        SendMessageA(WindowOf(strip), TCM_SETCURSEL, static_cast<WPARAM>(strip.Tab()), 0);
    if (aspect == Aspect::Value || aspect == Aspect::Visible) ShowFrontPage(strip);
    if (aspect == Aspect::Place) PlacePages(strip);
}

void SetStripFont(const TabStrip& strip, HFONT font) {
    SendMessageA(WindowOf(strip), WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
    SendMessageA(WindowOf(strip), TCM_SETITEMSIZE, 0, MAKELPARAM(0, ToPixels(TabStrip::kTabHeight, DpiOf(strip))));
}

std::optional<LRESULT> StripNotify(TabStrip& strip, const NMHDR& header) {
    if (header.code != TCN_SELCHANGE) return std::nullopt;
    strip.UserTurnsTo(static_cast<int>(SendMessageA(header.hwndFrom, TCM_GETCURSEL, 0, 0)));
    return 0;
}

}  // namespace

}  // namespace win32

namespace native {

using namespace win32;

const Kind kTabStrip{.look = For<StripLook>,
                     .fill = For<FillStrip>,
                     .apply = For<ApplyStrip>,
                     .setFont = For<SetStripFont>,
                     .notify = For<StripNotify>};

}  // namespace native

}  // namespace quirn
