#include "logedit/frmlogfind.h"

#include <algorithm>

#include "platform/measures.h"

namespace quirn {

namespace {

constexpr int kWidth = 4950;
constexpr int kHeight = 1020;

// clang-format off
//                       left  top  width height
constexpr Bounds kLabel{  120, 195,  870, kLabelHeight};
constexpr Bounds kText{  1020, 150, 2520, kRowHeight};
constexpr Bounds kFind{  3660, 120, 1170, kButtonHeight};
constexpr Bounds kCancel{3660, 555, 1170, kButtonHeight};
// clang-format on

}  // namespace

frmLogFind::frmLogFind(std::function<void(const std::string&)> find, const std::string& lastSearch)
    : Form(FormBorder::Dialog, kWidth, kHeight),
      find_(std::move(find)),
      lastSearch_(lastSearch),
      Label1(*this, kLabel, "Find what:"),
      Text1(*this, kText),
      Command1(*this, kFind, "&Find Next"),
      Command2(*this, kCancel, "Cancel") {
    SetCaption("Find");
    SetButtons(&Command1, &Command2);
    onLoad = [this] { Form_Load(); };
    onKeyDown = [this](int key, bool) {
        if (key != kKeyF3) return false;
        if (Command1.Enabled()) Command1_Click();
        return true;
    };
    Text1.onChange = [this] { Text1_Change(); };
    Text1.onKeyPress = [this](char character) { return Text1_KeyPress(character); };
    Command1.onClick = [this] { Command1_Click(); };
    Command2.onClick = [this] { Unload(); };
}

void frmLogFind::Open(Form& owner) {
    if (IsLoaded()) {
        BringToFront();
    } else {
        owner_ = &owner;
        ShowOwned(owner);
    }
    Text1.SetFocus();
    Text1.SelectAll();
}

void frmLogFind::Form_Load() {
    // Where the owner leaves no room beside it, the dialog lies over its right edge.
    const Bounds screen = WorkArea(*owner_);
    Bounds place = Place();
    place.left = std::clamp(owner_->Place().Right(), screen.left, std::max(screen.left, screen.Right() - place.width));
    place.top = std::clamp(owner_->Place().top, screen.top, std::max(screen.top, screen.Bottom() - place.height));
    Move(place);
    SetAlwaysOnTop();
    Text1.SetText(lastSearch_);
    Text1_Change();
}

void frmLogFind::Text1_Change() {
    Command1.SetEnabled(!Text1.Text().empty());
}

// Also with an empty text, which the first line searched has.
bool frmLogFind::Text1_KeyPress(char character) {
    if (character != kKeyEnter) return false;
    find_(Text1.Text());
    return true;
}

void frmLogFind::Command1_Click() {
    find_(Text1.Text());
}

}  // namespace quirn
