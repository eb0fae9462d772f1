#include "mainwin/frmversions.h"

#include <algorithm>

#include "mainwin/notice.h"
#include "mainwin/transferwords.h"
#include "mainwin/windowsides.h"
#include "platform/clock.h"
#include "platform/dialogs.h"
#include "platform/measures.h"
#include "platform/text.h"

namespace quirn {

namespace {

constexpr int kWidth = 7800;
constexpr int kHeight = 4800;
constexpr int kInnerWidth = 7560;
constexpr int kInnerHeight = 4260;
constexpr int kLeastWidth = 6900;
constexpr int kLeastHeight = 3300;

// clang-format off
//                            left   top  width  height
constexpr Bounds kFile{        120,  120,  7320, kLabelHeight};
constexpr Bounds kVersions{    120,  420,  7320, 3180};
constexpr Bounds kPutBack{     120, 3750,  1380, kButtonHeight};
constexpr Bounds kShow{       1620, 3750,  1380, kButtonHeight};
constexpr Bounds kForgetAll{  3120, 3750,  1380, kButtonHeight};
constexpr Bounds kClose{      6060, 3750,  1380, kButtonHeight};
// clang-format on

// What a version and the file say otherwise.
std::string Difference(const CompareSide& version, const CompareSide& file) {
    if (!version.isThere) return "no profile";
    if (!file.isThere) return "the file is gone";
    size_t settings = 0, waves = 0;
    bool names = false;
    for (const CompareRow& row : Compare({version, file})) {
        if (!row.Differs()) continue;
        if (row.wave) ++waves;
        else if (row.IsName()) names = true;
        else ++settings;
    }
    return WordsFor(settings, names, waves);
}

}  // namespace

frmVersions::frmVersions(const std::string& profilePath, const ProfileVersions& versions,
                         std::function<bool(const ProfileVersion&)> putBack)
    : Form(FormBorder::SizableDialog, kWidth, kHeight),
      profilePath_(profilePath),
      versions_(versions),
      putBack_(std::move(putBack)),
      Label1(*this, kFile, "Kept before each save of " + DoubleAmpersands(profilePath) + ":"),
      tblVersions(*this, kVersions, "Earlier versions", {{"Replaced", 1800}, {"Differences from the file", 5000}}),
      cmdPutBack(*this, kPutBack, "&Put Back"),
      cmdShow(*this, kShow, "&Show..."),
      cmdForgetAll(*this, kForgetAll, "&Forget All"),
      cmdClose(*this, kClose, "Close"),
      anchors_(kInnerWidth, kInnerHeight) {
    SetCaption("Earlier Versions");
    SetMinimumSize(kLeastWidth, kLeastHeight);
    SetButtons(&cmdShow, &cmdClose);
    anchors_.Add(Label1, Anchor::Grow, Anchor::Stay)
        .Add(tblVersions, Anchor::Grow, Anchor::Grow)
        .Add(cmdPutBack, Anchor::Stay, Anchor::Follow)
        .Add(cmdShow, Anchor::Stay, Anchor::Follow)
        .Add(cmdForgetAll, Anchor::Stay, Anchor::Follow)
        .Add(cmdClose, Anchor::Follow, Anchor::Follow);
    onResize = [this] {
        if (!IsMinimized()) anchors_.Place(InnerWidth(), InnerHeight());
    };
    onLoad = [this] { Fill(); };

    tblVersions.SetEmptyText("No save has replaced anything yet.");
    tblVersions.cellText = [this](size_t row, int column) {
        return column == 0 ? TimeInWords(rows_[row].version.time, SortableTime()) : rows_[row].differs;
    };
    tblVersions.onSelect = [this] { Select(); };
    tblVersions.onActivate = [this] { cmdShow_Click(); };
    cmdPutBack.onClick = [this] { cmdPutBack_Click(); };
    cmdShow.onClick = [this] { cmdShow_Click(); };
    cmdForgetAll.onClick = [this] { cmdForgetAll_Click(); };
    cmdClose.onClick = [this] { Unload(); };
}

std::optional<ProfileVersion> frmVersions::Ask(Form& owner) {
    ShowModal(owner);
    return shown_;
}

void frmVersions::Fill() {
    rows_.clear();
    const CompareSide file = FileSide(profilePath_);
    for (const ProfileVersion& version : versions_.List())
        rows_.push_back({version, Difference(FileSide(version.file), file)});
    tblVersions.SetRowCount(rows_.size());
    if (!rows_.empty()) tblVersions.SetCurrent(0);
    Select();
}

void frmVersions::Select() {
    cmdPutBack.SetEnabled(Current() != nullptr);
    cmdShow.SetEnabled(Current() != nullptr);
    cmdForgetAll.SetEnabled(!rows_.empty());
}

const ProfileVersion* frmVersions::Current() const {
    const std::optional<size_t> row = tblVersions.Current();
    return row && *row < rows_.size() ? &rows_[*row].version : nullptr;
}

void frmVersions::cmdPutBack_Click() {
    if (Current() == nullptr) return;
    if (putBack_(*Current())) Unload();
    else Fill();
}

void frmVersions::cmdShow_Click() {
    if (Current() == nullptr) return;
    shown_ = *Current();
    Unload();
}

void frmVersions::cmdForgetAll_Click() {
    if (ShowMessage("Forget all earlier versions of this file?", kOkCancel + kExclamation) != Answer::Ok) return;
    ShowError(versions_.ForgetAll());
    Fill();
}

}  // namespace quirn
