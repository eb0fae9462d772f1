#pragma once

#include "mainwin/page.h"
#include "profile/profile.h"

namespace quirn {

// The page "Hidden": three switches that nobody should need.
class HiddenPage : public TabPage {
public:
    HiddenPage(TabStrip& strip, Profile& profile, const Edited& edited);

    void Show();
    void Collect();

private:
    Profile& profile_;
    CheckBox chkShowFrameRate, chkForce60, chkFlickSysMem;
    Label Label14;
};

}  // namespace quirn
