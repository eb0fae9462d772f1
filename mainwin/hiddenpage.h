#pragma once

#include <array>

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

    // By the places of their settings.
    static_assert(setting::kHiddenBoxes.size() == 3, "a new box is a member too");
    std::array<CheckBox*, setting::kHiddenBoxes.size()> boxes_{&chkShowFrameRate, &chkForce60, &chkFlickSysMem};
};

}  // namespace quirn
