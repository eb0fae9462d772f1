#include "mainwin/optionspage.h"

#include <algorithm>

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

constexpr Bounds GroupPlace(int place) {
    return kGroup.MovedBy(place % 3 * kGroupStepX, place / 3 * kGroupStepY);
}

// Software Emulation and Distinguish stand on other pages.
constexpr bool IsHere(const SettingRow* row) {
    return row->page == setting::Page::Options;
}
constexpr auto kBoxCount = std::count_if(setting::kSettingBoxes.begin(), setting::kSettingBoxes.end(), IsHere);

static_assert(Bounds{0, 0, kMisc.width, kMisc.height}.Holds(kMiscBoxes.Cell(kBoxCount - 1)));

}  // namespace

OptionsPage::OptionsPage(TabStrip& strip, Profile& profile, const Edited& edited)
    : TabPage(strip, setting::NameOf(setting::Page::Options)),
      profile_(profile),
      lblMsgNameLen(*this, kNumberLabels.Cell(0), setting::kNumbers[0]->caption),
      txtMsgNameLen(*this, kNumbers.Cell(0)),
      lblMusicVolume(*this, kNumberLabels.Cell(1), setting::kNumbers[1]->caption),
      txtMusicVolume(*this, kNumbers.Cell(1)),
      lblMsgLines(*this, kNumberLabels.Cell(2), setting::kNumbers[2]->caption),
      txtMsgLines(*this, kNumbers.Cell(2)),
      lblBounty(*this, kNumberLabels.Cell(3), setting::kNumbers[3]->caption),
      txtBounty(*this, kNumbers.Cell(3)) {
    for (const SettingRow* row : setting::kNumbers) {
        TextBox& number = *numbers_[static_cast<size_t>(row->place)];
        UpDown_.emplace_back(*this, number, row->low, row->high);
        number.onChange = edited;
    }

    for (const SettingRow* row : setting::kOptionGroups) {
        Frame& frame = Frame1.emplace_back(*this, GroupPlace(row->place), row->caption);
        OptionGroup& group = *groups_[static_cast<size_t>(row->place)];
        for (size_t i = 0; i < row->words.size(); ++i)
            buttons_.emplace_back(frame, group, kGroupButtons.Cell(i), row->words[i]);
        group.onClick = edited;
    }

    Frame& misc = Frame1.emplace_back(*this, kMisc, "Miscellaneous");
    for (const SettingRow* row : setting::kSettingBoxes) {
        if (!IsHere(row)) continue;
        CheckBox& box = chkSettings.emplace_back(misc, kMiscBoxes.Cell(chkSettings.size()), row->caption);
        box.Tag = row->name;
        box.onClick = edited;
    }
}

void OptionsPage::Show() {
    for (size_t i = 0; i < setting::kOptionGroups.size(); ++i)
        groups_[i]->Select(IndexOf(profile_.Value(*setting::kOptionGroups[i])));
    for (size_t i = 0; i < setting::kNumbers.size(); ++i) numbers_[i]->SetText(profile_.Value(*setting::kNumbers[i]));
}

void OptionsPage::Collect() {
    for (size_t i = 0; i < setting::kOptionGroups.size(); ++i) {
        std::string& value = profile_.Value(*setting::kOptionGroups[i]);
        value = SelectedValue(groups_[i]->Selected(), value);
    }
    for (size_t i = 0; i < setting::kNumbers.size(); ++i) profile_.Value(*setting::kNumbers[i]) = numbers_[i]->Text();
}

}  // namespace quirn
