#pragma once

#include <functional>

#include "game/transfer.h"
#include "platform/form.h"

namespace quirn {

// The question "Undo Last Transfer".
class frmUndo : public Form {
public:
    frmUndo(const TransferEntry& entry, const Undo& undo, const std::string& presentGameFolder);

    enum class Choice { Cancel, PutBack, Show };
    Choice Ask(Form& owner);

private:
    void Choose(Choice choice);

    Label Label1, Label2, Label3;
    Button cmdPutBack, cmdShow, cmdCancel;
    Choice choice_ = Choice::Cancel;
};

}  // namespace quirn
