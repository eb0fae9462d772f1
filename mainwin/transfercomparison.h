#pragma once

#include <functional>
#include <string>

#include "game/transferlog.h"
#include "mainwin/frmcompare.h"

namespace quirn {

// "Show..." of a kept transfer: what the game had before it, what the transfer left and what the game has now, with
// ticks for what is to be put back.
class TransferComparison {
public:
    // putBack: brings the game back to a part of the state before the transfer. It asks, and shows what goes wrong.
    TransferComparison(Form& mainWindow,
                       std::function<void(const TransferEntry& entry, const GameState& part)> putBack);

    // What is in `ticked`, of the state before, is ticked. Failure: the transfer cannot be read.
    Failure Open(const TransferLog& log, const TransferEntry& entry, const GameState& ticked);
    void Close() { window_.Unload(); }
    void ShowWhatCanBeDone() { window_.ShowWhatCanBeDone(); }

private:
    CompareSides ReadSides() const;
    void PutBack(const CompareRows& rows);

    Form& mainWindow_;
    std::function<void(const TransferEntry& entry, const GameState& part)> putBack_;
    TransferEntry entry_;
    GameState before_, after_;
    frmCompare window_;
};

}  // namespace quirn
