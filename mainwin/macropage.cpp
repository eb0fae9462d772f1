#include "mainwin/macropage.h"

namespace quirn {

namespace {

// clang-format off
//                      left   top  width  height
constexpr Grid kLabels{{ 120,  195,  1140, kLabelHeight}, 0, 420, kMacrosPerSet};
constexpr Grid kTexts{{ 1290,  150,  6810, kRowHeight}, 0, 420, kMacrosPerSet};
constexpr Bounds kImport{120, 3660,  2280, kButtonHeight};
// clang-format on

}  // namespace

MacroPage::MacroPage(TabStrip& strip, const char* caption, Profile& profile, int firstMacro, const Edited& edited)
    : TabPage(strip, caption), profile_(profile), firstMacro_(firstMacro) {
    for (size_t i = 0; i < kMacrosPerSet; ++i) {
        const SettingRow& row = setting::RowAt(setting::Group::Messages, firstMacro + static_cast<int>(i));
        labels_.emplace_back(*this, kLabels.Cell(i), row.caption);
        TextBox& text = txtMacro.emplace_back(*this, kTexts.Cell(i));
        text.onChange = edited;
        text.onKeyPress = [this, &text](char key) {
            if (key != '%' || !onPercent) return false;
            onPercent(text);
            return true;
        };
    }
    Command5.emplace_back(*this, kImport, "Import SS Macro File").onClick = [this] {
        if (onImport) onImport();
    };
}

void MacroPage::Show() {
    for (int i = 0; i < kMacrosPerSet; ++i)
        txtMacro[static_cast<size_t>(i)].SetText(profile_.Messages.Value(firstMacro_ + i));
}

void MacroPage::Collect() {
    for (int i = 0; i < kMacrosPerSet; ++i)
        profile_.Messages.Value(firstMacro_ + i) = txtMacro[static_cast<size_t>(i)].Text();
}

}  // namespace quirn
