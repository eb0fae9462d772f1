#pragma once

#include <optional>
#include <string>

#include "game/configcode.h"
#include "platform/form.h"

namespace quirn {

// The dialog that asks for a config code.
class frmConfig : public Form {
public:
    // states: those of the switches now, whose code the box shows first.
    explicit frmConfig(const AdvancedStates& states);

    // The text of the masked box, 14 characters with "_" for places that were left empty; nothing until OK.
    const std::optional<std::string>& Code() const { return code_; }

private:
    void Command1_Click();
    bool PasteCode(const std::string& text);
    void ShowWhatChanges();

    AdvancedStates states_;
    std::optional<std::string> code_;

    Label Label1;
    MaskedBox mskConfigCode;
    Label lblChanges;
    Button Command1, Command2;
};

}  // namespace quirn
