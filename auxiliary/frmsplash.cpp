#include "auxiliary/frmsplash.h"

#include "platform/version.h"
#include "resources/look.h"
#include "resources/resource.h"

namespace quirn {

namespace {

constexpr int kWidth = 4800;
constexpr int kHeight = 1800;

//                               left  top  width  height
constexpr Bounds kPicturePlace{240, 240, 1280, 1280};
constexpr Bounds kTitlePlace{1680, 480, 3000, 600};
constexpr Bounds kVersionPlace{1680, 1110, 3000, 240};

}  // namespace

frmSplash::frmSplash()
    : Form(FormBorder::None, kWidth, kHeight),
      Picture1(*this, kPicturePlace, IDI_QUIRN),
      lblTitle(*this, kTitlePlace, kFullTitle),
      lblVersion(*this, kVersionPlace, VersionTitle()) {
    SetBackColor(kSpaceBackground);
    lblTitle.SetFont({"Arial", 12, true});
    lblTitle.SetForeColor(Rgb(255, 255, 255));
    lblVersion.SetForeColor(kSpaceText);
    onKeyPress = [this](char) { Unload(); };
}

}  // namespace quirn
