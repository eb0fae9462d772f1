#include "mainwin/optionspage.h"

#include "mainwin/bindingtables.h"

namespace quirn {

namespace {

// clang-format off
//                             left   top  width  height
constexpr Bounds kGroup{        120, 1800,  1260, 1065};  // the first of two rows of three
constexpr int    kGroupStepX =  1350;
constexpr int    kGroupStepY =  1140;
constexpr Grid kGroupButtons{{   75,  240,  1155,  240}, 0, 255, 3};  // in its frame

constexpr Grid kNumberLabels{{  120,  210,  1860, kLabelHeight}, 0, 390, 4};
constexpr Grid kNumbers{{      2040,  165,   600, kRowHeight}, 0, 390, 4};

constexpr Bounds kMisc{        4200,  120,  3900, 3900};
constexpr Grid kMiscBoxes{{     120,  255,  1860,  240}, 1890, 277, 13};  // in its frame
// clang-format on

}  // namespace

OptionsPage::OptionsPage(TabStrip& strip, Profile& profile, const Edited& edited)
    : TabPage(strip, "Options"),
      profile_(profile),
      lblMsgNameLen(*this, kNumberLabels.Cell(0), "Message Name Length :"),
      txtMsgNameLen(*this, kNumbers.Cell(0)),
      lblMusicVolume(*this, kNumberLabels.Cell(1), "Music Volume :"),
      txtMusicVolume(*this, kNumbers.Cell(1)),
      lblMsgLines(*this, kNumberLabels.Cell(2), "Message Lines :"),
      txtMsgLines(*this, kNumbers.Cell(2)),
      lblBounty(*this, kNumberLabels.Cell(3), "Target Bounty :"),
      txtBounty(*this, kNumbers.Cell(3)) {
    UpDown_.emplace_back(*this, txtMsgNameLen, 0, 24);
    UpDown_.emplace_back(*this, txtMusicVolume, 0, 100);
    UpDown_.emplace_back(*this, txtMsgLines, 0, 99);
    UpDown_.emplace_back(*this, txtBounty, 0, 9999);
    for (TextBox* number : {&txtMsgNameLen, &txtMusicVolume, &txtMsgLines, &txtBounty}) number->onChange = edited;

    for (size_t i = 0; i < kOptionGroups.size(); ++i) {
        const int column = static_cast<int>(i) % 3;
        const int row = static_cast<int>(i) / 3;
        Frame& frame = Frame1.emplace_back(*this, kGroup.MovedBy(column * kGroupStepX, row * kGroupStepY),
                                           kOptionGroups[i].caption);
        size_t button = 0;
        for (const char* caption : kOptionGroups[i].buttons)
            buttons_.emplace_back(frame, *groups_[i], kGroupButtons.Cell(button++), caption);
        groups_[i]->onClick = edited;
    }

    Frame& misc = Frame1.emplace_back(*this, kMisc, "Miscellaneous");
    size_t position = 0;
    for (size_t i = 0; i < kSettingBoxes.size(); ++i) {
        if (i == kEmulatorBox || i == kDistinguishBox) continue;
        CheckBox& box = chkSettings.emplace_back(misc, kMiscBoxes.Cell(position++), kSettingBoxes[i].caption);
        box.Tag = kSettingBoxes[i].tag;
        box.onClick = edited;
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
