#include "mainwin/hiddenpage.h"

#include "platform/text.h"

namespace quirn {

namespace {

// clang-format off
//                              left   top  width  height
constexpr Grid kBoxes{{          240,  240,  7700, kCheckHeight}, 0, 330, 4};
constexpr Bounds kWarning{       240, 1500,  7700, 1500};
// clang-format on

static_assert(kBoxes.Cell(setting::kHiddenBoxes.size() - 1).Bottom() <= kWarning.top);

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
    : TabPage(strip, setting::NameOf(setting::Page::Hidden)),
      profile_(profile),
      chkShowFrameRate(*this, kBoxes.Cell(0), setting::kHiddenBoxes[0]->caption),
      chkForce60(*this, kBoxes.Cell(1), setting::kHiddenBoxes[1]->caption),
      chkFlickSysMem(*this, kBoxes.Cell(2), setting::kHiddenBoxes[2]->caption),
      // The spelling and the double spaces are meant to be so.
      Label14(*this, kWarning,
              "WARNING! - Its is NOT recommended that you alter ANY of these settings.  The ability to alter these "
              "settings are included here for completeness.  If you break Subspace because you have changed these "
              "settings, neither Virgin Interactive(tm) or the author of this program will provide you with support.  "
              "YOU HAVE BEEN WARNED!") {
    for (CheckBox* box : boxes_) box->onClick = edited;
    Label14.SetForeColor(Rgb(192, 0, 0));
}

void HiddenPage::Show() {
    for (size_t i = 0; i < boxes_.size(); ++i)
        boxes_[i]->SetValue(IsOn(profile_.Value(*setting::kHiddenBoxes[i])) ? 1 : 0);
}

void HiddenPage::Collect() {
    for (size_t i = 0; i < boxes_.size(); ++i) CollectBox(*boxes_[i], profile_.Value(*setting::kHiddenBoxes[i]));
}

}  // namespace quirn
