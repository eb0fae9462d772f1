#include "platform/form.h"

#include <windows.h>

#include <shellapi.h>  // needs windows.h first

#include <map>

#include "platform/version.h"
#include "platform/win32/colors.h"
#include "platform/win32/kind.h"
#include "platform/win32/metrics.h"
#include "resources/resource.h"

namespace quirn {

namespace win32 {

namespace {

constexpr char kFormClass[] = QUIRN_TITLE "Form";

std::map<const Form*, FormWindow> loadedForms;

DWORD StyleOf(FormBorder border) {
    switch (border) {
        case FormBorder::Sizable: return WS_OVERLAPPEDWINDOW;
        case FormBorder::SizableDialog: return WS_OVERLAPPEDWINDOW & ~static_cast<DWORD>(WS_MINIMIZEBOX);
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
        // A stored place may lie on a monitor that is no longer there. The caption must be in sight, to move it by.
        const RECT wanted{left, top, left + width, top + GetSystemMetrics(SM_CYCAPTION)};
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
    // A window that is being minimised is moved away before it says so.
    if (IsIconic(WindowOf(form)) || !GetWindowRect(WindowOf(form), &rect)) return;
    const int dpi = DpiOf(WindowOf(form));
    form.WindowMoved({ToTwips(rect.left, DpiOf(nullptr)), ToTwips(rect.top, DpiOf(nullptr)),
                      ToTwips(rect.right - rect.left, dpi), ToTwips(rect.bottom - rect.top, dpi)},
                     IsZoomed(WindowOf(form)) != FALSE);
}

void LimitSize(const Form& form, MINMAXINFO& limits) {
    if (form.MinimumWidth() == 0) return;
    constexpr LONG kLargest = 9999;  // pixels
    const int dpi = DpiOf(WindowOf(form));
    // Never more than the screen has: what is at the lower edge must be in reach.
    const Bounds screen = WorkArea(form);
    limits.ptMinTrackSize = {ToPixels(std::min(form.MinimumWidth(), screen.width), dpi),
                             ToPixels(std::min(form.MinimumHeight(), screen.height), dpi)};
    limits.ptMaxTrackSize = {kLargest, kLargest};
}

void Resize(Form& form) {
    TellPlace(form);
    for (Control* control : form.Controls())
        if (control->window != nullptr && control->Kind().formResized != nullptr) control->Kind().formResized(*control);
    form.WindowResized();
}

void ChangeDpi(Form& form, const RECT& place) {
    SetWindowPos(WindowOf(form), nullptr, place.left, place.top, place.right - place.left, place.bottom - place.top,
                 SWP_NOZORDER | SWP_NOACTIVATE);
    native::ForEachControl(form, [](Control& control) {
        if (control.window != nullptr) PlaceControl(control);
    });
    Resize(form);
}

void DropFiles(Form& form, HDROP drop) {
    std::vector<std::string> paths;
    const UINT count = DragQueryFileA(drop, 0xFFFFFFFF, nullptr, 0);
    for (UINT i = 0; i < count; ++i) {
        std::string path(DragQueryFileA(drop, i, nullptr, 0), '\0');
        DragQueryFileA(drop, i, path.data(), static_cast<UINT>(path.size() + 1));
        if (!path.empty()) paths.push_back(std::move(path));
    }
    DragFinish(drop);
    if (!form.onDropFiles || paths.empty() || form.IsBlocked()) return;
    // The program that the file came from is in front. What the form may ask must find it active, or it would stay
    // usable behind its own question.
    SetForegroundWindow(WindowOf(form));
    SetActiveWindow(WindowOf(form));
    CallHandler([&] { form.onDropFiles(paths); });
}

// The window itself has the keyboard only when it has just been activated; the control that had it gets it back.
void RestoreFocus(Form& form) {
    const Control* active = form.ActiveControl();
    if (active == nullptr) return;
    if (active->window != nullptr && active->CanFocus()) SetFocus(WindowOf(*active));
    else form.FocusNext(nullptr);
}

// A form that waits for a dialog gives the keyboard to that one. False when nothing of the kind is in sight.
bool PassOnActivation(const Form& form) {
    if (!form.IsBlocked()) return false;
    const HWND dialog = AnswerableFor(WindowOf(form));
    if (dialog == WindowOf(form)) return false;
    SetActiveWindow(dialog);
    return true;
}

// False when they are there.
bool MakeControls(Form& form) {
    if (StateOf(form).controlsMade) return false;
    StateOf(form).controlsMade = true;
    CreateControls(form);
    return true;
}

// A window that is maximised stays so.
int HowToShow(HWND window) {
    if (IsIconic(window)) return SW_RESTORE;
    return IsZoomed(window) ? SW_SHOW : SW_SHOWNORMAL;
}

void PaintBackground(HWND window, HDC device, Color color) {
    RECT area{};
    GetClientRect(window, &area);
    SetDCBrushColor(device, color);
    FillRect(device, &area, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
}

LRESULT CALLBACK FormProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    auto* form = reinterpret_cast<Form*>(GetWindowLongPtrA(window, GWLP_USERDATA));
    if (form == nullptr) return DefWindowProcA(window, message, wParam, lParam);
    if (PostedOn(window, message, wParam, lParam)) return FALSE;  // to the end of the session: not now
    if (const auto result = NotificationFromControl(*form, message, wParam, lParam)) return *result;
    if (TrayMessage(*form, message, wParam, lParam)) return 0;
    switch (message) {
        case WM_CLOSE: form->UserCloses(UnloadMode::CloseBox); return 0;
        // The program ends when it is asked, not when it is told: only then may the player still be asked to save.
        // A dialog that is still open is the player's to close first.
        case WM_QUERYENDSESSION:
            if (form->IsBlocked()) return FALSE;
            form->UserCloses(UnloadMode::SystemShutdown);
            return form->IsLoaded() ? FALSE : TRUE;
        case WM_COMMAND:
            if (HIWORD(wParam) == 0 && form->MenuBar() != nullptr) form->MenuBar()->UserChooses(LOWORD(wParam));
            return 0;
        case WM_MENUSELECT: MenuHighlighted(*form, wParam, lParam); break;
        case WM_INITMENUPOPUP:
            if (HIWORD(lParam) == FALSE) MenuOpens(*form, reinterpret_cast<HMENU>(wParam));  // not the system menu
            break;
        case WM_EXITMENULOOP: MenuClosed(*form); break;
        case WM_DROPFILES: DropFiles(*form, reinterpret_cast<HDROP>(wParam)); return 0;
        case WM_SETFOCUS: RestoreFocus(*form); return 0;
        case WM_ACTIVATE:
            if (LOWORD(wParam) == WA_INACTIVE) break;
            if (PassOnActivation(*form)) return 0;
            form->WindowActivated();
            break;
        // Another program may show a window that never was: a second copy does. One that is being loaded stays hidden.
        case WM_WINDOWPOSCHANGING:
            if (form->IsLoading()) reinterpret_cast<WINDOWPOS*>(lParam)->flags &= ~static_cast<UINT>(SWP_SHOWWINDOW);
            break;
        case WM_SHOWWINDOW:
            if (form->IsLoading()) break;
            // An owner that is minimised takes its windows with it, which is no hiding of theirs.
            if (lParam == 0) form->WindowShown(wParam != FALSE);
            if (wParam != FALSE && MakeControls(*form)) form->FocusNext(nullptr);
            break;
        case WM_SIZE:
            form->WindowMinimized(wParam == SIZE_MINIMIZED);
            if (wParam != SIZE_MINIMIZED) Resize(*form);
            return 0;
        case WM_MOVE: TellPlace(*form); break;
        case WM_GETMINMAXINFO: LimitSize(*form, *reinterpret_cast<MINMAXINFO*>(lParam)); return 0;
        case WM_DPICHANGED: ChangeDpi(*form, *reinterpret_cast<const RECT*>(lParam)); return 0;
        case WM_ERASEBKGND:
            if (const std::optional<Color> color = BackColorOf(*form)) {
                PaintBackground(window, reinterpret_cast<HDC>(wParam), *color);
                return TRUE;
            }
            break;
        case WM_SYSCOLORCHANGE: SystemColorsChanged(*form); break;
        default: break;
    }
    return DefWindowProcA(window, message, wParam, lParam);
}

ATOM FormClass() {
    static const ATOM registered = [] {
        WNDCLASSEXA description{};
        description.cbSize = sizeof(description);
        description.lpfnWndProc = FormProc;
        description.hInstance = Instance();
        description.hIcon = LoadIconA(description.hInstance, MAKEINTRESOURCEA(IDI_QUIRN));
        description.hCursor = LoadCursorA(nullptr, IDC_ARROW);
        description.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
        description.lpszClassName = kFormClass;
        return RegisterClassExA(&description);
    }();
    return registered;
}

}  // namespace

FormWindow& StateOf(const Form& form) {
    return loadedForms.at(&form);
}

Form* FormOf(HWND window) {
    const HWND top = GetAncestor(window, GA_ROOT);
    if (top == nullptr || GetClassLongPtrA(top, GCW_ATOM) != FormClass()) return nullptr;
    return reinterpret_cast<Form*>(GetWindowLongPtrA(top, GWLP_USERDATA));
}

}  // namespace win32

namespace {

Bounds InTwips(const RECT& area) {
    const int dpi = win32::DpiOf(nullptr);
    return {win32::ToTwips(area.left, dpi), win32::ToTwips(area.top, dpi), win32::ToTwips(area.right - area.left, dpi),
            win32::ToTwips(area.bottom - area.top, dpi)};
}

}  // namespace

Bounds ScreenArea() {
    return InTwips({0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)});
}

Bounds WorkArea(const Form& form) {
    MONITORINFO info{};
    info.cbSize = sizeof(info);
    GetMonitorInfoA(MonitorFromWindow(win32::WindowOf(form), MONITOR_DEFAULTTONEAREST), &info);
    const int dpi = win32::DpiOf(win32::WindowOf(form));
    const RECT& work = info.rcWork;
    Bounds area = InTwips(work);
    area.width = win32::ToTwips(work.right - work.left, dpi);
    area.height = win32::ToTwips(work.bottom - work.top, dpi);
    return area;
}

void RunEventLoop() {
    win32::RunUntil([] { return win32::loadedForms.empty(); });
}

namespace native {

using namespace win32;

void CreateForm(Form& form) {
    FormClass();
    loadedForms[&form] = {};
    const RECT place = PixelPlace(form);
    DWORD extendedStyle = WS_EX_CONTROLPARENT;
    if (form.Border() == FormBorder::None) extendedStyle |= WS_EX_TOOLWINDOW;
    if (form.onDropFiles) extendedStyle |= WS_EX_ACCEPTFILES;
    const HMENU menu = form.MenuBar() == nullptr ? nullptr : MakeMenuBar(*form.MenuBar());
    const HWND window = CreateWindowExA(
        extendedStyle, kFormClass, form.Caption().c_str(), StyleOf(form.Border()) | WS_DISABLED, place.left, place.top,
        place.right - place.left, place.bottom - place.top, nullptr, menu, Instance(), nullptr);
    form.window = window;
    // The monitor, and with it the DPI, is known only now.
    if (DpiOf(window) != DpiOf(nullptr)) FormChanged(form, Aspect::Place);
    SetWindowLongPtrA(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(&form));
    TellPlace(form);
}

void FormReady(Form& form) {
    EnableWindow(WindowOf(form), TRUE);
}

void DestroyForm(Form& form) {
    const HWND window = WindowOf(form);
    EndModal(form);
    SetWindowLongPtrA(window, GWLP_USERDATA, 0);
    ForEachControl(form, [](Control& control) {
        if (control.window != nullptr) SetWindowLongPtrA(WindowOf(control), GWLP_USERDATA, 0);
        control.window = nullptr;
        control.Holder().window = nullptr;
    });
    form.window = nullptr;
    DestroyWindow(window);
    loadedForms.erase(&form);
    // Wakes the event loop, which may be waiting for a message with no form left.
    PostThreadMessageA(GetCurrentThreadId(), WM_NULL, 0, 0);
}

void FormChanged(Form& form, Aspect aspect) {
    if (aspect == Aspect::Text) SetWindowTextA(WindowOf(form), form.Caption().c_str());
    if (aspect == Aspect::Place) {
        const RECT place = PixelPlace(form);
        SetWindowPos(WindowOf(form), nullptr, place.left, place.top, place.right - place.left, place.bottom - place.top,
                     SWP_NOZORDER | SWP_NOACTIVATE);
    }
}

void ShowForm(Form& form, bool visible) {
    if (!visible) EndModal(form);
    if (visible) MakeControls(form);
    ShowWindow(WindowOf(form), visible ? HowToShow(WindowOf(form)) : SW_HIDE);
}

bool IsBlocked(const Form& form) {
    return !IsWindowEnabled(WindowOf(form));
}

void BringToFront(Form& form) {
    if (form.IsMinimized()) ShowWindow(WindowOf(form), SW_RESTORE);
    SetForegroundWindow(AnswerableFor(WindowOf(form)));
}

void Repaint(Form& form) {
    RedrawWindow(WindowOf(form), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
}

void SetOwner(Form& form, Form& owner) {
    SetWindowLongPtrA(WindowOf(form), GWLP_HWNDPARENT, reinterpret_cast<LONG_PTR>(WindowOf(owner)));
}

void KeepOnTop(Form& form) {
    SetWindowPos(WindowOf(form), HWND_TOPMOST, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE | SWP_NOACTIVATE);
}

Size InnerSize(const Form& form) {
    RECT area{};
    GetClientRect(WindowOf(form), &area);
    const int dpi = DpiOf(WindowOf(form));
    return {ToTwips(area.right, dpi), ToTwips(area.bottom, dpi)};
}

Size DialogFrame() {
    RECT frame{};
    AdjustWindowRectEx(&frame, StyleOf(FormBorder::Dialog), FALSE, WS_EX_CONTROLPARENT);
    const int dpi = DpiOf(nullptr);
    return {ToTwips(frame.right - frame.left, dpi), ToTwips(frame.bottom - frame.top, dpi)};
}

}  // namespace native

}  // namespace quirn
