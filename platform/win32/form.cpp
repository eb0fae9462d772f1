#include "platform/form.h"

#include <windows.h>

#include <map>

#include "platform/native.h"
#include "platform/win32/controls.h"
#include "platform/win32/metrics.h"
#include "resources/resource.h"

namespace quirn {

namespace win32 {

namespace {

constexpr char kFormClass[] = "QUIRNForm";

int loadedForms = 0;

HWND WindowOf(const Form& form) { return static_cast<HWND>(form.window); }

DWORD StyleOf(const Form& form) {
    switch (form.Border()) {
        case FormBorder::Sizable: return WS_OVERLAPPEDWINDOW;
        case FormBorder::Fixed: return WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX;
        case FormBorder::Dialog: return WS_POPUP | WS_CAPTION | WS_SYSMENU;
        case FormBorder::None: return WS_POPUP | WS_BORDER;
    }
    return WS_OVERLAPPEDWINDOW;
}

// Positions count from the primary monitor's corner in the system's DPI, sizes in the DPI of the window's monitor.
RECT PixelPlace(const Form& form) {
    const Bounds& place = form.Place();
    const int dpi = DpiOf(WindowOf(form));
    const int width = ToPixels(place.width, dpi);
    const int height = ToPixels(place.height, dpi);
    int left = ToPixels(place.left, DpiOf(nullptr));
    int top = ToPixels(place.top, DpiOf(nullptr));
    if (!form.PlaceIsSet()) {
        RECT work{};
        SystemParametersInfoA(SPI_GETWORKAREA, 0, &work, 0);
        left = work.left + (work.right - work.left - width) / 2;
        top = work.top + (work.bottom - work.top - height) / 2;
    } else {
        // A stored place may lie on a monitor that is no longer there.
        const RECT wanted{left, top, left + width, top + height};
        if (MonitorFromRect(&wanted, MONITOR_DEFAULTTONULL) == nullptr) {
            MONITORINFO info{};
            info.cbSize = sizeof(info);
            GetMonitorInfoA(MonitorFromRect(&wanted, MONITOR_DEFAULTTONEAREST), &info);
            left = info.rcWork.left;
            top = info.rcWork.top;
        }
    }
    return {left, top, left + width, top + height};
}

void TellPlace(Form& form) {
    RECT rect{};
    if (form.IsMinimized() || !GetWindowRect(WindowOf(form), &rect)) return;
    const int dpi = DpiOf(WindowOf(form));
    form.WindowMoved({ToTwips(rect.left, DpiOf(nullptr)), ToTwips(rect.top, DpiOf(nullptr)),
                      ToTwips(rect.right - rect.left, dpi), ToTwips(rect.bottom - rect.top, dpi)});
}

LRESULT CALLBACK FormProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    auto* form = reinterpret_cast<Form*>(GetWindowLongPtrA(window, GWLP_USERDATA));
    if (form == nullptr) return DefWindowProcA(window, message, wParam, lParam);
    switch (message) {
        case WM_CLOSE: form->UserCloses(UnloadMode::CloseBox); return 0;
        case WM_QUERYENDSESSION: form->UserCloses(UnloadMode::SystemShutdown); return form->IsLoaded() ? FALSE : TRUE;
        case WM_CHAR: form->UserTypes(static_cast<char>(wParam)); return 0;
        case WM_SHOWWINDOW: form->WindowShown(wParam != FALSE); break;
        case WM_SIZE:
            form->WindowMinimized(wParam == SIZE_MINIMIZED);
            TellPlace(*form);
            break;
        case WM_MOVE: TellPlace(*form); break;
        case WM_DPICHANGED: {
            const auto* place = reinterpret_cast<const RECT*>(lParam);
            SetWindowPos(window, nullptr, place->left, place->top, place->right - place->left,
                         place->bottom - place->top, SWP_NOZORDER | SWP_NOACTIVATE);
            for (Control* control : form->Controls()) PlaceControl(*control);
            return 0;
        }
        case WM_ERASEBKGND:
            if (const auto color = form->BackColor()) {
                RECT area{};
                GetClientRect(window, &area);
                const HBRUSH brush = CreateSolidBrush(*color);
                FillRect(reinterpret_cast<HDC>(wParam), &area, brush);
                DeleteObject(brush);
                return TRUE;
            }
            break;
        case WM_CTLCOLORSTATIC:
            if (const HBRUSH brush = ColorStatic(*form, reinterpret_cast<HDC>(wParam), reinterpret_cast<HWND>(lParam)))
                return reinterpret_cast<LRESULT>(brush);
            break;
        case WM_DRAWITEM: DrawControl(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam)); return TRUE;
        default: break;
    }
    return DefWindowProcA(window, message, wParam, lParam);
}

void RegisterFormClass() {
    static const bool registered = [] {
        WNDCLASSEXA description{};
        description.cbSize = sizeof(description);
        description.lpfnWndProc = FormProc;
        description.hInstance = GetModuleHandleA(nullptr);
        description.hIcon = LoadIconA(description.hInstance, MAKEINTRESOURCEA(IDI_QUIRN));
        description.hCursor = LoadCursor(nullptr, IDC_ARROW);
        description.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
        description.lpszClassName = kFormClass;
        return RegisterClassExA(&description) != 0;
    }();
    (void)registered;
}

std::map<UINT_PTR, Timer*>& RunningTimers() {
    static std::map<UINT_PTR, Timer*> timers;
    return timers;
}

void CALLBACK OnTimer(HWND, UINT, UINT_PTR id, DWORD) {
    const auto found = RunningTimers().find(id);
    if (found != RunningTimers().end()) found->second->Fire();
}

}  // namespace

}  // namespace win32

void DoEvents() {
    MSG message;
    while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
        TranslateMessage(&message);
        DispatchMessageA(&message);
    }
}

void WaitForEvents(int milliseconds) {
    MsgWaitForMultipleObjectsEx(0, nullptr, static_cast<DWORD>(milliseconds), QS_ALLINPUT, MWMO_INPUTAVAILABLE);
    DoEvents();
}

void RunEventLoop() {
    while (win32::loadedForms > 0) {
        DoEvents();
        if (win32::loadedForms > 0) WaitMessage();
    }
}

namespace native {

using namespace win32;

void CreateForm(Form& form) {
    RegisterFormClass();
    ++loadedForms;
    const RECT place = PixelPlace(form);
    const HWND window = CreateWindowExA(
        form.Border() == FormBorder::None ? WS_EX_TOOLWINDOW : 0, kFormClass, form.Caption().c_str(), StyleOf(form),
        place.left, place.top, place.right - place.left, place.bottom - place.top, nullptr, nullptr,
        GetModuleHandleA(nullptr), nullptr);
    form.window = window;
    // The monitor, and with it the DPI, is known only now.
    if (DpiOf(window) != DpiOf(nullptr)) FormChanged(form, Aspect::Place);
    SetWindowLongPtrA(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(&form));
    TellPlace(form);
    for (Control* control : form.Controls()) CreateControl(window, *control);
}

void DestroyForm(Form& form) {
    --loadedForms;
    const HWND window = WindowOf(form);
    SetWindowLongPtrA(window, GWLP_USERDATA, 0);
    for (Control* control : form.Controls()) DestroyControl(*control);
    DestroyWindow(window);
    form.window = nullptr;
    // Wakes the event loop, which may be waiting for a message with no form left.
    PostThreadMessageA(GetCurrentThreadId(), WM_NULL, 0, 0);
}

void FormChanged(Form& form, Aspect aspect) {
    if (aspect == Aspect::Text) SetWindowTextA(WindowOf(form), form.Caption().c_str());
    if (aspect == Aspect::Place) {
        const RECT place = PixelPlace(form);
        SetWindowPos(WindowOf(form), nullptr, place.left, place.top, place.right - place.left,
                     place.bottom - place.top, SWP_NOZORDER | SWP_NOACTIVATE);
    }
}

void ShowForm(Form& form, bool visible) { ShowWindow(WindowOf(form), visible ? SW_SHOWNORMAL : SW_HIDE); }

void BringToFront(Form& form) {
    if (form.IsMinimized()) ShowWindow(WindowOf(form), SW_RESTORE);
    SetForegroundWindow(WindowOf(form));
}

void Repaint(Form& form) {
    RedrawWindow(WindowOf(form), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
}

void StopTimer(Timer& timer) {
    std::erase_if(RunningTimers(), [&](const auto& entry) {
        if (entry.second == &timer) KillTimer(nullptr, entry.first);
        return entry.second == &timer;
    });
}

void StartTimer(Timer& timer) {
    StopTimer(timer);
    const UINT_PTR id = SetTimer(nullptr, 0, static_cast<UINT>(timer.Interval()), OnTimer);
    if (id != 0) RunningTimers()[id] = &timer;
}

}  // namespace native

}  // namespace quirn
