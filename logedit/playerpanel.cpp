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
            if (onPopUp) onPopUp();
        };
    }
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
        if (!list->HasFocus() || static_cast<unsigned char>(character) <= ' ') continue;
        const PlayerList& players = PlayersOf(*list);
        for (size_t i = 0; i < players.Count(); ++i) {
            const size_t item = (list->Current().value_or(players.Count() - 1) + 1 + i) % players.Count();
            if (players.Name(item).empty() || FoldCase(players.Name(item)[0]) != FoldCase(character)) continue;
            ListSelection one;
            one.Reset(players.Count());
            one.Select(item, true);
            list->SetSelection(one);
            list->SetCurrent(item);
            list->SetTopIndex(item);
            break;
        }
    }
}

void PlayerPanel::mnuInExPopup_All_Click() {
    popupList_->SelectAll();
}

void PlayerPanel::mnuInExPopup_Invert_Click() {
    ListSelection other = popupList_->Selection();
    other.Invert();
    popupList_->SetSelection(other);
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
