#include "mainwin/ignorepage.h"

#include <set>

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
    lstIgnoreList.SetAccessibleName("Ignored players");
    txtIgnoreAdd.SetAccessibleName("Player to ignore");
    txtIgnoreAdd.onKeyPress = [this](char key) { return txtIgnoreAdd_KeyPress(key); };
    txtIgnoreAdd.onPaste = [this](const std::string& text) { return txtIgnoreAdd_Paste(text); };
    lstIgnoreList.onClick = [this] { ShowWhatCanBeDone(); };
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
    ShowWhatCanBeDone();
}

void IgnorePage::ShowWhatCanBeDone() {
    Command2.SetEnabled(!lstIgnoreList.SelectedItems().empty());
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
    AddNames({name});
    txtIgnoreAdd.SetText("");
}

// Many names at once go straight into the list; one may still be edited in the box.
bool IgnorePage::txtIgnoreAdd_Paste(const std::string& text) {
    std::vector<std::string_view> names = SplitLines(text);
    for (std::string_view& name : names) name = Trim(name);
    std::erase(names, "");
    if (names.size() < 2) return false;
    AddNames(names);
    return true;
}

// Those that are not there yet: the game does not tell capitals apart. The list counts, not the box: what is typed
// there and not added is in no profile.
void IgnorePage::AddNames(const std::vector<std::string_view>& names) {
    std::set<std::string, LessNoCase> known(lstIgnoreList.Items().begin(), lstIgnoreList.Items().end());
    std::vector<std::string> items = lstIgnoreList.Items();
    for (const std::string_view name : names)
        if (known.emplace(name).second) items.emplace_back(name);
    const size_t added = items.size() - lstIgnoreList.Items().size();
    if (added == 0) return;
    if (added == 1) lstIgnoreList.AddItem(items.back());
    else lstIgnoreList.SetItems(std::move(items));
    ShowWhatCanBeDone();
    edited_();
}

void IgnorePage::Command2_Click() {
    if (lstIgnoreList.SelectedItems().empty()) return;
    lstIgnoreList.RemoveSelected();
    ShowWhatCanBeDone();
    edited_();
}

}  // namespace quirn
