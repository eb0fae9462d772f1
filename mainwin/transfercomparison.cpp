#include "mainwin/transfercomparison.h"

#include <utility>

#include "game/comparerows.h"
#include "mainwin/transferwords.h"
#include "platform/dialogs.h"

namespace quirn {

namespace {

enum Side { kBefore, kAfter, kNow };

}  // namespace

TransferComparison::TransferComparison(Form& mainWindow,
                                       std::function<void(const TransferEntry& entry, const GameState& part)> putBack)
    : mainWindow_(mainWindow),
      putBack_(std::move(putBack)),
      window_(
          {"Before", "After", "Game now"}, [this] { return ReadSides(); },
          {{"&Put Back", [this](auto& rows, auto&) { PutBack(rows); }, [this] { return !mainWindow_.IsBlocked(); }}}) {}

Failure TransferComparison::Open(const TransferLog& log, const TransferEntry& entry, const GameState& ticked) {
    Result<GameState> before = log.WholeBefore(entry);
    if (before.Failed()) return before.Error();
    const Result<GameState> after = log.After(entry);
    if (after.Failed()) return after.Error();
    window_.Unload();  // the ticks were for another one
    entry_ = entry;
    before_ = before.Take();
    after_ = Over(before_, after.Value());
    window_.Open(mainWindow_,
                 [&](const CompareRow& row) { return row.differs[kNow] && !PartOf(ticked, {row}).IsEmpty(); });
    return {};
}

// A file that no kept transfer knows is as it was.
CompareSides TransferComparison::ReadSides() const {
    const Result<GameState> now = ReadGameState(entry_.gameFolder);
    const GameState present = now.Failed() ? GameState{} : now.Value();
    CompareSides sides{SideOf("Before " + NameInWords(entry_), Over({{}, present.files}, before_)),
                       SideOf({}, Over({{}, present.files}, after_)), SideOf({}, present)};
    sides[kNow].isThere = !now.Failed();
    return sides;
}

void TransferComparison::PutBack(const CompareRows& rows) {
    const RowsPlan plan = PlanRowsBack(rows, window_.HoldsAllNames(rows, kNow), before_, entry_.gameFolder);
    ShowErrors(plan.errors);
    if (!plan.state.IsEmpty()) putBack_(entry_, plan.state);
}

}  // namespace quirn
