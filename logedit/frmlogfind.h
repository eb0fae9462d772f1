#pragma once

#include <functional>
#include <string>

#include "platform/form.h"

namespace quirn {

// Asks for a text to find in the log, again and again until it is closed. Stays above other windows.
class frmLogFind : public Form {
public:
    // find: searches for a text. lastSearch: the text that the dialog begins with;
    // outlives it.
    frmLogFind(std::function<void(const std::string&)> find, const std::string& lastSearch);

    // Beside the owner's right edge; brings it to the front when it is open.
    void Open(Form& owner);

private:
    void Form_Load();
    void Text1_Change();
    bool Text1_KeyPress(char character);
    void Command1_Click();

    std::function<void(const std::string&)> find_;
    const std::string& lastSearch_;
    const Form* owner_ = nullptr;

    Label Label1;
    TextBox Text1;
    Button Command1, Command2;
};

}  // namespace quirn
