#include "mainwin/optionspage.h"

#include "mainwin/bindingtables.h"

namespace quirn {

namespace {

// clang-format off
//                             left   top  width  height
constexpr Bounds kGroup{        120, 1800,  1260, 1065};  // the first of two rows of three
constexpr int    kGroupStepX =  1350;
constexpr int    kGroupStepY =  1140;
constexpr Bounds kGroupButton{   75,  240,  1155,  240};  // in its frame
constexpr int    kGroupButtonStep = 255;

constexpr Bounds kNumberLabel{  120,  210,  1860,  kLabelHeight};
constexpr Bounds kNumber{      2040,  165,   600,  kRowHeight};
constexpr int    kNumberStep =  390;

constexpr Bounds kMisc{        4200,  120,  3900, 3900};
constexpr Bounds kMiscBox{      120,  255,  1860, 240};   // in its frame
constexpr int    kMiscStepX =  1890;
constexpr int    kMiscStepY =   277;
constexpr int    kMiscRows =     13;
// clang-format on

constexpr Bounds NumberRow(Bounds place, int row) {
    place.top += row * kNumberStep;
    return place;
}

}  // namespace

OptionsPage::OptionsPage(TabStrip& strip, Profile& profile, const Edited& edited)
    : TabPage(strip, "Options"),
      profile_(profile),
      lblMsgNameLen(*this, NumberRow(kNumberLabel, 0), "Message Name Length :"),
      txtMsgNameLen(*this, NumberRow(kNumber, 0)),
      lblMusicVolume(*this, NumberRow(kNumberLabel, 1), "Music Volume :"),
      txtMusicVolume(*this, NumberRow(kNumber, 1)),
      lblMsgLines(*this, NumberRow(kNumberLabel, 2), "Message Lines :"),
      txtMsgLines(*this, NumberRow(kNumber, 2)),
      lblBounty(*this, NumberRow(kNumberLabel, 3), "Target Bounty :"),
      txtBounty(*this, NumberRow(kNumber, 3)) {
    UpDown_.emplace_back(*this, txtMsgNameLen, 0, 24);
    UpDown_.emplace_back(*this, txtMusicVolume, 0, 100);
    UpDown_.emplace_back(*this, txtMsgLines, 0, 99);
    UpDown_.emplace_back(*this, txtBounty, 0, 9999);
    for (TextBox* number : {&txtMsgNameLen, &txtMusicVolume, &txtMsgLines, &txtBounty}) number->onChange = edited;

    for (size_t i = 0; i < kOptionGroups.size(); ++i) {
        const int column = static_cast<int>(i) % 3;
        const int row = static_cast<int>(i) / 3;
        Frame& frame = Frame1.emplace_back(
            *this,
            Bounds{kGroup.left + column * kGroupStepX, kGroup.top + row * kGroupStepY, kGroup.width, kGroup.height},
            kOptionGroups[i].caption);
        Bounds place = kGroupButton;
        for (const char* caption : kOptionGroups[i].buttons) {
            buttons_.emplace_back(frame, *groups_[i], place, caption);
            place.top += kGroupButtonStep;
        }
        groups_[i]->onClick = edited;
    }

    Frame& misc = Frame1.emplace_back(*this, kMisc, "Miscellaneous");
    int position = 0;
    for (size_t i = 0; i < kSettingBoxes.size(); ++i) {
        if (i == kEmulatorBox || i == kDistinguishBox) continue;
        const Bounds place{kMiscBox.left + position / kMiscRows * kMiscStepX,
                           kMiscBox.top + position % kMiscRows * kMiscStepY, kMiscBox.width, kMiscBox.height};
        CheckBox& box = chkSettings.emplace_back(misc, place, kSettingBoxes[i].caption);
        box.Tag = kSettingBoxes[i].tag;
        box.onClick = edited;
        ++position;
    }
}

void OptionsPage::Show() {
    for (size_t i = 0; i < kOptionGroups.size(); ++i) {
        const int setting = OptionsSetting(profile_, kOptionGroups[i].setting, SettingMode::Index);
        groups_[i]->Select(IndexOf(profile_.Options.Value(setting)));
    }
    txtMsgLines.SetText(profile_.Options.Value(kMessageHistorySize));
    txtBounty.SetText(profile_.Options.Value(kTargetBounty));
    txtMusicVolume.SetText(profile_.Options.Value(kMusicVolume));
    txtMsgNameLen.SetText(profile_.Options.Value(kMessageNameLen));
}

void OptionsPage::Collect() {
    for (size_t i = 0; i < kOptionGroups.size(); ++i) {
        std::string& value =
            profile_.Options.Value(OptionsSetting(profile_, kOptionGroups[i].setting, SettingMode::Index));
        value = SelectedValue(groups_[i]->Selected(), value);
    }
    profile_.Options.Value(kMessageHistorySize) = txtMsgLines.Text();
    profile_.Options.Value(kTargetBounty) = txtBounty.Text();
    profile_.Options.Value(kMusicVolume) = txtMusicVolume.Text();
    profile_.Options.Value(kMessageNameLen) = txtMsgNameLen.Text();
}

}  // namespace quirn
