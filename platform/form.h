#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/control.h"
#include "platform/controls.h"
#include "platform/menu.h"
#include "platform/timer.h"

namespace quirn {

enum class FormBorder {
    Sizable,        // caption, system menu, minimise and maximise boxes
    SizableDialog,  // the same without minimise box: a modal window that hides would leave its owner blocked
    Fixed,          // caption, system menu, minimise box
    Dialog,         // caption and close box only
    None,           // a bare panel, as a splash
};

// Who asks for a form to be closed. The numbers are the classic ones.
enum class UnloadMode { CloseBox = 0, FromCode = 1, SystemShutdown = 2 };

// Keys by their virtual codes.
inline constexpr int kKeyTab = 9, kKeyEnter = 13, kKeyEscape = 27, kKeySpace = 32, kKeyPageUp = 33, kKeyPageDown = 34,
                     kKeyEnd = 35, kKeyDown = 40, kKeyDelete = 46, kKeyF1 = 112, kKeyF2 = 113, kKeyF3 = 114,
                     kKeyF5 = 116;

// A window of the program. The object may live longer than its window: Load makes the window (hidden), Unload destroys
// it, and either may happen again. A form is destroyed with its window when its object goes. A routine of the form may
// still be waiting for a box when the window is unloaded, so an owner keeps the object and loads it again.
//
// Keyboard: Tab and the arrows move between the controls, access keys and the menu bar work (where the form takes
// characters itself, access keys need Alt), Ctrl+Tab turns the pages of the form's tab strip. Enter goes to a text box
// that swallows it, else presses the button that has the focus, else the default button; Esc presses the cancel button.
// A form without such buttons ignores the two.
class Form : public Container {
public:
    // The size is the whole window's, frame included, but that of a dialog (FormBorder::Dialog) is its inner area's, so
    // that its margins are the same whatever frame the system draws. The place is the centre of the screen until Move
    // says otherwise.
    Form(FormBorder border, int width, int height);
    ~Form();

    bool IsLoaded() const { return loaded_; }
    bool Visible() const { return visible_; }
    FormBorder Border() const { return border_; }
    const std::string& Caption() const { return caption_; }
    const Bounds& Place() const { return place_; }
    // Where it is, or was before it was maximised.
    const Bounds& NormalPlace() const { return normalPlace_; }
    bool PlaceIsSet() const { return placeIsSet_; }
    std::optional<Color> BackColor() const { return backColor_; }
    bool IsMinimized() const { return minimized_; }

    // The size of the inner area in twips, menu bar not counted. Known exactly once the form is loaded.
    int InnerWidth() const;
    int InnerHeight() const;

    void SetCaption(const std::string& caption);
    void Move(const Bounds& place);
    void SetMinimumSize(int width, int height);  // twips, frame included; before Load
    int MinimumWidth() const { return minimumWidth_; }
    int MinimumHeight() const { return minimumHeight_; }
    void SetBackColor(Color color) { backColor_ = color; }  // before Load
    void SetMenu(Menu& menu);  // before Load, with the keys of its shortcuts; the menu must live as long as the form
    Menu* MenuBar() const { return menu_; }
    void SetButtons(Button* defaultButton, Button* cancelButton);
    Button* DefaultButton() const { return defaultButton_; }

    // Makes the window, hidden, and calls onLoad. Does nothing when it is loaded. Until onLoad has returned, which may
    // take long when it asks the player something, the window can be neither seen nor used: nothing in it is right yet.
    void Load();
    void Show();                  // loads it first when need be; does not wait
    void ShowModal(Form& owner);  // waits until it is unloaded or hidden; the owner is disabled meanwhile
    void ShowOwned(Form& owner);  // in front of the owner, which stays usable; must be unloaded before the owner
    void Hide();

    bool IsLoading() const { return loading_; }
    // A modal form, a message box or a file dialog of this program waits for its answer before the form, or the form is
    // still being loaded.
    bool IsBlocked() const;
    void BringToFront();    // restores it when it is minimised
    void SetAlwaysOnTop();  // above the windows of other programs too; once it is loaded
    void Repaint();         // paints the window now, without waiting for events

    // Asks onQueryUnload and onUnload, and destroys the window unless one of them says no. True when it is gone
    // (or was not there).
    bool Unload(UnloadMode mode);
    bool Unload() { return Unload(UnloadMode::FromCode); }

    // Shows a menu at the pointer and calls its handlers; the command in bold is its default.
    void PopUpMenu(Menu& menu, int defaultCommand);
    void PopUpMenuBelow(const Control& button, Menu& menu);

    Control* ActiveControl() const { return active_; }

    std::function<void()> onLoad;
    std::function<void()> onResize;
    std::function<void()> onActivate;                      // it has come to the front and can be used
    std::function<bool(UnloadMode)> onQueryUnload;         // false: the form stays
    std::function<bool()> onUnload;                        // false: the form stays
    std::function<bool(int key, bool control)> onKeyDown;  // without Shift, before shortcuts; true swallows it
    std::function<void(char)> onKeyPress;            // a character typed, before the control that has the focus gets it
    std::function<void(int)> onSystemMenuHighlight;  // the player moves over a command of the system menu (0xF000 ...)
    // Files dropped on the window, at least one; set before Load.
    std::function<void(const std::vector<std::string>& paths)> onDropFiles;

    // For the back end: what happened to the window.
    void UserCloses(UnloadMode mode);
    void UserTypes(char character);
    void UserPressesEnter();
    void UserPressesEscape();
    bool UserPressesShortcut(KeyStroke key);  // false: it is none
    bool UserPressesAccessKey(char key);      // Alt and a letter; false: no control has it
    bool UserTurnsPage(int steps);            // of the first tab strip; false: there is none
    void FocusNext(const Control* after);     // the first that can have it, in tab order and round the end
    void WindowMoved(const Bounds& place, bool maximized);
    void WindowResized();
    void WindowActivated();
    void WindowShown(bool visible) { visible_ = visible; }
    void WindowMinimized(bool minimized) { minimized_ = minimized; }
    void FocusMoved(Control* control) { active_ = control; }

private:
    std::vector<Control*> TabOrder() const;
    void Discard();  // unloads it without asking, and the modal form before it too

    FormBorder border_;
    Bounds place_, normalPlace_;
    bool placeIsSet_ = false;
    int minimumWidth_ = 0;
    int minimumHeight_ = 0;
    std::string caption_;
    std::optional<Color> backColor_;
    Menu* menu_ = nullptr;
    Button* defaultButton_ = nullptr;
    Button* cancelButton_ = nullptr;
    Control* active_ = nullptr;
    Form* modal_ = nullptr;  // the modal form that waits before this one
    bool loaded_ = false;
    bool loading_ = false;  // onLoad has not returned
    bool visible_ = false;
    bool minimized_ = false;
};

// The first screen, and the part of a form's screen that no task bar takes. Twips, as a form's place is given.
Bounds ScreenArea();
Bounds WorkArea(const Form& form);

// Lets pending events run and returns.
void DoEvents();

// The same without what the player does: windows are painted, and other programs that ask get their answer. Clicks and
// keys wait, so that no command begins in the middle of another.
void DoPaintEvents();

// Sleeps until there is an event or the time is over, then lets pending events run.
void WaitForEvents(int milliseconds);

// Runs events until no form is loaded.
void RunEventLoop();

// Calls a handler, if there is one, and shows what it throws (memory ran out) as a run-time error: the program goes on.
void CallHandler(const std::function<void()>& handler);

}  // namespace quirn
