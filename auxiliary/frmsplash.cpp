#include "auxiliary/frmsplash.h"

#include "platform/version.h"
#include "resources/resource.h"
#include "resources/spacecolors.h"

namespace quirn {

namespace {

constexpr int kWidth = 5700;
constexpr int kHeight = 1830;  // the picture's, and the thin border

// clang-format off
//                             left  top  width  height
constexpr Bounds kPicturePlace{   0,    0, 1800, 1800};
constexpr Bounds kNamePlace{   1980,  300, 3600,  600};
constexpr Bounds kTitlePlace{  1980,  960, 3600,  270};
constexpr Bounds kVersionPlace{1980, 1260, 3600,  240};
// clang-format on

}  // namespace

frmSplash::frmSplash()
    : Form(FormBorder::None, kWidth, kHeight),
      Picture1(*this, kPicturePlace, IDI_SPLASH),
      lblName(*this, kNamePlace, kTitle),
      lblTitle(*this, kTitlePlace, kFullTitle),
      lblVersion(*this, kVersionPlace, "Version " + VersionText()) {
    SetBackColor(kSpaceBackground);
    lblName.SetFont({"Arial Black", 24});
    lblName.SetForeColor(kSpaceGold);
    lblTitle.SetFont({"Arial", 11, true});
    for (Label* label : {&lblTitle, &lblVersion}) label->SetForeColor(kSpaceText);
    onKeyPress = [this](char) { Unload(); };
}

}  // namespace quirn
