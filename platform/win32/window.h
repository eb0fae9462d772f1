#pragma once

#include <windows.h>

#include <functional>
#include <optional>
#include <set>
#include <vector>

#include "platform/controls.h"
#include "platform/form.h"

// The windows of forms, pages and controls, for the files of win32/ only.
namespace quirn::win32 {

// What this back end keeps of a loaded form.
struct FormWindow {
    bool controlsMade = false;
    bool menuIsStale = false;      // the bar changed while the player was in it
    HWND disabledOwner = nullptr;  // while the form is modal
    HWND toolTip = nullptr;
    std::set<HWND> toolTipOwners;
};
FormWindow& StateOf(const Form& form);  // of a loaded one

inline HWND WindowOf(const Container& container) {
    return static_cast<HWND>(container.window);
}
inline HWND WindowOf(const Control& control) {
    return static_cast<HWND>(control.window);
}
inline HINSTANCE Instance() {
    return GetModuleHandleA(nullptr);
}

// The control that a window of this program shows; null for one that is being destroyed.
inline Control* ControlOf(HWND window) {
    return reinterpret_cast<Control*>(GetWindowLongPtrA(window, GWLP_USERDATA));
}

// The form of a window; null when the window belongs to no form.
Form* FormOf(HWND window);

inline bool Pressed(int key) {
    return GetKeyState(key) < 0;
}

// A place in a container's inner area.
RECT ToPixels(const Bounds& place, int dpi);
int DpiOf(const Control& control);

// The height, in pixels, of a box that holds one line of text: borders do not grow with the DPI, and in a box that is
// higher than its line the text would stand higher than the label beside it.
int LineBoxHeight(const Control& control);

// controls.cpp: windows from the state of controls.
void CreateControls(Container& container);  // those that are visible
void CreateControl(Control& control);
void PlaceControl(Control& control);  // at its place, and in its font, by the form's DPI
void ApplyText(const Control& control);
std::string TextOf(HWND window);
bool TextIsBeingSet(HWND window);

// controlproc.cpp: lets this program see the messages of a control's window first.
void Subclass(HWND window);
bool FocusArrives(HWND window);  // the window is just taking the focus

// Messages that a control's window sends to its form or page; nothing means the default handling.
std::optional<LRESULT> NotificationFromControl(Form& form, UINT message, WPARAM wParam, LPARAM lParam);

// tooltip.cpp
void PrepareToolTip(Control& control);
void ToolTipChanged(Control& control);

// menu.cpp
HMENU MakeMenuBar(const Menu& menu);
void MenuHighlighted(Form& form, WPARAM wParam, LPARAM lParam);
void MenuOpens(Form& form, HMENU popup);  // greys what cannot be chosen now
void MenuClosed(Form& form);

// modal.cpp
void EndModal(Form& form);

// The foremost window of a thread that the player can see and use; null when there is none.
HWND ForemostAnswerable(DWORD thread);

// A window of any program or, when it is disabled, the box or dialog that it waits for. That need not be its own: a box
// that came before its program had a window to show is nobody's.
HWND AnswerableFor(HWND window);

// While a box or dialog waits for its answer all forms wait, not only the one that asks: no second question opens
// beside the first, and no command begins in the middle of another. The owner is left to the box itself, as all are
// when there is no owner.
class OneQuestion {
public:
    explicit OneQuestion(HWND owner);
    ~OneQuestion();
    OneQuestion(const OneQuestion&) = delete;
    OneQuestion& operator=(const OneQuestion&) = delete;

private:
    std::vector<HWND> waiting_;
};

// tray.cpp: true when the message was the tray's.
inline constexpr UINT kTrayMessage = 1124;
bool TrayMessage(Form& form, UINT message, WPARAM wParam, LPARAM lParam);

// events.cpp
bool RunOneEvent();  // false: there is none

// Runs events until it is done. That is asked after every wake-up, since a loop inside of this one (of a dialog) may
// have eaten the message that was to wake this one.
void RunUntil(const std::function<bool()>& done);

// What the player asks for may come as a message that another program sends (the shell does, for the icon in the tray):
// in the middle of whatever this thread does. Such a message is posted to its window, and comes again when nothing else
// is under way. False when it may be handled now.
bool PostedOn(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

}  // namespace quirn::win32
