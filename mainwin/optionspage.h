#pragma once

#include <array>

#include "mainwin/page.h"
#include "profile/profile.h"

namespace quirn {

// The page "Options": what the game shows and plays. Its check boxes chkSettings(n) carry the name of their setting as
// their tag; the main window binds them together with the two that stand on other pages.
class OptionsPage : public TabPage {
public:
    OptionsPage(TabStrip& strip, Profile& profile, const Edited& edited);

    void Show();
    void Collect();

    ControlArray<CheckBox>& Boxes() { return chkSettings; }

private:
    Profile& profile_;
    ControlArray<Frame> Frame1;  // (0..5) the option groups, (6) Miscellaneous
    OptionGroup optWeapon, optStatus, optEnergy, optRadar, optFont, optSound;
    ControlArray<OptionButton> buttons_;
    Label lblMsgNameLen;
    TextBox txtMsgNameLen;
    Label lblMusicVolume;
    TextBox txtMusicVolume;
    Label lblMsgLines;
    TextBox txtMsgLines;
    Label lblBounty;
    TextBox txtBounty;
    ControlArray<UpDown> UpDown_;
    ControlArray<CheckBox> chkSettings;

    // By the places of their settings.
    static_assert(setting::kNumbers.size() == 4 && setting::kOptionGroups.size() == 6, "the page has no more room");
    std::array<TextBox*, setting::kNumbers.size()> numbers_{&txtMsgNameLen, &txtMusicVolume, &txtMsgLines, &txtBounty};
    std::array<OptionGroup*, setting::kOptionGroups.size()> groups_{&optWeapon, &optStatus, &optEnergy,
                                                                    &optRadar,  &optFont,   &optSound};
};

}  // namespace quirn
