#pragma once

#include <windows.h>

#include "platform/control.h"

// The windows of controls, for win32/form.cpp.
namespace quirn::win32 {

void CreateControl(HWND parent, Control& control);

// Puts a control's window at its place and gives it its font anew, in the DPI of its form.
void PlaceControl(Control& control);

// Answers WM_CTLCOLORSTATIC: the brush behind the control, or null for the system's.
HBRUSH ColorStatic(const Form& form, HDC device, HWND control);

// Answers WM_DRAWITEM.
void DrawControl(const DRAWITEMSTRUCT& item);

}  // namespace quirn::win32
