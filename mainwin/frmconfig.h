#pragma once

#include <optional>
#include <string>

#include "platform/form.h"

namespace quirn {

// The dialog that asks for a config code.
class frmConfig : public Form {
public:
    frmConfig();

    // The text of the masked box, 14 characters with "_" for places that were left empty; nothing until OK.
    const std::optional<std::string>& Code() const { return code_; }

private:
    void Command1_Click();

    std::optional<std::string> code_;

    Label Label1;
    MaskedBox mskConfigCode;
    Button Command1, Command2;
};

}  // namespace quirn
