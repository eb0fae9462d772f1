#include "mainwin/macropicker.h"

namespace quirn {

namespace {

constexpr Bounds kListPlace{0, 0, 1500, 1860};
constexpr char kBackspace = 8, kBlank = ' ';

}  // namespace

MacroPicker::MacroPicker(Form& form, TabStrip& strip, Edited edited)
    : form_(form), strip_(strip), edited_(std::move(edited)), PopupList(form, kListPlace, ListStyle::Single) {
    PopupList.SetAccessibleName("Macro variables");
    PopupList.SetVisible(false);
    PopupList.SetItems({kMacroVariables.begin(), kMacroVariables.end()});
    PopupList.onGotFocus = [this] { PopupList_GotFocus(); };
    PopupList.onLostFocus = [this] { PopupList.SetVisible(false); };
    PopupList.onKeyPress = [this](char key) { return PopupList_KeyPress(key); };
    PopupList.onMouseUp = [this] { Pick(); };
}

void MacroPicker::Open(TextBox& target) {
    target_ = &target;
    const int caret = target.CaretLeft();
    target.SetText(target.Text() + "%");
    edited_();

    const Bounds page = strip_.PageArea();
    Bounds inStrip = target.Place();
    inStrip.left += page.left - strip_.Place().left;
    inStrip.top += page.top - strip_.Place().top;
    // By the inner size, so that no part of the list lies under the window's frame.
    PopupList.Move(PlacePickList({strip_.Place().top, inStrip, caret, form_.InnerWidth(), form_.InnerHeight()},
                                 kListPlace.width, kListPlace.height));
    PopupList.SetVisible(true);
    PopupList.SetFocus();
}

void MacroPicker::PopupList_GotFocus() {
    search_.Reset();
    PopupList.SetListIndex(0);
}

bool MacroPicker::PopupList_KeyPress(char key) {
    if (key == kKeyEnter || key == kBlank) {
        Pick();
    } else if (key == kBackspace || key == kKeyEscape) {
        Close();
    } else if (const int index = search_.Type(key); index >= 0) {
        PopupList.SetListIndex(index);
    }
    return true;
}

void MacroPicker::Pick() {
    if (target_ == nullptr || PopupList.ListIndex() < 0) return;
    target_->SetText(target_->Text() + PickedText(PopupList.ListIndex()));
    edited_();
    Close();
}

void MacroPicker::Close() {
    if (!PopupList.Visible()) return;
    PopupList.SetVisible(false);
    target_->SetFocus();
    target_->PutCaretAtEnd();
}

}  // namespace quirn
