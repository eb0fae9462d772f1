#pragma once

#include <optional>

#include "platform/form.h"
#include "profile/friendcopy.h"

namespace quirn {

// The dialog that asks what a copy for a friend leaves out.
class frmFriendCopy : public Form {
public:
    frmFriendCopy();

    // Nothing when the player cancels.
    std::optional<LeftOut> Ask(Form& owner);

private:
    void cmdSave_Click();

    std::optional<LeftOut> leftOut_;

    Label Label1;
    CheckBox chkPassword, chkProxy, chkIgnore, chkWaves, chkPilot, chkMacros;
    Button cmdSave, cmdCancel;
};

}  // namespace quirn
