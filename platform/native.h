#pragma once

#include "platform/control.h"
#include "platform/controls.h"
#include "platform/form.h"
#include "platform/table.h"
#include "platform/tray.h"
#include "platform/virtuallist.h"

// What the two back ends implement for forms, controls, menus and the tray. Only the portable part of platform/ calls
// these. A form is loaded when they are called.
namespace quirn::native {

// One constant for each kind of control; what is in it is the back end's business.
extern const Kind kLabel, kPicture, kFrame, kButton, kLinkButton, kCheckBox, kOptionButton, kTextBox, kMaskedBox,
    kUpDown, kComboBox, kListBox, kVirtualList, kTable, kTabStrip, kProgressBar, kStatusBar;

// Makes a hidden, disabled window from the form's state; sets form.window. The windows of its controls come with the
// first ShowForm, those of a page when it is first in front, that of a hidden control when it is first made visible.
void CreateForm(Form& form);
void FormReady(Form& form);    // enables it
void DestroyForm(Form& form);  // also resets the window pointers of its controls and pages
void FormChanged(Form& form, Aspect aspect);
void ShowForm(Form& form, bool visible);
void RunModal(Form& form, Form& owner);  // shows it and returns when it is unloaded or hidden
bool IsBlocked(const Form& form);
void BringToFront(Form& form);  // or the window that blocks it
void Repaint(Form& form);
void SetOwner(Form& form, Form& owner);
void KeepOnTop(Form& form);

// The controls of a form and those of its pages.
template <class Visit>
void ForEachControl(const Form& form, Visit visit) {
    for (Control* control : form.Controls()) {
        visit(*control);
        for (TabPage* page : control->Pages())
            for (Control* inPage : page->Controls()) visit(*inPage);
    }
}

struct Size {
    int width;
    int height;
};
Size InnerSize(const Form& form);
Size DialogFrame();  // what it adds to the inner area; also without a form

void MenuChanged(Form& form);  // the rows of its menu bar
// At the pointer, or below a control.
void PopUpMenu(Form& form, Menu& menu, int defaultCommand, const Control* above);

// Aspect::Visible also comes for a control that has no window yet. The value of a tab strip is its page in front.
void ControlChanged(Control& control, Aspect aspect);
void Repaint(Control& control);
void DestroyControl(Control& control);
void FocusControl(Control& control);  // its form has been shown
void SelectAll(Control& box);
void PutCaretAtEnd(TextBox& box);
int CaretLeft(const TextBox& box);
bool IsOpen(const ComboBox& box);  // its list has dropped down

// The window knows best what the player has selected and scrolled to; asked for only while there is a window.
void ReadSelection(const VirtualList& list, ListSelection& selection);
size_t TopIndex(const VirtualList& list);
void SetTopIndex(VirtualList& list, size_t item);
size_t RowsInSight(const VirtualList& list);     // whole ones
void AddItems(VirtualList& list, bool inSight);  // there are more than the window knows; inSight: one can see them
void ReadSelection(const Table& table, ListSelection& selection, std::optional<size_t>& current);
void ScrollTo(Table& table, size_t row);

void AddTrayIcon(TrayIcon& icon);
void RemoveTrayIcon(TrayIcon& icon);
void ShowTrayBalloon(TrayIcon& icon, const std::string& title, const std::string& text);

void StartTimer(Timer& timer);  // or starts it anew
void StopTimer(Timer& timer);

}  // namespace quirn::native
