#include "logedit/playerpanel.h"

#include <algorithm>

#include "platform/measures.h"
#include "platform/text.h"

namespace quirn {

namespace {

// clang-format off
//                             left   top  width  height
constexpr Bounds kIncludeLabel{ 150, 5145, 1700, kLabelHeight};
constexpr Bounds kInclude{      150, 5370, 1700, 1900};
constexpr Bounds kIn{          1920, 5370, 1150, kButtonHeight};
constexpr Bounds kOut{         1920, 5815, 1150, kButtonHeight};
constexpr Bounds kExcludeLabel{3140, 5145, 1700, kLabelHeight};
constexpr Bounds kExclude{     3140, 5370, 1700, 1900};
// clang-format on

constexpr int kTyping = 1000;                    // milliseconds
constexpr char kIncludeCaption[] = "Include :";  // until a log is loaded
constexpr char kExcludeCaption[] = "Exclude :";

size_t LongestName(const PlayerList& players) {
    size_t longest = 0;
    for (size_t i = 0; i < players.Count(); ++i) longest = std::max(longest, players.Name(i).size());
    return longest;
}

}  // namespace

PlayerPanel::PlayerPanel(Form& form, LogEdit& edit, Anchors& anchors)
    : edit_(edit),
      popupList_(&lstInclude),
      lblInclude(form, kIncludeLabel, kIncludeCaption),
      lstInclude(form, kInclude, "Include"),
      cmdIn(form, kIn, "<<"),
      cmdOut(form, kOut, ">>"),
      lblExclude(form, kExcludeLabel, kExcludeCaption),
      lstExclude(form, kExclude, "Exclude") {
    for (VirtualList* list : {&lstInclude, &lstExclude}) {
        const PlayerList& players = PlayersOf(*list);
        list->itemText = [&players](size_t item) { return std::string(players.Name(item)); };
        list->itemData = [&players](size_t item) { return static_cast<int32_t>(players.Number(item)); };
        list->onRightMouseDown = [this, list] {
            popupList_ = list;
            pointed_ = list->Pointed() ? PlayersOf(*list).Number(*list->Pointed()) : 0;
            if (onPopUp) onPopUp();
        };
    }
    typing_.SetInterval(kTyping);
    typing_.onTimer = [this] {
        typing_.SetEnabled(false);
        typed_.clear();
    };
    lstInclude.onDoubleClick = [this] { cmdOut_Click(); };
    lstExclude.onDoubleClick = [this] { cmdIn_Click(); };
    cmdIn.onClick = [this] { cmdIn_Click(); };
    cmdOut.onClick = [this] { cmdOut_Click(); };
    for (Control* control :
         std::initializer_list<Control*>{&lblInclude, &lstInclude, &cmdIn, &cmdOut, &lblExclude, &lstExclude})
        anchors.Add(*control, Anchor::Stay, Anchor::Follow);
}

void PlayerPanel::Reset() {
    Empty();
    lblInclude.SetText(kIncludeCaption);
    lblExclude.SetText(kExcludeCaption);
}

void PlayerPanel::Empty() {
    edit_.awaited.clear();
    lstExclude.SetCount(0, 0);
    lstInclude.SetCount(0, 0);
}

void PlayerPanel::Show() {
    for (VirtualList* list : {&lstInclude, &lstExclude})
        list->SetCount(PlayersOf(*list).Count(), LongestName(PlayersOf(*list)));
    UpdateListCounts();
}

void PlayerPanel::UpdateListCounts() {
    lblInclude.SetText(IncludeCaption(edit_.include));
    lblExclude.SetText(ExcludeCaption(edit_.exclude));
}

void PlayerPanel::KeyPress(char character) {
    for (VirtualList* list : {&lstInclude, &lstExclude}) {
        // A space is part of a name, but does not begin one.
        const char lowest = typed_.empty() ? ' ' + 1 : ' ';
        if (!list->HasFocus() || static_cast<unsigned char>(character) < lowest || list->Count() == 0) continue;
        const size_t current = list->Current().value_or(list->Count() - 1);
        typed_ += character;
        // The name that one is at may be the one that is meant; a single character goes on to the next.
        if (typed_.size() == 1 || !GoTo(*list, current, typed_)) {
            typed_ = character;
            GoTo(*list, current + 1, typed_);
        }
        typing_.SetEnabled(false);
        typing_.SetEnabled(true);
    }
}

// The first name, from one on and round the end, that begins with a text.
bool PlayerPanel::GoTo(VirtualList& list, size_t from, const std::string& start) {
    const PlayerList& players = PlayersOf(list);
    const std::string wanted = FoldCase(start);
    for (size_t i = 0; i < players.Count(); ++i) {
        const size_t item = (from + i) % players.Count();
        if (FoldCase(players.Name(item).substr(0, wanted.size())) != wanted) continue;
        ListSelection one;
        one.Reset(players.Count());
        one.Select(item, true);
        list.SetSelection(one);
        list.SetCurrent(item);
        list.SetTopIndex(item);
        return true;
    }
    return false;
}

void PlayerPanel::ShowOnly(const std::vector<uint32_t>& numbers) {
    const std::set<uint32_t> wanted(numbers.begin(), numbers.end());
    const auto isWanted = [&](uint32_t number) { return wanted.contains(number); };
    MoveNumbers(edit_.include, edit_.exclude, [&](uint32_t number) { return !isWanted(number); });
    MoveNumbers(edit_.exclude, edit_.include, isWanted);
    Show();
}

void PlayerPanel::Hide(uint32_t number) {
    MoveNumbers(edit_.include, edit_.exclude, [number](uint32_t other) { return other == number; });
    Show();
}

void PlayerPanel::Everyone() {
    edit_.awaited.clear();
    MoveNumbers(edit_.exclude, edit_.include, [](uint32_t) { return true; });
    Show();
}

void PlayerPanel::FillAgain() {
    for (size_t i = 0; i < edit_.exclude.Count(); ++i) edit_.awaited.emplace(edit_.exclude.Name(i));
    edit_.include.Fill(edit_.LogLines);
    edit_.exclude.Clear();
    ExcludeReturned();
    Show();
}

void PlayerPanel::AddNew(size_t known) {
    if (known < 2) {
        // One player alone is in no list.
        edit_.include.Fill(edit_.LogLines);
        Show();
    } else {
        edit_.include.Selection() = lstInclude.Selection();
        edit_.include.Add(known);
        ShowAdded();
    }
    if (ExcludeReturned()) Show();
}

// A log that begins anew has nobody at first.
bool PlayerPanel::ExcludeReturned() {
    if (edit_.awaited.empty()) return false;
    const size_t before = edit_.exclude.Count();
    MoveNumbers(edit_.include, edit_.exclude,
                [&](uint32_t number) { return edit_.awaited.contains(edit_.LogLines->Players()[number - 1]); });
    for (size_t i = 0; i < edit_.exclude.Count(); ++i) edit_.awaited.erase(std::string(edit_.exclude.Name(i)));
    return edit_.exclude.Count() > before;
}

// The names that were selected, at the keyboard and at the top stay so.
void PlayerPanel::ShowAdded() {
    const PlayerList& players = edit_.include;
    const size_t added = players.Count() - lstInclude.Count();
    const size_t known = edit_.LogLines->Players().size() - added;
    // Where the item that was the n-th of those known is now.
    const auto now = [&](size_t item) {
        for (size_t at = 0; at < players.Count(); ++at)
            if (players.Number(at) <= known && item-- == 0) return at;
        return size_t{0};
    };
    const size_t top = now(lstInclude.TopIndex());
    const std::optional<size_t> current = lstInclude.Current();
    lstInclude.SetCount(players.Count(), LongestName(players));
    lstInclude.SetSelection(players.Selection());
    if (current) lstInclude.SetCurrent(now(*current));
    lstInclude.SetTopIndex(top);
    UpdateListCounts();
}

void PlayerPanel::MoveNumbers(PlayerList& from, PlayerList& to, const std::function<bool(uint32_t number)>& moves) {
    from.Selection().ClearAll();
    for (size_t i = 0; i < from.Count(); ++i)
        if (moves(from.Number(i))) from.Selection().Select(i, true);
    quirn::MovePlayers(from, to);
}

void PlayerPanel::mnuInExPopup_Only_Click() {
    const PlayerList& players = PlayersOf(*popupList_);
    std::vector<uint32_t> numbers;
    popupList_->Selection().ForEach([&](size_t item) { numbers.push_back(players.Number(item)); });
    if (numbers.empty()) numbers.push_back(pointed_);
    ShowOnly(numbers);
}

void PlayerPanel::mnuInExPopup_All_Click() {
    popupList_->SelectAll();
}

void PlayerPanel::mnuInExPopup_Invert_Click() {
    ListSelection other = popupList_->Selection();
    other.Invert();
    popupList_->SetSelection(other);
}

bool PlayerPanel::Includes(uint32_t number) const {
    for (size_t i = 0; i < edit_.include.Count(); ++i)
        if (edit_.include.Number(i) == number) return true;
    return false;
}

std::string PlayerPanel::SelectedText() {
    for (const VirtualList* list : {&lstInclude, &lstExclude}) {
        if (!list->HasFocus()) continue;
        PlayersOf(*list).Selection() = list->Selection();
        return PlayersOf(*list).SelectedText();
    }
    return {};
}

void PlayerPanel::cmdIn_Click() {
    MovePlayers(lstExclude, lstInclude);
}

void PlayerPanel::cmdOut_Click() {
    MovePlayers(lstInclude, lstExclude);
}

void PlayerPanel::MovePlayers(VirtualList& from, VirtualList& to) {
    PlayerList& fromPlayers = PlayersOf(from);
    PlayerList& toPlayers = PlayersOf(to);
    fromPlayers.Selection() = from.Selection();
    toPlayers.Selection() = to.Selection();
    quirn::MovePlayers(fromPlayers, toPlayers);
    const size_t top = to.TopIndex();
    from.SelectionRemoved(LongestName(fromPlayers));
    to.SetCount(toPlayers.Count(), LongestName(toPlayers));
    to.SetSelection(toPlayers.Selection());
    to.SetTopIndex(top);
    UpdateListCounts();
    if (onMove) onMove();
}

PlayerList& PlayerPanel::PlayersOf(const VirtualList& list) {
    return &list == &lstInclude ? edit_.include : edit_.exclude;
}

}  // namespace quirn
