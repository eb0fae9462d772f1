#pragma once

#include <windows.h>

#include "platform/control.h"

// The one place where twips become pixels.
namespace quirn::win32 {

// The dots per inch of the monitor that a window stands on; the system's for null. 96 on systems that cannot tell.
int DpiOf(HWND window);

inline int ToPixels(int twips, int dpi) {
    return MulDiv(twips, dpi, 1440);
}
inline int ToTwips(int pixels, int dpi) {
    return MulDiv(pixels, 1440, dpi);
}

// The system's font for a control's, shared by all that use it and kept for good.
HFONT FontFor(const Font& font, int dpi);
TEXTMETRICA MetricsOf(HFONT font);

}  // namespace quirn::win32
