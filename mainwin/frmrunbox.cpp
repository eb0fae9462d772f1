#include "mainwin/frmrunbox.h"

#include <iterator>

#include "platform/version.h"
#include "resources/spacecolors.h"

namespace quirn {

namespace {

constexpr int kWidth = 4440;
constexpr int kHeight = 2340;
constexpr int kInner = 4200;

//                             left   top  width  height
// clang-format off
constexpr Bounds kLabel3Place{  120,  120, kInner,  225};
constexpr Bounds kLabel1Place{  120,  390, kInner,  315};
constexpr Bounds kLabel5Place{  120,  720, kInner,  585};
constexpr Bounds kLabel2Place{  120, 1320, kInner,  315};
constexpr Bounds kLabel4Place{  120, 1800, kInner,  420};
// clang-format on

// The colours of the moving labels, one step a tick.
constexpr Color kColors[] = {kSpaceGold,         Rgb(255, 150, 70), Rgb(245, 90, 110),
                             Rgb(190, 110, 245), Rgb(90, 150, 255), Rgb(100, 225, 190)};
constexpr int kColorInterval = 180;  // milliseconds

}  // namespace

frmRunBox::frmRunBox()
    : Form(FormBorder::Dialog, kWidth, kHeight),
      Label1(*this, kLabel1Place, "The Vellick", Alignment::Center),
      Label5(*this, kLabel5Place, "SUBSPACE", Alignment::Center),
      Label2(*this, kLabel2Place, "Manager", Alignment::Center),
      Label3(*this, kLabel3Place, "Thanks for using...", Alignment::Center),
      Label4(*this, kLabel4Place, "SubSpace and its name are copyright and trademark of their owners.",
             Alignment::Center) {
    SetCaption(kTitle);
    SetBackColor(kSpaceBackground);
    Label1.SetFont({"Arial", 14, true});
    Label5.SetFont({"Arial Black", 24});
    Label2.SetFont({"Arial", 14, true});
    for (Label* label : {&Label1, &Label2, &Label3, &Label4}) label->SetForeColor(kSpaceText);

    Timer1.onTimer = [this] { Timer1_Timer(); };
    Timer2.onTimer = [this] { Timer2_Timer(); };
    onLoad = [this] { Form_Load(); };
    onUnload = [this] { return Form_Unload(); };
    onKeyPress = [this](char key) {
        if (key == kKeyEscape) Unload(UnloadMode::CloseBox);
    };
}

void frmRunBox::Begin() {
    Timer1.SetEnabled(false);
    runDone_ = false;
}

void frmRunBox::CloseAfter(int milliseconds) {
    Timer1.SetEnabled(false);
    Timer1.SetInterval(milliseconds);
    Timer1.SetEnabled(true);
}

void frmRunBox::Form_Load() {
    Timer2_Timer();
    Timer2.SetInterval(kColorInterval);
    Timer2.SetEnabled(true);
}

bool frmRunBox::Form_Unload() {
    Timer2.SetEnabled(false);
    runDone_ = true;
    return true;
}

void frmRunBox::Timer1_Timer() {
    runDone_ = true;
    Timer1.SetEnabled(false);
    Unload();
}

void frmRunBox::Timer2_Timer() {
    colorCounter_ = colorCounter_ % static_cast<int>(std::size(kColors)) + 1;
    Label5.SetForeColor(kColors[colorCounter_ - 1]);
    Label3.SetForeColor(kColors[colorCounter_ - 1]);
}

}  // namespace quirn
