#pragma once

#include <functional>

#include "game/transfer.h"
#include "platform/form.h"

namespace quirn {

// The question "Undo Last Transfer".
class frmUndo : public Form {
public:
    frmUndo(const TransferEntry& entry, const Undo& undo, const std::string& presentGameFolder);

    // True when the player wants to put back what goes back.
    bool Ask(Form& owner);

private:
    Label Label1, Label2, Label3;
    Button cmdPutBack, cmdCancel;
    bool putBack_ = false;
};

}  // namespace quirn
