#pragma once

#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "platform/anchors.h"
#include "platform/form.h"
#include "platform/table.h"
#include "profile/compare.h"

namespace quirn {

using CompareRows = std::vector<CompareRow>;
using CompareSides = std::vector<CompareSide>;

// What a player can do with the rows that are ticked, as the window shows them.
struct CompareDeed {
    std::string caption;
    std::function<void(const CompareRows& ticked, const CompareSides& sides)> onClick;
    std::function<bool()> canDo;  // now; its button is grey while it cannot
};

// The window "Compare": settings, ignored names and wave messages of several sides, a row each, and ticks for what is
// to be copied. It stays open beside its owner, and knows nothing of where its sides come from.
class frmCompare : public Form {
public:
    // columns: of the sides, in their order. readSides: called whenever the window comes to the front or is refreshed;
    // the first one's caption is the window's too.
    frmCompare(const std::vector<std::string>& columns, std::function<CompareSides()> readSides,
               const std::vector<CompareDeed>& deeds);

    // Ticks the rows that differ and that the test wants. An open window comes to the front.
    void Open(Form& owner, const std::function<bool(const CompareRow&)>& wants);

    const CompareRows& Rows() const { return rows_; }                // those that are not shown as well
    bool HoldsAllNames(const CompareRows& rows, size_t side) const;  // no other ignored name differs on that side
    void ShowWhatCanBeDone();

private:
    void Form_Load();
    bool Form_Unload();
    bool Form_KeyDown(int key, bool control);
    void FillTable();
    void Read();
    void Filter() { ShowRows(CurrentRow()); }
    void ShowRows(const std::optional<CompareRow>& current);
    std::optional<CompareRow> CurrentRow() const;
    void TickAll();
    void CopyRows();
    void Do(const CompareDeed& deed);

    bool IsTicked(const CompareRow& row) const;
    void Tick(const CompareRow& row, bool ticked);
    CompareRows Ticked() const;  // of those that are there
    bool IsShown(const CompareRow& row) const;
    const CompareRow& Shown(size_t row) const { return rows_[shown_[row]]; }
    std::string CellText(size_t row, int column) const;

    std::function<CompareSides()> readSides_;
    std::vector<CompareDeed> deeds_;
    CompareSides sides_;
    CompareRows rows_;
    std::vector<size_t> shown_;  // indexes of rows
    CompareRows ticked_;         // each as it was when it was ticked

    Label Label1;
    CheckBox chkSame;
    Label Label2;
    TextBox txtFind;
    Table tblRows;
    Label lblTicked;
    std::deque<Button> cmdDeeds;
    Button cmdRefresh, cmdClose;
    Anchors anchors_;
};

}  // namespace quirn
