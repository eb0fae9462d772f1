#include "mainwin/advancedpage.h"

#include "mainwin/bindingtables.h"
#include "mainwin/frmconfig.h"
#include "platform/clipboard.h"
#include "platform/dialogs.h"
#include "platform/form.h"
#include "platform/text.h"

namespace quirn {

namespace {

// clang-format off
//                             left   top  width  height
constexpr Bounds kGammaLabel{   120,  165,  2460, kLabelHeight};
constexpr Bounds kGamma{       2610,  120,   450, kRowHeight};
constexpr Bounds kEmulator{    3450,  150,  1740, kCheckHeight};
constexpr Bounds kCodeLabel{   5250,  165,  1050, kLabelHeight};
constexpr Bounds kCode{        6315,   90,  1785, kButtonHeight};
constexpr Bounds kFrame{        120,  495,  7980, 3615};
constexpr Grid kBoxes{{         120,  240,  1890, kCheckHeight}, 1965, 238, 14};  // in the frame
// clang-format on
static_assert(Bounds{0, 0, kFrame.width, kFrame.height}.Holds(kBoxes.Cell(setting::kAdvancedSwitches.size() - 1)));

constexpr const SettingRow& kEmulatorRow = setting::Find(setting::Group::Options, "Emulator");
constexpr const SettingRow& kGammaRow = setting::Find(setting::Group::Advanced, "GammaPercent");

// The position code and ":" before the name of the setting.
constexpr size_t kTagPrefix = 3;

}  // namespace

AdvancedPage::AdvancedPage(TabStrip& strip, Profile& profile, Edited edited)
    : TabPage(strip, setting::NameOf(setting::Page::Advanced)),
      profile_(profile),
      edited_(std::move(edited)),
      lblGamma(*this, kGammaLabel, kGammaRow.caption),
      txtGamma(*this, kGamma),
      UpDown4(*this, txtGamma, kGammaRow.low, kGammaRow.high),
      chkEmulator(*this, kEmulator, kEmulatorRow.caption),
      Label16(*this, kCodeLabel, "Config Code:"),
      cmdConfigCode(*this, kCode, ""),
      Frame2(*this, kFrame, "Force Into System Memory") {
    for (const SettingRow* row : setting::kAdvancedSwitches) {
        CheckBox& box = chkAdvanced.emplace_back(Frame2, kBoxes.Cell(static_cast<size_t>(row->place)), row->caption);
        box.Tag = AdvancedTag(*row);
        box.onClick = edited_;
        box.onMouseUp = [this] { chkAdvanced_MouseUp(); };
    }
    chkEmulator.Tag = kEmulatorRow.name;
    chkEmulator.onClick = edited_;
    txtGamma.onChange = edited_;
    cmdConfigCode.SetToolTip("A right click copies the code");
    cmdConfigCode.onContextMenu = [this] { ShowError(SetClipboardText(EncodeConfigCode(States()))); };
    cmdConfigCode.onClick = [this] { cmdConfigCode_Click(); };
}

void AdvancedPage::Show() {
    for (CheckBox& box : chkAdvanced)
        box.SetValue(AdvancedSetting(profile_, box.Tag.substr(kTagPrefix), SettingMode::CheckState));
    txtGamma.SetText(profile_.Advanced.Value(kGammaPercent));
    cmdConfigCode.SetText(EncodeConfigCode(States()));
}

void AdvancedPage::Collect() {
    for (const CheckBox& box : chkAdvanced) {
        const int setting = AdvancedSetting(profile_, box.Tag.substr(kTagPrefix), SettingMode::Index);
        profile_.Advanced.Value(setting) = std::to_string(box.Value());
    }
    profile_.Advanced.Value(kGammaPercent) = txtGamma.Text();
}

AdvancedStates AdvancedPage::States() const {
    AdvancedStates states{};
    for (size_t i = 0; i < states.size(); ++i) states[i] = chkAdvanced[i].Value();
    return states;
}

void AdvancedPage::chkAdvanced_MouseUp() {
    cmdConfigCode.SetText(EncodeConfigCode(States()));
}

void AdvancedPage::cmdConfigCode_Click() {
    frmConfig dialog(States());
    dialog.ShowModal(Owner());
    const std::optional<std::string>& text = dialog.Code();
    if (!text) return;
    const AdvancedStates before = States();
    AdvancedStates states = before;
    DecodeConfigCode(*text, states);
    for (size_t i = 0; i < states.size(); ++i) chkAdvanced[i].SetValue(states[i]);
    cmdConfigCode.SetText(DoubleAmpersands(AcceptedConfigCode(*text)));  // any character may be typed
    if (states != before) edited_();
}

}  // namespace quirn
