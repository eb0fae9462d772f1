#pragma once

#include "mainwin/page.h"
#include "mainwin/picklist.h"
#include "platform/form.h"

namespace quirn {

// The list of macro variables that opens beside a macro when "%" is typed in it. It belongs to the window, over the tab
// strip, and is shown only while a variable is being picked.
class MacroPicker {
public:
    MacroPicker(Form& form, TabStrip& strip, Edited edited);

    // "%" has been typed in a macro: puts it at the end of its text (not at the caret, on purpose) and opens the list.
    void Open(TextBox& target);

    void Close();  // without picking; the "%" stays in the macro

private:
    void PopupList_GotFocus();
    bool PopupList_KeyPress(char key);
    void Pick();

    Form& form_;
    TabStrip& strip_;
    Edited edited_;
    ListBox PopupList;
    TextBox* target_ = nullptr;
    PickSearch search_;
};

}  // namespace quirn
