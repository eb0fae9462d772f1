#include "logedit/frmlogstatistics.h"

#include <algorithm>
#include <cstdio>

#include "logedit/playerlist.h"
#include "mainwin/keptplace.h"
#include "platform/clipboard.h"
#include "platform/dialogs.h"
#include "platform/measures.h"
#include "platform/text.h"

namespace quirn {

namespace {

constexpr char kPlaceName[] = "LogStatistics";
constexpr int kWidth = 10200;
constexpr int kHeight = 6000;
constexpr int kInnerWidth = 9960;
constexpr int kInnerHeight = 5460;
constexpr int kLeastWidth = 8400;
constexpr int kLeastHeight = 3600;
constexpr int kPause = 300;  // milliseconds

// clang-format off
//                        left   top  width  height
constexpr Bounds kCount{   120,  180,   600, kLabelHeight};
constexpr Bounds kWhole{   780,  165,  1500, kCheckHeight};
constexpr Bounds kShown{  2400,  165,  1700, kCheckHeight};
constexpr Bounds kFind{   4800,  180,   540, kLabelHeight};
constexpr Bounds kText{   5400,  120,  2400, kRowHeight};
constexpr Bounds kTable{   120,  540,  9720, 4260};
constexpr Bounds kOnly{    120, 4950,  1800, kButtonHeight};
constexpr Bounds kClose{  8460, 4950,  1380, kButtonHeight};
// clang-format on

enum Column { kPlayer, kLines, kShare, kKills, kDeaths, kRatio, kFirst, kLast };

// With one digit, or two, behind the point.
std::string Decimal(double number, int digits) {
    char text[32];
    std::snprintf(text, sizeof(text), "%.*f", digits, number);
    return text;
}

}  // namespace

frmLogStatistics::frmLogStatistics(std::function<std::vector<PlayerStatistics>(bool shownOnly)> count,
                                   std::function<std::string()> logName,
                                   std::function<void(const std::string& player)> only)
    : Form(FormBorder::SizableDialog, kWidth, kHeight),
      count_(std::move(count)),
      logName_(std::move(logName)),
      only_(std::move(only)),
      sortColumn_(kLines),
      Label1(*this, kCount, "Count:"),
      optWhole(*this, source_, kWhole, "&Whole log"),
      optShown(*this, source_, kShown, "Lines &shown"),
      Label2(*this, kFind, "&Find:"),
      txtFind(*this, kText),
      tblPlayers(*this, kTable, "Players",
                 {{"Player", 2400},
                  {"Lines", 900, Alignment::Right},
                  {"Share", 1050, Alignment::Right},
                  {"Kills", 900, Alignment::Right},
                  {"Deaths", 900, Alignment::Right},
                  {"Ratio", 1050, Alignment::Right},
                  {"First Line", 1100, Alignment::Right},
                  {"Last Line", 1100, Alignment::Right}}),
      cmdOnly(*this, kOnly, "&Only This Player"),
      cmdClose(*this, kClose, "Close"),
      anchors_(kInnerWidth, kInnerHeight) {
    SetMinimumSize(kLeastWidth, kLeastHeight);
    SetButtons(&cmdOnly, &cmdClose);
    anchors_.Add(tblPlayers, Anchor::Grow, Anchor::Grow)
        .Add(cmdOnly, Anchor::Stay, Anchor::Follow)
        .Add(cmdClose, Anchor::Follow, Anchor::Follow);
    onLoad = [this] { Form_Load(); };
    onResize = [this] {
        if (!IsMinimized()) anchors_.Place(InnerWidth(), InnerHeight());
    };
    onUnload = [this] {
        pause_.SetEnabled(false);
        StorePlace(*this, tblPlayers, kPlaceName);
        return true;
    };
    onKeyDown = [this](int key, bool control) { return Form_KeyDown(key, control); };
    pause_.SetInterval(kPause);
    pause_.onTimer = [this] {
        pause_.SetEnabled(false);
        CountAnew();
    };
    source_.onClick = [this] { CountAnew(); };
    txtFind.onChange = [this] {
        ShowRows(SelectedPlayer());
        if (!shown_.empty() && !tblPlayers.Current()) tblPlayers.SetCurrent(0);
        ShowSelected();
    };
    tblPlayers.cellText = [this](size_t row, int column) { return CellText(players_[shown_[row]], column); };
    tblPlayers.cellBar = [this](size_t row, int column) { return Bar(players_[shown_[row]], column); };
    tblPlayers.onSort = [this](int column) { SortBy(column); };
    tblPlayers.onActivate = [this] { cmdOnly_Click(); };
    tblPlayers.onSelect = [this] { ShowSelected(); };
    tblPlayers.SetEmptyText("Nobody speaks, kills or dies here.");
    cmdOnly.onClick = [this] { cmdOnly_Click(); };
    cmdClose.onClick = [this] { Unload(); };
}

void frmLogStatistics::LinesChanged() {
    if (Visible()) pause_.SetEnabled(true);
}

void frmLogStatistics::Open(Form& owner) {
    Load();
    CountAnew();
    if (!shown_.empty()) tblPlayers.SetCurrent(0);
    ShowSelected();
    if (Visible()) BringToFront();
    else ShowOwned(owner);
    tblPlayers.SetFocus();
}

void frmLogStatistics::Form_Load() {
    source_.Select(optWhole.Index());
    txtFind.SetText("");
    RestorePlace(*this, tblPlayers, kPlaceName);
    tblPlayers.SetSortArrow(sortColumn_, sortsDown_);
    onResize();
}

bool frmLogStatistics::Form_KeyDown(int key, bool control) {
    if (!control && key == kKeyF5) CountAnew();
    else if (control && key == 'F') txtFind.SetFocus();
    else if (control && key == 'C' && tblPlayers.HasFocus()) CopyRows();
    else return false;
    return true;
}

// Another log may have been opened meanwhile.
void frmLogStatistics::CountAnew() {
    const std::optional<std::string> selected = SelectedPlayer();
    SetCaption("Player Statistics - " + logName_());
    players_ = count_(source_.Selected() == optShown.Index());
    allLines_ = mostLines_ = 0;
    bestRatio_ = 0;
    for (const PlayerStatistics& player : players_) {
        allLines_ += player.lines;
        mostLines_ = std::max(mostLines_, player.lines);
        bestRatio_ = std::max(bestRatio_, player.Ratio());
    }
    ShowRows(selected);
}

std::optional<std::string> frmLogStatistics::SelectedPlayer() const {
    if (!tblPlayers.Current()) return std::nullopt;
    return players_[shown_[*tblPlayers.Current()]].name;
}

void frmLogStatistics::ShowSelected() {
    cmdOnly.SetEnabled(tblPlayers.Current().has_value());
}

// The player stays selected while there is a row for him.
void frmLogStatistics::ShowRows(const std::optional<std::string>& selected) {
    const std::string wanted = FoldCase(txtFind.Text());
    shown_.clear();
    for (size_t i = 0; i < players_.size(); ++i)
        if (wanted.empty() || FoldCase(players_[i].name).find(wanted) != std::string::npos) shown_.push_back(i);
    std::stable_sort(shown_.begin(), shown_.end(), [this](size_t a, size_t b) {
        return sortsDown_ ? ComesBefore(players_[b], players_[a]) : ComesBefore(players_[a], players_[b]);
    });
    tblPlayers.SetRowCount(shown_.size());
    const auto row = std::find_if(shown_.begin(), shown_.end(), [&](size_t i) { return players_[i].name == selected; });
    if (row != shown_.end()) tblPlayers.SetCurrentInPlace(static_cast<size_t>(row - shown_.begin()));
    ShowSelected();
}

// A column of numbers begins with the greatest.
void frmLogStatistics::SortBy(int column) {
    sortsDown_ = column == sortColumn_ ? !sortsDown_ : column != kPlayer;
    sortColumn_ = column;
    tblPlayers.SetSortArrow(sortColumn_, sortsDown_);
    ShowRows(SelectedPlayer());
    if (tblPlayers.Current()) tblPlayers.ScrollTo(*tblPlayers.Current());
}

bool frmLogStatistics::ComesBefore(const PlayerStatistics& a, const PlayerStatistics& b) const {
    switch (sortColumn_) {
        case kPlayer: return quirn::ComesBefore(a.name, b.name);
        case kLines:
        case kShare: return a.lines < b.lines;
        case kKills: return a.kills < b.kills;
        case kDeaths: return a.deaths < b.deaths;
        case kRatio: return a.Ratio() < b.Ratio();
        case kFirst: return a.first < b.first;
        default: return a.last < b.last;
    }
}

std::string frmLogStatistics::CellText(const PlayerStatistics& player, int column) const {
    switch (column) {
        case kPlayer: return player.name;
        case kLines: return std::to_string(player.lines);
        case kShare:
            return Decimal(
                       allLines_ == 0 ? 0 : 100.0 * static_cast<double>(player.lines) / static_cast<double>(allLines_),
                       1) +
                   " %";
        case kKills: return std::to_string(player.kills);
        case kDeaths: return std::to_string(player.deaths);
        case kRatio: return player.kills + player.deaths == 0 ? "-" : Decimal(player.Ratio(), 2);
        case kFirst: return std::to_string(player.first + 1);
        default: return std::to_string(player.last + 1);
    }
}

double frmLogStatistics::Bar(const PlayerStatistics& player, int column) const {
    if (column == kShare && mostLines_ > 0) return static_cast<double>(player.lines) / static_cast<double>(mostLines_);
    if (column == kRatio && bestRatio_ > 0) return player.Ratio() / bestRatio_;
    return 0;
}

void frmLogStatistics::cmdOnly_Click() {
    if (tblPlayers.Current()) only_(players_[shown_[*tblPlayers.Current()]].name);
}

// All rows that are shown, for a spreadsheet.
void frmLogStatistics::CopyRows() {
    std::string text;
    for (const TableColumn& column : tblPlayers.Columns()) text += (text.empty() ? "" : "\t") + column.caption;
    for (const size_t player : shown_) {
        text += "\r\n";
        for (int column = kPlayer; column <= kLast; ++column) {
            if (column > kPlayer) text += '\t';
            text += CellText(players_[player], column);
        }
    }
    ShowError(SetClipboardText(text));
}

}  // namespace quirn
