#include "logedit/filterrow.h"

#include "platform/measures.h"

namespace quirn {

namespace {

// clang-format off
//                       left   top  width  height
constexpr Bounds kOnly{   150, 7590,  1290, kLabelHeight};
constexpr Bounds kText{  1500, 7545,  3340, kRowHeight};
constexpr Bounds kAll{   4960, 7515,  1380, kButtonHeight};
constexpr Bounds kCounts{6480, 7590,  2700, kLabelHeight};
constexpr Bounds kStrip{  9240, 7590,  2510, kLabelHeight};
// clang-format on

constexpr int kPause = 200;  // milliseconds

std::string Shown(size_t count, size_t all) {
    return std::to_string(count) + " of " + std::to_string(all) + (all == 1 ? " line" : " lines");
}

std::string WhyHidden(const LogView::Hidden& hidden) {
    std::string text;
    const auto add = [&](size_t count, const char* why) {
        if (count > 0) text += (text.empty() ? "Hidden: " : ", ") + std::to_string(count) + why;
    };
    add(hidden.byType - hidden.unknown, " by type");
    add(hidden.unknown, " of unknown kind");
    add(hidden.byPlayer, " by player");
    add(hidden.deleted, " deleted");
    add(hidden.byText, " by text");
    return text.empty() ? "No line is hidden" : text;
}

}  // namespace

FilterRow::FilterRow(Form& form, Anchors& anchors)
    : lblOnly(form, kOnly, "Only lines &with:"),
      txtFilter(form, kText),
      cmdShowAll(form, kAll, "Show &All"),
      lblCounts(form, kCounts, "", Alignment::Left, Label::kShowsData),
      lblStrip(form, kStrip, "", Alignment::Right, Label::kShowsData) {
    for (Control* control : std::initializer_list<Control*>{&lblOnly, &txtFilter, &cmdShowAll, &lblCounts})
        anchors.Add(*control, Anchor::Stay, Anchor::Follow);
    anchors.Add(lblStrip, Anchor::Grow, Anchor::Follow);
    txtFilter.SetToolTip("All words must stand in a line; -word must not; \"two words\" count as one");
    pause_.SetInterval(kPause);
    pause_.onTimer = [this] { ApplyText(); };
    txtFilter.onChange = [this] {
        pause_.SetEnabled(false);
        pause_.SetEnabled(true);
    };
    cmdShowAll.onClick = [this] { ShowAll(); };
    Reset();
}

void FilterRow::ApplyText() {
    if (!pause_.Enabled()) return;
    pause_.SetEnabled(false);
    onText(txtFilter.Text());
}

void FilterRow::ShowAll() {
    const bool wanted = !showsAll_;
    ApplyText();
    if (showsAll_ != wanted) onShowAll();
}

void FilterRow::FocusText() {
    txtFilter.SetFocus();
    txtFilter.SelectAll();
}

void FilterRow::Reset() {
    pause_.SetEnabled(false);
    txtFilter.SetText("");
    news_.clear();
    trouble_.clear();
    file_.clear();
    ShowStrip();
}

bool FilterRow::KeyDown(int key) {
    if (!txtFilter.HasFocus()) return false;
    if (key == kKeyDown) ApplyText(), onDown();
    else if (key == kKeyEscape && !txtFilter.Text().empty()) txtFilter.UserEdits("");
    else return false;
    return true;
}

void FilterRow::ShowCounts(const LogView& view) {
    showsAll_ = view.ShowsAll();
    cmdShowAll.SetEnabled(view.Log() != nullptr);
    cmdShowAll.SetText(view.ShowsAll() ? "Show Fil&tered" : "Show &All");
    lblCounts.SetText(view.Log() == nullptr ? "" : Shown(view.Count(), view.Log()->LineCount()));
    lblCounts.SetToolTip(view.Log() == nullptr ? "" : WhyHidden(view.CountHidden()));
}

void FilterRow::ShowNews(const std::string& text) {
    news_ = text;
    trouble_.clear();
    ShowStrip();
}

void FilterRow::ShowTrouble(const std::string& text, const std::string& why) {
    news_ = text;
    trouble_ = why.empty() ? text : text + ": " + why;
    ShowStrip();
}

void FilterRow::ShowFile(const std::string& name) {
    if (name != file_) trouble_.clear();
    file_ = name;
    ShowStrip();
}

void FilterRow::ShowStrip() {
    const std::string news = file_ + (file_.empty() || news_.empty() ? "" : " - ") + news_;
    const std::string& text = trouble_.empty() ? news : news_;
    const std::string& tip = trouble_.empty() ? text : trouble_;
    if (text != lblStrip.Text()) lblStrip.SetText(text);
    if (tip != lblStrip.ToolTip()) lblStrip.SetToolTip(tip);
}

}  // namespace quirn
