#pragma once

#include "mainwin/page.h"
#include "profile/profile.h"

namespace quirn {

// The page "Ignore List": the players whose chat is hidden.
class IgnorePage : public TabPage {
public:
    IgnorePage(TabStrip& strip, Profile& profile, Edited edited);

    void Show();
    void Collect();

private:
    bool txtIgnoreAdd_KeyPress(char key);
    bool txtIgnoreAdd_Paste(const std::string& text);
    void AddNames(const std::vector<std::string_view>& names);
    void ShowWhatCanBeDone();
    void Command1_Click();
    void Command2_Click();

    Profile& profile_;
    Edited edited_;
    ListBox lstIgnoreList;
    Label Label12;
    TextBox txtIgnoreAdd;
    Button Command1;
    Button Command2;
};

}  // namespace quirn
