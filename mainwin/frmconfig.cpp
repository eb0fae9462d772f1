#include "mainwin/frmconfig.h"

namespace quirn {

namespace {

constexpr int kWidth = 4800;
constexpr int kHeight = 1890;

// clang-format off
//                      left   top  width  height
constexpr Bounds kLabel{ 180,  180,  3300,  225};
constexpr Bounds kCode{  180,  450,  4320,  300};
constexpr Bounds kOk{   1620,  930,  1380,  345};
constexpr Bounds kCancel{3120, 930,  1380,  345};
// clang-format on

class frmConfig : public Form {
public:
    frmConfig()
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

    std::optional<std::string> code;

private:
    void Command1_Click() {
        code = mskConfigCode.Text();
        Unload();
    }

    Label Label1;
    MaskedBox mskConfigCode;
    Button Command1, Command2;
};

}  // namespace

std::optional<std::string> AskConfigCode(Form& owner) {
    frmConfig dialog;
    dialog.ShowModal(owner);
    return dialog.code;
}

}  // namespace quirn
