#include "mainwin/frmconfig.h"

#include "platform/measures.h"

namespace quirn {

namespace {

constexpr int kWidth = 4680;
constexpr int kHeight = 1755;

// clang-format off
//                      left   top  width  height
constexpr Bounds kLabel{ 180,  180,  3300,  225};
constexpr Bounds kCode{  180,  450,  4320,  300};
constexpr Bounds kChanges{180, 825,  4320, kLabelHeight};
constexpr Bounds kOk{   1620, 1230,  1380, kButtonHeight};
constexpr Bounds kCancel{3120, 1230, 1380, kButtonHeight};
// clang-format on

constexpr size_t kGroup = 4;  // symbols between two dashes

}  // namespace

frmConfig::frmConfig(const AdvancedStates& states)
    : Form(FormBorder::Dialog, kWidth, kHeight),
      states_(states),
      Label1(*this, kLabel, "Enter advanced settings code:"),
      mskConfigCode(*this, kCode, "&&&&-&&&&-&&&&"),
      lblChanges(*this, kChanges, ""),
      Command1(*this, kOk, "OK"),
      Command2(*this, kCancel, "Cancel") {
    SetCaption("Advanced Settings Code");
    SetButtons(&Command1, &Command2);
    mskConfigCode.SetText(EncodeConfigCode(states));
    mskConfigCode.onChange = [this] { ShowWhatChanges(); };
    mskConfigCode.onPaste = [this](const std::string& text) { return PasteCode(text); };
    // Selected, so that it can be copied, and typing or pasting replaces it.
    onActivate = [this] { mskConfigCode.SelectAll(); };
    ShowWhatChanges();
    Command1.onClick = [this] { Command1_Click(); };
    Command2.onClick = [this] { Unload(); };
}

void frmConfig::ShowWhatChanges() {
    const std::string& code = mskConfigCode.Text();
    if (code.find('_') != std::string::npos) return lblChanges.SetText("Places left empty count as 0");
    lblChanges.SetText("Changes " + std::to_string(CountChanges(code, states_)) + " of " +
                       std::to_string(kSwitchesInCode) + " switches");
}

// A whole code, however a message has broken or grouped it.
bool frmConfig::PasteCode(const std::string& text) {
    std::string code = text;
    std::erase_if(code, [](char c) { return c == '-' || static_cast<unsigned char>(c) <= ' '; });
    if (code.size() != 3 * kGroup) return false;
    mskConfigCode.SetText(code.substr(0, kGroup) + "-" + code.substr(kGroup, kGroup) + "-" + code.substr(2 * kGroup));
    ShowWhatChanges();
    return true;
}

void frmConfig::Command1_Click() {
    code_ = mskConfigCode.Text();
    Unload();
}

}  // namespace quirn
