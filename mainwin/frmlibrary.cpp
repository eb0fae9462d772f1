#include "mainwin/frmlibrary.h"

#include <algorithm>
#include <chrono>

#include "mainwin/keptplace.h"
#include "platform/clock.h"
#include "platform/measures.h"
#include "platform/text.h"

namespace quirn {

namespace {

constexpr char kName[] = "Library";
constexpr int kWidth = 11400;
constexpr int kHeight = 6600;
constexpr int kLeastWidth = 8400;
constexpr int kLeastHeight = 4200;
constexpr int kInnerWidth = 11160;
constexpr int kInnerHeight = 6060;

// clang-format off
//                           left   top  width  height
constexpr Bounds kFind{       120,  180,   660, kLabelHeight};
constexpr Bounds kText{       870,  120,  2850, kRowHeight};
constexpr Bounds kCount{     3900,  180,  7140, kLabelHeight};
constexpr Bounds kTable{      120,  540, 10920, 4860};
constexpr Bounds kPlay{       120, 5550,  1380, kButtonHeight};
constexpr Bounds kOpen{      1620, 5550,  1380, kButtonHeight};
constexpr Bounds kCompare{   3120, 5550,  1380, kButtonHeight};
constexpr Bounds kMore{      4620, 5550,  1380, kButtonHeight};
constexpr Bounds kClose{     9660, 5550,  1380, kButtonHeight};
// clang-format on

enum Column { kProfile, kInGame, kPilot, kZone, kShip, kChanged, kFavourite, kFolder };
enum MoreCommand {
    kRename = 1,
    kCopy,
    kVersions,
    kBarFavourite,
    kFavourites,
    kBarLink = kFavourites + 5,
    kLink,
    kShow,
    kBarDelete,
    kDelete
};

constexpr int kPause = 1;  // milliseconds between two looks
constexpr std::chrono::milliseconds kLook{30};

}  // namespace

frmLibrary::frmLibrary(LibraryDeeds deeds)
    : Form(FormBorder::SizableDialog, kWidth, kHeight),
      deeds_(std::move(deeds)),
      Label1(*this, kFind, "&Find:"),
      txtFind(*this, kText),
      tblProfiles(*this, kTable, "Profiles",
                  {{"Name", 1700},
                   {"In Game", 900},
                   {"Pilot", 1500},
                   {"Zone", 1600},
                   {"Ship", 1050},
                   {"Changed", 1750},
                   {"Fav.", 600},
                   {"Folder", 1500}}),
      lblCount(*this, kCount, ""),
      cmdPlay(*this, kPlay, "&Play"),
      cmdOpen(*this, kOpen, "&Open"),
      cmdCompare(*this, kCompare, "&Compare..."),
      cmdMore(*this, kMore, "&More"),
      cmdClose(*this, kClose, "Close"),
      mnuMore(MoreRows()),
      anchors_(kInnerWidth, kInnerHeight) {
    SetMinimumSize(kLeastWidth, kLeastHeight);
    SetButtons(&cmdOpen, &cmdClose);
    anchors_.Add(lblCount, Anchor::Grow, Anchor::Stay).Add(tblProfiles, Anchor::Grow, Anchor::Grow);
    for (Button* button : {&cmdPlay, &cmdOpen, &cmdCompare, &cmdMore})
        anchors_.Add(*button, Anchor::Stay, Anchor::Follow);
    anchors_.Add(cmdClose, Anchor::Follow, Anchor::Follow);
    onLoad = [this] { Form_Load(); };
    onResize = [this] {
        if (!IsMinimized()) anchors_.Place(InnerWidth(), InnerHeight());
    };
    onUnload = [this] {
        readTimer_.SetEnabled(false);
        StorePlace(*this, tblProfiles, kName);
        return true;
    };
    onKeyDown = [this](int key, bool control) { return Form_KeyDown(key, control); };
    readTimer_.SetInterval(kPause);
    readTimer_.onTimer = [this] { ReadSome(); };
    txtFind.onChange = [this] { ShowRows(); };
    cmdPlay.onClick = [this] { Do(deeds_.Play); };
    cmdOpen.onClick = [this] { Do(deeds_.Open); };
    cmdCompare.onClick = [this] { Do(deeds_.Compare); };
    cmdMore.onClick = [this] { PopUpMenuBelow(cmdMore, mnuMore); };
    cmdClose.onClick = [this] { Unload(); };
    FillTable();
}

void frmLibrary::FillTable() {
    tblProfiles.cellText = [this](size_t row, int column) { return CellText(rows_[shown_[row]], column); };
    tblProfiles.cellStyle = [this](size_t row, int) { return CellStyle{.grey = !rows_[shown_[row]].entry.isThere}; };
    tblProfiles.onSelect = [this] { ShowWhatCanBeDone(); };
    tblProfiles.onActivate = [this] { Do(deeds_.Open); };
    tblProfiles.onSort = [this](int column) { SortBy(column); };
    tblProfiles.onRightMouseDown = [this] { PopUpMenu(mnuMore, 0); };
}

std::vector<MenuRow> frmLibrary::MoreRows() {
    const auto can = [this] { return cmdOpen.Enabled(); };
    std::vector<MenuRow> rows{
        {kRename, 1, "&Rename...", "F2", "", [this] { Do(deeds_.Rename); }, can},
        {kCopy, 1, "Copy &Without Password...", "", "", [this] { Do(deeds_.CopyForFriend); }, can},
        {kVersions, 1, "&Earlier Versions...", "", "", [this] { Do(deeds_.Versions); }, can},
        {kBarFavourite, 1, "-"},
    };
    static constexpr const char* kCaptions[][2] = {{"Favourite &1", "Ctrl+1"},
                                                   {"Favourite &2", "Ctrl+2"},
                                                   {"Favourite &3", "Ctrl+3"},
                                                   {"Favourite &4", "Ctrl+4"},
                                                   {"Favourite &5", "Ctrl+5"}};
    for (int slot = 0; slot < static_cast<int>(std::size(kCaptions)); ++slot)
        rows.push_back({kFavourites + slot, 1, kCaptions[slot][0], kCaptions[slot][1], "",
                        [this, slot] { MakeFavourite(static_cast<size_t>(slot)); }, can});
    rows.insert(rows.end(), {{kBarLink, 1, "-"},
                             {kLink, 1, "Desktop &Shortcut", "", "", [this] { Do(deeds_.Link); }, can},
                             {kShow, 1, "Show In &Folder", "", "", [this] { Do(deeds_.ShowInFolder); }, can},
                             {kBarDelete, 1, "-"},
                             {kDelete, 1, "&Delete...", "Del", "", [this] { Do(deeds_.Delete); }, can}});
    return rows;
}

void frmLibrary::Open(Form& owner, const std::string& folder, const std::string& current) {
    Load();
    wanted_ = current;
    SetCaption("Profile Library - " + folder);
    Refresh();
    if (Visible()) BringToFront();
    else ShowOwned(owner);
    tblProfiles.SetFocus();
}

void frmLibrary::Form_Load() {
    txtFind.SetText("");
    RestorePlace(*this, tblProfiles, kName);
    tblProfiles.SetSortArrow(sortColumn_, sortsDown_);
    onResize();
}

bool frmLibrary::Form_KeyDown(int key, bool control) {
    const bool inTable = tblProfiles.HasFocus();
    if (!control && key == kKeyF5) Refresh();
    else if (control && key == kKeyEnter) Do(deeds_.Play);
    else if (!control && key == kKeyF2) Do(deeds_.Rename);
    else if (!control && key == kKeyDelete && inTable) Do(deeds_.Delete);
    else if (control && key >= '1' && key <= '5') MakeFavourite(static_cast<size_t>(key - '1'));
    else if (control && key == 'F') txtFind.SetFocus();
    else return false;
    return true;
}

void frmLibrary::Refresh() {
    if (!IsLoaded()) return;
    if (const Row* current = Current()) wanted_ = current->entry.path;
    reader_ = deeds_.Read();
    rows_.clear();
    shown_.clear();
    ReadSome();
}

// For as long as nobody notices; the timer goes on.
void frmLibrary::ReadSome() {
    const auto end = std::chrono::steady_clock::now() + kLook;
    while (!reader_.IsDone() && std::chrono::steady_clock::now() < end)
        if (std::optional<LibraryEntry> entry = reader_.Next()) {
            const int favourite = deeds_.FavouriteNumber(entry->path);
            const bool inGame = entry->isThere && deeds_.IsInGame(*entry);
            rows_.push_back({std::move(*entry), favourite, inGame});
        }
    readTimer_.SetEnabled(!reader_.IsDone());
    ShowRows();
}

void frmLibrary::ShowRows() {
    if (const Row* current = Current()) wanted_ = current->entry.path;
    const std::string wanted = FoldCase(txtFind.Text());
    shown_.clear();
    for (size_t i = 0; i < rows_.size(); ++i)
        if (wanted.empty() || Holds(rows_[i], wanted)) shown_.push_back(i);
    std::stable_sort(shown_.begin(), shown_.end(), [this](size_t a, size_t b) {
        return sortsDown_ ? ComesBefore(rows_[b], rows_[a]) : ComesBefore(rows_[a], rows_[b]);
    });
    tblProfiles.SetRowCount(shown_.size());
    for (size_t i = 0; i < shown_.size(); ++i)
        if (EqualNoCase(rows_[shown_[i]].entry.path, wanted_)) tblProfiles.SetCurrent(i);
    if (reader_.IsDone() && !tblProfiles.Current() && !shown_.empty()) tblProfiles.SetCurrent(0);
    tblProfiles.SetEmptyText(rows_.empty() ? "There is no profile here yet. File, Save As makes one."
                                           : "Nothing found.");
    lblCount.SetText(std::to_string(shown_.size()) + (shown_.size() == 1 ? " profile" : " profiles") +
                     (reader_.IsDone() ? "" : ", reading...") +
                     (reader_.FolderIsRead() ? "" : ". The folder for QRN files cannot be read."));
    ShowWhatCanBeDone();
}

bool frmLibrary::Holds(const Row& row, const std::string& wanted) const {
    for (int column = 0; column <= kFolder; ++column)
        if (FoldCase(CellText(row, column)).find(wanted) != std::string::npos) return true;
    return false;
}

bool frmLibrary::ComesBefore(const Row& a, const Row& b) const {
    if (sortColumn_ == kChanged) return a.entry.changed < b.entry.changed;
    return FoldCase(CellText(a, sortColumn_)) < FoldCase(CellText(b, sortColumn_));
}

void frmLibrary::SortBy(int column) {
    sortsDown_ = column == sortColumn_ && !sortsDown_;
    sortColumn_ = column;
    tblProfiles.SetSortArrow(sortColumn_, sortsDown_);
    ShowRows();
}

std::string frmLibrary::CellText(const Row& row, int column) const {
    switch (column) {
        case kProfile: return row.entry.name;
        case kInGame: return row.inGame ? "*" : "";
        case kPilot: return row.entry.pilot;
        case kZone: return row.entry.zone;
        case kShip: return row.entry.ship;
        case kChanged: return row.entry.isThere ? ShortDateAndTimeOf(row.entry.changed) : "not there";
        case kFavourite: return row.favourite > 0 ? std::to_string(row.favourite) : "";
        default: return row.entry.folder;
    }
}

const frmLibrary::Row* frmLibrary::Current() const {
    const std::optional<size_t> row = tblProfiles.Current();
    return row && *row < shown_.size() ? &rows_[shown_[*row]] : nullptr;
}

void frmLibrary::ShowWhatCanBeDone() {
    const bool can = Current() != nullptr && Current()->entry.isThere && deeds_.canDo();
    for (Button* button : {&cmdPlay, &cmdOpen, &cmdCompare, &cmdMore}) button->SetEnabled(can);
}

// The rows may change under it, so it takes the path along.
void frmLibrary::Do(const std::function<void(const std::string&)>& deed) {
    ShowWhatCanBeDone();
    if (cmdOpen.Enabled()) deed(std::string(Current()->entry.path));
}

void frmLibrary::MakeFavourite(size_t slot) {
    Do([&](const std::string& path) { deeds_.MakeFavourite(path, slot); });
}

}  // namespace quirn
