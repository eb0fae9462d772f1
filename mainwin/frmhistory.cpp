#include "mainwin/frmhistory.h"

#include "mainwin/notice.h"
#include "mainwin/transferwords.h"
#include "platform/clock.h"
#include "platform/dialogs.h"
#include "platform/measures.h"

namespace quirn {

namespace {

constexpr int kWidth = 9900;
constexpr int kHeight = 5400;
constexpr int kInnerWidth = 9660;
constexpr int kInnerHeight = 4860;
constexpr int kLeastWidth = 7200;
constexpr int kLeastHeight = 3600;

// clang-format off
//                            left   top  width  height
constexpr Bounds kTransfers{   120,  120,  9420, 4080};
constexpr Bounds kPutBack{     120, 4350,  1380, kButtonHeight};
constexpr Bounds kShow{       1620, 4350,  1380, kButtonHeight};
constexpr Bounds kForgetAll{  3120, 4350,  1380, kButtonHeight};
constexpr Bounds kClose{      8160, 4350,  1380, kButtonHeight};
// clang-format on

enum Column { kWhen, kProfile, kWay, kChanged };

std::string WhatItDid(const TransferEntry& entry) {
    std::string text = WordsFor(entry);
    if (entry.overwrote > 0)
        text += "; overwrote " + WordsFor(entry.overwrote, false, 0) + " that the game had changed";
    if (!entry.finished) text = "not finished; " + text;
    return text;
}

}  // namespace

frmHistory::frmHistory(const TransferLog& log, std::function<void(const TransferEntry&)> putBack)
    : Form(FormBorder::SizableDialog, kWidth, kHeight),
      log_(log),
      putBack_(std::move(putBack)),
      tblTransfers(*this, kTransfers, "Transfers",
                   {{"When", 1650}, {"Profile", 2100}, {"How", 1300}, {"What Changed", 4000}}),
      cmdPutBack(*this, kPutBack, "&Put Back"),
      cmdShow(*this, kShow, "&Show..."),
      cmdForgetAll(*this, kForgetAll, "&Forget All"),
      cmdClose(*this, kClose, "Close"),
      anchors_(kInnerWidth, kInnerHeight) {
    SetCaption("Transfer History");
    SetMinimumSize(kLeastWidth, kLeastHeight);
    SetButtons(&cmdShow, &cmdClose);
    anchors_.Add(tblTransfers, Anchor::Grow, Anchor::Grow)
        .Add(cmdPutBack, Anchor::Stay, Anchor::Follow)
        .Add(cmdShow, Anchor::Stay, Anchor::Follow)
        .Add(cmdForgetAll, Anchor::Stay, Anchor::Follow)
        .Add(cmdClose, Anchor::Follow, Anchor::Follow);
    onResize = [this] {
        if (!IsMinimized()) anchors_.Place(InnerWidth(), InnerHeight());
    };
    onLoad = [this] { Fill(); };

    tblTransfers.SetEmptyText("No transfer has changed anything yet.");
    tblTransfers.cellText = [this](size_t row, int column) -> std::string {
        const TransferEntry& entry = entries_[row];
        switch (column) {
            case kWhen: return TimeInWords(entry.time, SortableTime());
            case kProfile: return FileNameOf(entry);
            case kWay: return NameOf(entry.note.way);
            default: return WhatItDid(entry);
        }
    };
    tblTransfers.onActivate = [this] { cmdShow_Click(); };
    tblTransfers.onSelect = [this] { Select(); };
    tblTransfers.onKeyDown = [this](int key, bool) {
        if (key != kKeyDelete) return false;
        ForgetCurrent();
        return true;
    };
    cmdPutBack.onClick = [this] { cmdPutBack_Click(); };
    cmdShow.onClick = [this] { cmdShow_Click(); };
    cmdForgetAll.onClick = [this] { cmdForgetAll_Click(); };
    cmdClose.onClick = [this] { Unload(); };
}

std::optional<TransferEntry> frmHistory::Ask(Form& owner) {
    ShowModal(owner);
    return shown_;
}

void frmHistory::Fill() {
    entries_ = log_.Entries();
    tblTransfers.SetRowCount(entries_.size());
    if (!entries_.empty()) tblTransfers.SetCurrent(0);
    Select();
}

void frmHistory::Select() {
    cmdPutBack.SetEnabled(Current() != nullptr);
    cmdShow.SetEnabled(Current() != nullptr);
    cmdForgetAll.SetEnabled(!entries_.empty());
}

const TransferEntry* frmHistory::Current() const {
    const std::optional<size_t> row = tblTransfers.Current();
    return row && *row < entries_.size() ? &entries_[*row] : nullptr;
}

void frmHistory::cmdPutBack_Click() {
    if (Current() == nullptr) return;
    putBack_(*Current());
    Fill();
}

void frmHistory::cmdShow_Click() {
    if (Current() == nullptr) return;
    shown_ = *Current();
    Unload();
}

void frmHistory::cmdForgetAll_Click() {
    if (ShowMessage("Forget all kept transfers? There is no way back to what the game had before them then.",
                    kOkCancel + kExclamation) != Answer::Ok)
        return;
    ShowError(log_.ForgetAll());
    Fill();
}

void frmHistory::ForgetCurrent() {
    if (Current() == nullptr) return;
    if (ShowMessage("Forget the transfer of " + NameInWords(*Current()) + "?", kOkCancel + kQuestion) != Answer::Ok)
        return;
    ShowError(log_.Forget(*Current()));
    Fill();
}

}  // namespace quirn
