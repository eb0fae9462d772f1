#include "mainwin/ignorepage.h"

#include "platform/form.h"
#include "platform/text.h"

namespace quirn {

namespace {

// clang-format off
//                     left   top  width  height
constexpr Bounds kList{ 120,  150,  3600, 3900};
constexpr Bounds kHint{3960,  150,  4080,  420};
constexpr Bounds kName{3960,  660,  4080, kRowHeight};
constexpr Bounds kAdd{ 3960, 1080,  1440, kButtonHeight};
constexpr Bounds kRemove{3960, 1530, 1440, kButtonHeight};
// clang-format on

}  // namespace

IgnorePage::IgnorePage(TabStrip& strip, Profile& profile, Edited edited)
    : TabPage(strip, "Ignore List"),
      profile_(profile),
      edited_(std::move(edited)),
      lstIgnoreList(*this, kList, ListStyle::Extended),
      Label12(*this, kHint, "Use this area to edit your IGNORE.TXT file."),
      txtIgnoreAdd(*this, kName),
      Command1(*this, kAdd, "<--- Add"),
      Command2(*this, kRemove, "---> Remove") {
    txtIgnoreAdd.onKeyPress = [this](char key) { return txtIgnoreAdd_KeyPress(key); };
    Command1.onClick = [this] { Command1_Click(); };
    Command2.onClick = [this] { Command2_Click(); };
    lstIgnoreList.onKeyDown = [this](int key) {
        if (key != kKeyDelete) return false;
        Command2_Click();
        return true;
    };
}

void IgnorePage::Show() {
    lstIgnoreList.SetItems(profile_.IgnoreList);
}

void IgnorePage::Collect() {
    profile_.IgnoreList = lstIgnoreList.Items();
}

bool IgnorePage::txtIgnoreAdd_KeyPress(char key) {
    if (key != kKeyEnter) return false;
    Command1_Click();
    return true;
}

void IgnorePage::Command1_Click() {
    const std::string name(Trim(txtIgnoreAdd.Text()));
    if (name.empty()) return;
    lstIgnoreList.AddItem(name);
    txtIgnoreAdd.SetText("");
    edited_();  // the list counts, not the box: what is typed there and not added is in no profile
}

void IgnorePage::Command2_Click() {
    if (lstIgnoreList.SelectedItems().empty()) return;
    lstIgnoreList.RemoveSelected();
    edited_();
}

}  // namespace quirn
