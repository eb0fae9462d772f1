#include "mainwin/frmrename.h"

#include "platform/dialogs.h"
#include "platform/measures.h"
#include "platform/text.h"

namespace quirn {

namespace {

constexpr int kWidth = 4680;
constexpr int kHeight = 1440;

// clang-format off
//                       left   top  width  height
constexpr Bounds kName{   180,  180,  4320, kLabelHeight};
constexpr Bounds kText{   180,  450,  4320, kRowHeight};
constexpr Bounds kOk{    1620,  915,  1380, kButtonHeight};
constexpr Bounds kCancel{3120,  915,  1380, kButtonHeight};
// clang-format on

}  // namespace

frmRename::frmRename(const std::string& name)
    : Form(FormBorder::Dialog, kWidth, kHeight),
      old_(name),
      Label1(*this, kName, "&New name of the file:"),
      txtName(*this, kText),
      cmdOk(*this, kOk, "OK"),
      cmdCancel(*this, kCancel, "Cancel") {
    SetCaption("Rename " + name);
    SetButtons(&cmdOk, &cmdCancel);
    txtName.SetText(name);
    onActivate = [this] { txtName.SelectAll(); };
    cmdOk.onClick = [this] { cmdOk_Click(); };
    cmdCancel.onClick = [this] { Unload(); };
}

std::optional<std::string> frmRename::Ask(Form& owner) {
    ShowModal(owner);
    return name_;
}

void frmRename::cmdOk_Click() {
    const std::string name(Trim(txtName.Text()));
    if (name.empty() || name.ends_with('.') || name.find_first_of("\\/:*?\"<>|") != std::string::npos) {
        ShowMessage(
            "A file cannot have this name. It must not be empty, end with a point or hold one of \\ / : * ? \" < > |",
            kExclamation);
        txtName.SetFocus();
        return;
    }
    if (name != old_) name_ = name;
    Unload();
}

}  // namespace quirn
