#include "mainwin/frmconfig.h"

#include "platform/measures.h"

namespace quirn {

namespace {

constexpr int kWidth = 4800;
constexpr int kHeight = 1890;

// clang-format off
//                      left   top  width  height
constexpr Bounds kLabel{ 180,  180,  3300,  225};
constexpr Bounds kCode{  180,  450,  4320,  300};
constexpr Bounds kOk{   1620,  930,  1380, kButtonHeight};
constexpr Bounds kCancel{3120, 930,  1380, kButtonHeight};
// clang-format on

}  // namespace

frmConfig::frmConfig()
    : Form(FormBorder::Dialog, kWidth, kHeight),
      Label1(*this, kLabel, "Enter advanced settings code:"),
      mskConfigCode(*this, kCode, "&&&&-&&&&-&&&&"),
      Command1(*this, kOk, "OK"),
      Command2(*this, kCancel, "Cancel") {
    SetCaption("Advanced Settings Code");
    SetButtons(&Command1, &Command2);
    Command1.onClick = [this] { Command1_Click(); };
    Command2.onClick = [this] { Unload(); };
}

void frmConfig::Command1_Click() {
    code_ = mskConfigCode.Text();
    Unload();
}

}  // namespace quirn
