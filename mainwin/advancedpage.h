#pragma once

#include "game/configcode.h"
#include "mainwin/page.h"
#include "profile/profile.h"

namespace quirn {

// The page "Advanced": what is kept in system memory, and the config code that packs these switches.
class AdvancedPage : public TabPage {
public:
    AdvancedPage(TabStrip& strip, Profile& profile, Edited edited);

    void Show();
    void Collect();

    // chkSettings(17), Software Emulation, which the main window binds with the others of its kind.
    CheckBox& EmulatorBox() { return chkEmulator; }

private:
    AdvancedStates States() const;
    void chkAdvanced_MouseUp();
    void cmdConfigCode_Click();

    Profile& profile_;
    Edited edited_;
    Label lblGamma;
    TextBox txtGamma;
    UpDown UpDown4;
    CheckBox chkEmulator;
    Label Label16;
    Button cmdConfigCode;
    Frame Frame2;
    ControlArray<CheckBox> chkAdvanced;
};

}  // namespace quirn
