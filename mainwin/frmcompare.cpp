#include "mainwin/frmcompare.h"

#include <algorithm>
#include <iterator>

#include "mainwin/keptplace.h"
#include "platform/clipboard.h"
#include "platform/dialogs.h"
#include "platform/measures.h"

namespace quirn {

namespace {

constexpr int kWidth = 11400;
constexpr int kHeight = 7200;
constexpr int kLeastWidth = 9600;
constexpr int kLeastHeight = 6000;
constexpr int kInnerWidth = 11160;
constexpr int kInnerHeight = 6660;

// clang-format off
//                         left   top  width  height
constexpr Bounds kHeading{  120,  120, 10920, kLabelHeight};
constexpr Bounds kSame{     120,  420,  4500, kCheckHeight};
constexpr Bounds kFind{    7440,  435,   660, kLabelHeight};
constexpr Bounds kText{    8190,  390,  2850, kRowHeight};
constexpr Bounds kTable{    120,  795, 10920, 5220};
constexpr Bounds kTicked{   120, 6240,  2700, kLabelHeight};
constexpr Bounds kDeed{    2880, 6150,  1680, kButtonHeight};  // the first
constexpr Bounds kRefresh{ 2880, 6150,  1200, kButtonHeight};  // behind them
constexpr Bounds kClose{   9660, 6150,  1380, kButtonHeight};
// clang-format on
constexpr int kDeedStep = 1770;

enum Column { kSetting, kPage, kFirstSide };
constexpr char kName[] = "Compare";
constexpr int kSettingWidth = 2700;
constexpr int kPageWidth = 1500;
constexpr int kSideWidth = 2000;

std::vector<TableColumn> ColumnsFor(const std::vector<std::string>& sides) {
    std::vector<TableColumn> columns{{"Setting", kSettingWidth}, {"Page", kPageWidth}};
    for (const std::string& caption : sides) columns.push_back({caption, kSideWidth});
    return columns;
}

// In front of the buttons that follow, as the tab order has it.
std::deque<Button> ButtonsFor(Form& form, const std::vector<CompareDeed>& deeds) {
    std::deque<Button> buttons;
    for (size_t i = 0; i < deeds.size(); ++i)
        buttons.emplace_back(form, kDeed.MovedBy(static_cast<int>(i) * kDeedStep, 0), deeds[i].caption);
    return buttons;
}

std::string Heading(size_t differing, size_t all) {
    return std::to_string(differing) + " of " + std::to_string(all) + " settings " +
           (differing == 1 ? "differs" : "differ") + ". Tick the ones that you want.";
}

std::string Title(const CompareSides& sides) {
    std::string title;
    for (const CompareSide& side : sides)
        if (!side.caption.empty()) title += (title.empty() ? "Compare - " : " and ") + side.caption;
    return title;
}

auto FindIn(const CompareRows& rows, const CompareRow& row) {
    return std::find_if(rows.begin(), rows.end(), [&](const CompareRow& other) { return row.IsSameRowAs(other); });
}

}  // namespace

frmCompare::frmCompare(const std::vector<std::string>& columns, std::function<CompareSides()> readSides,
                       const std::vector<CompareDeed>& deeds)
    : Form(FormBorder::SizableDialog, kWidth, kHeight),
      readSides_(std::move(readSides)),
      deeds_(deeds),
      Label1(*this, kHeading, ""),
      chkSame(*this, kSame, "&Show settings that are the same too"),
      Label2(*this, kFind, "&Find:"),
      txtFind(*this, kText),
      tblRows(*this, kTable, "Settings", ColumnsFor(columns), ListStyle::Extended),
      lblTicked(*this, kTicked, ""),
      cmdDeeds(ButtonsFor(*this, deeds)),
      cmdRefresh(*this, kRefresh.MovedBy(static_cast<int>(deeds.size()) * kDeedStep, 0), "&Refresh"),
      cmdClose(*this, kClose, "Close"),
      anchors_(kInnerWidth, kInnerHeight) {
    SetMinimumSize(kLeastWidth, kLeastHeight);
    SetButtons(nullptr, &cmdClose);
    anchors_.Add(Label1, Anchor::Grow, Anchor::Stay)
        .Add(Label2, Anchor::Follow, Anchor::Stay)
        .Add(txtFind, Anchor::Follow, Anchor::Stay)
        .Add(tblRows, Anchor::Grow, Anchor::Grow)
        .Add(lblTicked, Anchor::Stay, Anchor::Follow)
        .Add(cmdRefresh, Anchor::Stay, Anchor::Follow)
        .Add(cmdClose, Anchor::Follow, Anchor::Follow);
    for (size_t i = 0; i < deeds_.size(); ++i) {
        cmdDeeds[i].onClick = [this, i] { Do(deeds_[i]); };
        anchors_.Add(cmdDeeds[i], Anchor::Stay, Anchor::Follow);
    }
    onLoad = [this] { Form_Load(); };
    onResize = [this] {
        if (!IsMinimized()) anchors_.Place(InnerWidth(), InnerHeight());
    };
    onActivate = [this] { Read(); };
    onUnload = [this] { return Form_Unload(); };
    onKeyDown = [this](int key, bool control) { return Form_KeyDown(key, control); };
    chkSame.onClick = [this] { Filter(); };
    txtFind.onChange = [this] { Filter(); };
    cmdRefresh.onClick = [this] { Read(); };
    cmdClose.onClick = [this] { Unload(); };
    FillTable();
}

void frmCompare::FillTable() {
    tblRows.SetEmptyText("Nothing differs.");
    tblRows.cellText = [this](size_t row, int column) { return CellText(row, column); };
    tblRows.cellStyle = [this](size_t row, int column) {
        return CellStyle{.bold = column >= kFirstSide && Shown(row).differs[static_cast<size_t>(column - kFirstSide)]};
    };
    tblRows.isTicked = [this](size_t row) { return IsTicked(Shown(row)); };
    tblRows.onTick = [this](size_t row, bool ticked) {
        Tick(Shown(row), ticked);
        ShowWhatCanBeDone();
    };
}

void frmCompare::Open(Form& owner, const std::function<bool(const CompareRow&)>& wants) {
    Load();
    Read();
    for (const CompareRow& row : rows_)
        if (row.Differs() && wants(row)) Tick(row, true);
    Filter();
    if (Visible()) BringToFront();
    else ShowOwned(owner);
    tblRows.SetFocus();
}

void frmCompare::Form_Load() {
    ticked_.clear();
    chkSame.SetValue(0);
    txtFind.SetText("");
    RestorePlace(*this, tblRows, kName);
    onResize();
}

bool frmCompare::Form_Unload() {
    StorePlace(*this, tblRows, kName);
    return true;
}

bool frmCompare::Form_KeyDown(int key, bool control) {
    if (!control && key == kKeyF5) {
        Read();
    } else if (control && key == 'F') {
        txtFind.SetFocus();
        txtFind.SelectAll();
    } else if (control && key == 'A' && !txtFind.HasFocus()) {
        TickAll();
    } else if (control && key == 'C' && !txtFind.HasFocus()) {
        CopyRows();
    } else {
        return false;
    }
    return true;
}

void frmCompare::Read() {
    const std::optional<CompareRow> current = CurrentRow();
    sides_ = readSides_();
    rows_ = Compare(sides_);
    SetCaption(Title(sides_));
    const auto differing = std::count_if(rows_.begin(), rows_.end(), [](auto& row) { return row.Differs(); });
    Label1.SetText(Heading(static_cast<size_t>(differing), rows_.size()));
    ShowRows(current);
}

std::optional<CompareRow> frmCompare::CurrentRow() const {
    const std::optional<size_t> row = tblRows.Current();
    return row ? std::optional(Shown(*row)) : std::nullopt;
}

// The current row stays so as long as it is shown.
void frmCompare::ShowRows(const std::optional<CompareRow>& current) {
    shown_.clear();
    for (size_t i = 0; i < rows_.size(); ++i)
        if (IsShown(rows_[i])) shown_.push_back(i);
    tblRows.SetRowCount(shown_.size());
    for (size_t i = 0; current && i < shown_.size(); ++i)
        if (Shown(i).IsSameRowAs(*current)) tblRows.SetCurrent(i);
    ShowWhatCanBeDone();
}

bool frmCompare::IsShown(const CompareRow& row) const {
    return (chkSame.Value() != 0 || row.Differs()) && row.Holds(txtFind.Text());
}

bool frmCompare::IsTicked(const CompareRow& row) const {
    return FindIn(ticked_, row) != ticked_.end();
}

void frmCompare::Tick(const CompareRow& row, bool ticked) {
    std::erase_if(ticked_, [&](const CompareRow& other) { return other.IsSameRowAs(row); });
    if (ticked) ticked_.push_back(row);
}

CompareRows frmCompare::Ticked() const {
    CompareRows rows;
    std::copy_if(rows_.begin(), rows_.end(), std::back_inserter(rows), [&](auto& row) { return IsTicked(row); });
    return rows;
}

bool frmCompare::HoldsAllNames(const CompareRows& rows, size_t side) const {
    return std::none_of(rows_.begin(), rows_.end(), [&](const CompareRow& row) {
        return row.IsName() && row.differs[side] && FindIn(rows, row) == rows.end();
    });
}

void frmCompare::TickAll() {
    for (const size_t row : shown_) Tick(rows_[row], true);
    tblRows.Refresh();
    ShowWhatCanBeDone();
}

void frmCompare::ShowWhatCanBeDone() {
    const CompareRows ticked = Ticked();
    const auto hidden = std::count_if(ticked.begin(), ticked.end(), [&](auto& row) { return !IsShown(row); });
    lblTicked.SetText(std::to_string(ticked.size()) + " ticked" +
                      (hidden > 0 ? ", " + std::to_string(hidden) + " of them not shown" : ""));
    for (size_t i = 0; i < deeds_.size(); ++i) cmdDeeds[i].SetEnabled(!ticked.empty() && deeds_[i].canDo());
}

// What has been copied is no longer ticked. A box may have waited meanwhile and the window gone.
void frmCompare::Do(const CompareDeed& deed) {
    ShowWhatCanBeDone();
    const CompareRows ticked = Ticked();
    if (ticked.empty() || !deed.canDo()) return;
    deed.onClick(ticked, CompareSides(sides_));
    if (!IsLoaded()) return;
    ticked_.clear();
    Read();
}

// The ticked rows, or all that are shown when none is, for a spreadsheet or a message.
void frmCompare::CopyRows() {
    CompareRows rows = Ticked();
    if (rows.empty())
        for (const size_t row : shown_) rows.push_back(rows_[row]);
    std::string text;
    for (const CompareRow& row : rows) {
        text += row.caption + "\t" + row.page;
        for (const std::string& cell : row.cells) text += "\t" + cell;
        text += "\r\n";
    }
    ShowError(SetClipboardText(text));
}

std::string frmCompare::CellText(size_t row, int column) const {
    const CompareRow& shown = Shown(row);
    if (column == kSetting) return shown.caption;
    if (column == kPage) return shown.page;
    const size_t side = static_cast<size_t>(column - kFirstSide);
    return (shown.differs[side] ? "* " : "") + shown.cells[side];
}

}  // namespace quirn
