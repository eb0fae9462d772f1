#pragma once

#include <optional>
#include <string>

#include "platform/form.h"

namespace quirn {

// The dialog that asks for another name of a file.
class frmRename : public Form {
public:
    explicit frmRename(const std::string& name);

    // Nothing when the player cancels, or leaves the name as it is. One that cannot be a file's is told of and asked
    // for again.
    std::optional<std::string> Ask(Form& owner);

private:
    void cmdOk_Click();

    std::string old_;
    std::optional<std::string> name_;

    Label Label1;
    TextBox txtName;
    Button cmdOk, cmdCancel;
};

}  // namespace quirn
