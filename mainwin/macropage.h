#pragma once

#include <array>
#include <functional>
#include <string>

#include "mainwin/page.h"
#include "profile/profile.h"

namespace quirn {

inline constexpr int kMacrosPerSet = 8;

// One of the two pages with eight chat macros each. txtShift(0..7) on "Macros Shift", txtRShift(0..7) on "Macros
// R-Shift".
class MacroPage : public TabPage {
public:
    // firstMacro: the index in Messages of the page's first macro, 1 or 9.
    MacroPage(TabStrip& strip, const char* caption, Profile& profile, int firstMacro, const Edited& edited);

    void Show();
    void Collect();

    ControlArray<TextBox>& Texts() { return txtMacro; }

    std::function<void(TextBox&)> onPercent;  // "%" typed in a macro
    std::function<void()> onImport;

private:
    Profile& profile_;
    int firstMacro_;
    ControlArray<Label> labels_;
    ControlArray<TextBox> txtMacro;
    ControlArray<Button> Command5;
};

}  // namespace quirn
