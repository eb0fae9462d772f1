#include "mainwin/hiddenpage.h"

#include "platform/text.h"

namespace quirn {

namespace {

// clang-format off
//                              left   top  width  height
constexpr Bounds kShowFrameRatePlace{ 240,  240,  7700, kCheckHeight};
constexpr Bounds kForce60Place{      240,  570,  7700, kCheckHeight};
constexpr Bounds kFlickSysMemPlace{  240,  900,  7700, kCheckHeight};
constexpr Bounds kWarning{       240, 1500,  7700, 1500};
// clang-format on

bool IsOn(const std::string& value) {
    return ToInteger(value).value_or(0) != 0;
}

// A number other than 0 and 1 is shown as checked, also the 2 of a greyed box, and stays that number unless the player
// leaves it unticked; a text that is none is 0. One that is too large stays, and is reported when the game's settings
// are written.
void CollectBox(const CheckBox& box, std::string& value) {
    if (IsOn(value) != (box.Value() != 0)) value = std::to_string(box.Value());
    else if (const auto number = ToInteger(value)) value = std::to_string(*number);
}

}  // namespace

HiddenPage::HiddenPage(TabStrip& strip, Profile& profile, const Edited& edited)
    : TabPage(strip, "Hidden"),
      profile_(profile),
      chkShowFrameRate(*this, kShowFrameRatePlace, "Show Frame Rate (displays framerate info on game screen)"),
      chkForce60(*this, kForce60Place, "Force 60 (forces 60Hz refresh rate)"),
      chkFlickSysMem(*this, kFlickSysMemPlace, "Flick System Memory (your guess is as good as mine)"),
      // The spelling and the double blanks are meant to be so.
      Label14(*this, kWarning,
              "WARNING! - Its is NOT recommended that you alter ANY of these settings.  The ability to alter these "
              "settings are included here for completeness.  If you break Subspace because you have changed these "
              "settings, neither Virgin Interactive(tm) or the author of this program will provide you with support.  "
              "YOU HAVE BEEN WARNED!") {
    for (CheckBox* box : {&chkShowFrameRate, &chkForce60, &chkFlickSysMem}) box->onClick = edited;
    Label14.SetForeColor(Rgb(192, 0, 0));
}

void HiddenPage::Show() {
    const Section& hidden = profile_.HiddenOptions;
    chkForce60.SetValue(IsOn(hidden.Value(kForce60)) ? 1 : 0);
    chkShowFrameRate.SetValue(IsOn(hidden.Value(kShowFrameRate)) ? 1 : 0);
    chkFlickSysMem.SetValue(IsOn(hidden.Value(kFlickSystemMemory)) ? 1 : 0);
}

void HiddenPage::Collect() {
    Section& hidden = profile_.HiddenOptions;
    CollectBox(chkFlickSysMem, hidden.Value(kFlickSystemMemory));
    CollectBox(chkForce60, hidden.Value(kForce60));
    CollectBox(chkShowFrameRate, hidden.Value(kShowFrameRate));
}

}  // namespace quirn
