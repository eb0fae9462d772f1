#pragma once

#include "platform/control.h"
#include "platform/form.h"

// What the two back ends implement for forms and controls. Only control.cpp and form.cpp call these.
namespace quirn::native {

// Makes a hidden window with a window for each visible control, from the form's state; sets form.window.
void CreateForm(Form& form);
void DestroyForm(Form& form);  // also resets the window pointers of its controls
void FormChanged(Form& form, Aspect aspect);
void ShowForm(Form& form, bool visible);
void BringToFront(Form& form);
void Repaint(Form& form);

void DestroyControl(Control& control);
void ControlChanged(Control& control, Aspect aspect);

void StartTimer(Timer& timer);  // or starts it anew
void StopTimer(Timer& timer);

}  // namespace quirn::native
