#include "platform/win32/colors.h"

#include <windows.h>

#include "platform/native.h"
#include "platform/win32/window.h"

namespace quirn::win32 {

bool IsHighContrast() {
    HIGHCONTRASTA contrast{};
    contrast.cbSize = sizeof(contrast);
    return SystemParametersInfoA(SPI_GETHIGHCONTRAST, sizeof(contrast), &contrast, 0) != FALSE &&
           (contrast.dwFlags & HCF_HIGHCONTRASTON) != 0;
}

std::optional<Color> ForeColorOf(const Control& control) {
    if (!IsHighContrast()) return control.ForeColor();
    return control.ForeColor() == kLinkColor ? std::optional(GetSysColor(COLOR_HOTLIGHT)) : std::nullopt;
}

std::optional<Color> BackColorOf(const Control& control) {
    return IsHighContrast() ? std::nullopt : control.BackColor();
}

std::optional<Color> BackColorOf(const Form& form) {
    return IsHighContrast() ? std::nullopt : form.BackColor();
}

void SystemColorsChanged(const Form& form) {
    native::ForEachControl(form, [](const Control& control) {
        if (control.window != nullptr) SendMessageA(WindowOf(control), WM_SYSCOLORCHANGE, 0, 0);
    });
}

}  // namespace quirn::win32
