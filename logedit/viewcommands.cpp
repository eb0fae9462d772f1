#include "logedit/viewcommands.h"

#include <algorithm>

#include "logedit/logfind.h"
#include "platform/dialogs.h"
#include "platform/text.h"
#include "profile/splitpath.h"

namespace quirn {

namespace {

constexpr Color kBlack = Rgb(0, 0, 0);
constexpr Color kWhite = Rgb(255, 255, 255);

}  // namespace

ViewCommands::ViewCommands(LogEdit& edit, VirtualList& list, PlayerPanel& players, std::function<void()> shown)
    : edit_(edit), list_(list), players_(players), shown_(std::move(shown)) {}

void ViewCommands::ShowAnew() {
    emptied_ = {};
    list_.SetCount(edit_.view.Count(), edit_.view.LongestText());
    shown_();
}

void ViewCommands::Delete() {
    edit_.view.Delete(list_.Selection(), list_.TopIndex());
    list_.SelectionRemoved(edit_.view.LongestText());
    shown_();
}

void ViewCommands::Undo() {
    if (CanUndo()) Restore(edit_.view.Undo());
}

void ViewCommands::Redo() {
    if (CanRedo()) Restore(edit_.view.Redo());
}

void ViewCommands::Restore(const LogView::Restored& restored) {
    emptied_ = {};
    list_.SetCount(edit_.view.Count(), edit_.view.LongestText());
    list_.SetSelection(restored.selection);
    list_.SetTopIndex(restored.top);
    shown_();
}

void ViewCommands::KeepPlace(const std::function<void()>& change) {
    const LinesInPlace kept = Remember();
    change();
    if (!HasLog()) return;
    const LogView& view = edit_.view;
    list_.SetCount(view.Count(), view.LongestText());
    if (kept.selects) list_.SetSelection(ItemsOf(kept.selected));
    if (kept.current != kNoLine && view.Count() > 0)
        list_.SetCurrent(std::min(view.ItemOfLine(kept.current), view.Count() - 1));
    const size_t anchor = view.ItemOfLine(kept.anchor);
    list_.SetTopIndex(anchor - std::min(anchor, kept.above));
    emptied_ = view.Count() == 0 ? kept : LinesInPlace();
    shown_();
}

ViewCommands::LinesInPlace ViewCommands::Remember() const {
    const LogView& view = edit_.view;
    if (view.Count() == 0) return emptied_;
    LinesInPlace kept;
    const size_t top = std::min(list_.TopIndex(), view.Count() - 1);
    const size_t anchor = CurrentInSight().value_or(top);
    kept.anchor = view.LineIndex(anchor);
    kept.above = anchor - top;
    if (list_.Current()) kept.current = view.LineIndex(*list_.Current());
    kept.selects = list_.Selection().SelectedCount() > 0;
    if (!kept.selects) return kept;
    kept.selected.Reset(view.Log()->LineCount());
    list_.Selection().ForEach([&](size_t item) { kept.selected.Select(view.LineIndex(item), true); });
    return kept;
}

std::optional<size_t> ViewCommands::CurrentInSight() const {
    const std::optional<size_t> current = list_.Current();
    return current && list_.Shows(*current) ? current : std::nullopt;
}

// Those that are still shown.
ListSelection ViewCommands::ItemsOf(const ListSelection& lines) const {
    const LogView& view = edit_.view;
    ListSelection items;
    items.Reset(view.Count());
    size_t item = 0;
    lines.ForEach([&](size_t line) {
        item = view.ItemOfLine(line, item);
        if (item < view.Count() && view.LineIndex(item) == line) items.Select(item, true);
    });
    return items;
}

void ViewCommands::FilterByText(const std::string& text) {
    KeepPlace([&] { edit_.view.SetText(TextFilter(text)); });
}

void ViewCommands::ShowAll() {
    if (!HasLog()) return;
    KeepPlace([this] { edit_.view.ShowAll(!edit_.view.ShowsAll()); });
}

void ViewCommands::FindNext(const std::string& text) {
    const FindList list{
        .topIndex = [this] { return list_.TopIndex(); },
        .current = [this] { return list_.Current(); },
        .showHit =
            [this](size_t item) {
                list_.SetTopIndex(item);
                list_.SetCurrent(item);
                list_.Select(item);
            },
    };
    const bool moved = FindInLog(edit_.view, text, list);
    edit_.lastSearch = text;
    if (!moved) ShowMessage(CannotFindText(text), kInformation);
}

// With a rule of its own: also a hit in the last screenful, or one that is in sight already, is selected.
void ViewCommands::FindPrevious(const std::string& text) {
    const std::optional<size_t> hit = FindItemBefore(edit_.view, text, CurrentInSight().value_or(list_.TopIndex()));
    if (!hit) {
        ShowMessage(CannotFindText(text), kInformation);
        return;
    }
    ListSelection one;
    one.Reset(list_.Count());
    one.Select(*hit, true);
    list_.SetSelection(one);
    list_.SetTopIndex(*hit);
    list_.SetCurrent(*hit);
}

std::optional<size_t> ViewCommands::LogInSight() const {
    const LogView& view = edit_.view;
    if (!HasSeveral() || view.Count() == 0) return std::nullopt;
    const size_t item = CurrentInSight().value_or(list_.TopIndex());
    return view.Log()->FileOf(view.LineIndex(std::min(item, view.Count() - 1)));
}

std::string ViewCommands::FileInSight() const {
    const std::optional<size_t> file = LogInSight();
    return file ? SplitPath(edit_.view.Log()->Files()[*file].path).File() : std::string();
}

void ViewCommands::GoToNextLog() {
    const std::optional<size_t> file = LogInSight();
    if (!file || *file + 1 == edit_.view.Log()->Files().size()) return;
    GoToLine(edit_.view.Log()->FirstLineOf(*file + 1));
}

// The first log before it of which a line is shown; from the first log to its start.
void ViewCommands::GoToPreviousLog() {
    const std::optional<size_t> file = LogInSight();
    if (!file) return;
    const LogView& view = edit_.view;
    const ParsedLog& log = *view.Log();
    const size_t first = view.ItemOfLine(log.FirstLineOf(*file));
    GoToLine(first == 0 ? 0 : log.FirstLineOf(log.FileOf(view.LineIndex(first - 1))));
}

void ViewCommands::GoToLine(size_t line) {
    const size_t item = edit_.view.ItemOfLine(line);
    if (item == edit_.view.Count()) return;
    list_.SetTopIndex(item);
    list_.SetCurrent(item);
}

uint32_t ViewCommands::Speaker() const {
    const std::optional<size_t> current = list_.Current();
    return HasLog() && current && *current < edit_.view.Count() ? PlayerOf(edit_.view.Info(*current)) : 0;
}

std::vector<PlayerStatistics> ViewCommands::CountPlayers(bool shownOnly) const {
    if (!HasLog()) return {};
    return shownOnly ? quirn::CountPlayers(edit_.view.Lines()) : quirn::CountPlayers(*edit_.view.Log());
}

// Who never speaks has no lines of his own: nothing is left but those of nobody.
void ViewCommands::OnlyPlayer(const std::string& name) {
    if (!HasLog()) return;
    std::vector<uint32_t> numbers;
    const auto& players = edit_.view.Log()->Players();
    for (size_t i = 0; i < players.size(); ++i)
        if (EqualNoCase(players[i], name)) numbers.push_back(static_cast<uint32_t>(i + 1));
    if (numbers.empty()) {
        ShowMessage(name + " says nothing in this log.", kInformation);
        return;
    }
    players_.ShowOnly(numbers);
    ApplyPlayers();
}

void ViewCommands::OnlySpeaker() {
    players_.ShowOnly({Speaker()});
    ApplyPlayers();
}

void ViewCommands::HideSpeaker() {
    players_.Hide(Speaker());
    ApplyPlayers();
}

void ViewCommands::Everyone() {
    players_.Everyone();
    ApplyPlayers();
}

void ViewCommands::ChooseLogFont() {
    if (const auto font = AskFont(list_.FontUsed())) list_.SetFont(*font);
}

void ViewCommands::ChooseLogColor(bool foreground) {
    const auto color = AskColor(foreground ? list_.ForeColor().value_or(kBlack) : list_.BackColor().value_or(kWhite));
    if (!color) return;
    if (foreground) list_.SetForeColor(*color);
    else list_.SetBackColor(*color);
}

void ViewCommands::FilterAnew(const std::shared_ptr<const ParsedLog>& log, const LineFilter& filter, bool keepsAll) {
    KeepPlace([&] {
        const bool showsAll = keepsAll && edit_.view.ShowsAll();
        ShowError(edit_.view.ApplyLogFilter(log, filter, edit_.lineNumbers, true));
        if (showsAll) edit_.view.ShowAll(true);
    });
}

void ViewCommands::ApplyPlayers() {
    if (!HasLog()) return;
    const uint32_t mask = edit_.view.Filter().mask;
    FilterAnew(edit_.view.Log(),
               MakeLineFilterFor(*edit_.view.Log(), mask, edit_.include, edit_.exclude, edit_.awaited), false);
}

void ViewCommands::ShowUnknown() {
    if (!HasLog()) return;
    LineFilter filter = edit_.view.Filter();
    filter.mask = (filter.mask & ~kUnknown) | (edit_.showUnknown ? uint32_t{kUnknown} : 0);
    FilterAnew(edit_.view.Log(), filter, true);
}

// Of a log that could not be shown nothing has been applied yet.
void ViewCommands::ShowReadAgain() {
    FilterAnew(
        edit_.LogLines,
        HasLog() ? FilterForLog(edit_.view.Filter(), *edit_.view.Log(), *edit_.LogLines)
                 : MakeLineFilterFor(*edit_.LogLines, edit_.FilterMask(), edit_.include, edit_.exclude, edit_.awaited),
        true);
}

size_t ViewCommands::ShowNew(size_t lines, size_t players) {
    LogView& view = edit_.view;
    const size_t before = view.Count();
    const size_t tagLength = view.TagLength();
    const auto extend = [&] {
        if (const Result<size_t> count = view.Extend(lines, players); count.Failed()) ShowError(count.Error());
    };
    if (before == 0) {
        KeepPlace(extend);
        return view.Count();
    }
    extend();
    list_.Grow(view.Count(), view.LongestText());
    if (view.TagLength() != tagLength) list_.ItemsChanged();
    shown_();
    return view.Count() - before;
}

}  // namespace quirn
