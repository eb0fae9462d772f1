#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "game/transferlog.h"
#include "platform/anchors.h"
#include "platform/form.h"
#include "platform/table.h"

namespace quirn {

// The dialog "Transfer History": what transfers have changed in the game, and the way back to before any of them.
class frmHistory : public Form {
public:
    // putBack: the player wants back what the game had before this transfer. It asks, and shows what goes wrong.
    frmHistory(const TransferLog& log, std::function<void(const TransferEntry&)> putBack);

    // The transfer that the player wants to be shown, which the dialog closes for.
    std::optional<TransferEntry> Ask(Form& owner);

private:
    void Fill();
    void Select();
    void cmdPutBack_Click();
    void cmdShow_Click();
    void cmdForgetAll_Click();
    void ForgetCurrent();
    const TransferEntry* Current() const;

    const TransferLog& log_;
    std::function<void(const TransferEntry&)> putBack_;
    std::vector<TransferEntry> entries_;
    std::optional<TransferEntry> shown_;

    Table tblTransfers;
    Button cmdPutBack, cmdShow, cmdForgetAll, cmdClose;
    Anchors anchors_;
};

}  // namespace quirn
