#pragma once

#include "mainwin/page.h"
#include "profile/program.h"

namespace quirn {

// The page "Hidden": three switches that nobody should need.
class HiddenPage : public TabPage {
public:
    HiddenPage(TabStrip& strip, Program& program, Edited edited);

    void Show();
    void Collect();

private:
    Program& program_;
    CheckBox chkShowFrameRate, chkForce60, chkFlickSysMem;
    Label Label14;
};

}  // namespace quirn
