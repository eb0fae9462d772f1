#include "mainwin/frmfriendcopy.h"

#include "platform/measures.h"

namespace quirn {

namespace {

constexpr int kWidth = 4680;
constexpr int kHeight = 2985;

// clang-format off
//                       left   top  width  height
constexpr Bounds kText{   180,  180,  4320, kLabelHeight};
constexpr Grid kBoxes{{   300,  465,  4200, kCheckHeight}, 0, 300, 6};
constexpr Bounds kSave{  1620, 2460,  1380, kButtonHeight};
constexpr Bounds kCancel{3120, 2460,  1380, kButtonHeight};
// clang-format on

}  // namespace

frmFriendCopy::frmFriendCopy()
    : Form(FormBorder::Dialog, kWidth, kHeight),
      Label1(*this, kText, "Leave out of the copy:"),
      chkPassword(*this, kBoxes.Cell(0), "Pilot password"),
      chkProxy(*this, kBoxes.Cell(1), "Pro&xy address"),
      chkIgnore(*this, kBoxes.Cell(2), "&Ignore list"),
      chkWaves(*this, kBoxes.Cell(3), "&Wave messages"),
      chkPilot(*this, kBoxes.Cell(4), "Pilot &name"),
      chkMacros(*this, kBoxes.Cell(5), "&Macros"),
      cmdSave(*this, kSave, "&Save As..."),
      cmdCancel(*this, kCancel, "Cancel") {
    SetCaption("Copy Without Password");
    SetButtons(&cmdSave, &cmdCancel);
    for (CheckBox* box : {&chkPassword, &chkProxy, &chkIgnore, &chkWaves}) box->SetValue(1);
    chkPassword.SetEnabled(false);
    cmdSave.onClick = [this] { cmdSave_Click(); };
    cmdCancel.onClick = [this] { Unload(); };
}

std::optional<LeftOut> frmFriendCopy::Ask(Form& owner) {
    ShowModal(owner);
    return leftOut_;
}

void frmFriendCopy::cmdSave_Click() {
    leftOut_ = LeftOut{.proxy = chkProxy.Value() == 1,
                       .ignoreList = chkIgnore.Value() == 1,
                       .waves = chkWaves.Value() == 1,
                       .pilotName = chkPilot.Value() == 1,
                       .macros = chkMacros.Value() == 1};
    Unload();
}

}  // namespace quirn
