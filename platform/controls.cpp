#include "platform/controls.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "platform/form.h"
#include "platform/native.h"
#include "platform/text.h"

namespace quirn {

namespace {

// Asks a handler whether it takes a character or key for itself.
template <class Key>
bool Ask(const std::function<bool(Key)>& handler, Key key) {
    bool swallowed = false;
    if (handler) CallHandler([&] { swallowed = handler(key); });
    return swallowed;
}

bool IsEnterOrEscape(int key) {
    return key == kKeyEnter || key == kKeyEscape;
}

int IndexIn(const std::vector<std::string>& items, int index) {
    return index >= 0 && index < static_cast<int>(items.size()) ? index : -1;
}

}  // namespace

Label::Label(Parent parent, const Bounds& place, const std::string& text, Alignment alignment)
    : Label(parent, place, text, alignment, false) {}

Label::Label(Parent parent, const Bounds& place, const std::string& text, Alignment alignment, bool showsData)
    : Control(parent, native::kLabel, place, text), alignment_(alignment), showsData_(showsData) {}

Picture::Picture(Parent parent, const Bounds& place, int resource)
    : Control(parent, native::kPicture, place, {}), resource_(resource) {}

void Label::UserClicks() {
    CallHandler(onClick);
}

void Label::UserDoubleClicks() {
    CallHandler(onDoubleClick ? onDoubleClick : onClick);
}

// A text and a frame name what comes after them.
bool Label::UserPressesAccessKey() {
    if (!showsData_) Holder().Owner().FocusNext(this);
    return !showsData_;
}

bool Frame::UserPressesAccessKey() {
    Holder().Owner().FocusNext(this);
    return true;
}

void Picture::UserClicks() {
    CallHandler(onClick);
}

Frame::Frame(Parent parent, const Bounds& place, const std::string& caption, FrameStyle style)
    : Control(parent, native::kFrame, place, caption), style_(style) {}

Frame::operator Parent() const {
    return {Holder(), this};
}

Button::Button(Parent parent, const Bounds& place, const std::string& caption)
    : Button(parent, native::kButton, place, caption) {}

Button::Button(Parent parent, const native::Kind& kind, const Bounds& place, const std::string& caption)
    : Control(parent, kind, place, caption) {}

LinkButton::LinkButton(Parent parent, const Bounds& place, const std::string& caption)
    : Button(parent, native::kLinkButton, place, caption) {
    SetForeColor(kLinkColor);
}

void Button::UserClicks() {
    if (Enabled()) CallHandler(onClick);
}

bool Button::UserPressesEnter() {
    UserClicks();
    return true;
}

bool Button::UserPressesAccessKey() {
    UserClicks();
    return true;
}

CheckBox::CheckBox(Parent parent, const Bounds& place, const std::string& caption)
    : Control(parent, native::kCheckBox, place, caption) {}

void CheckBox::SetValue(int value) {
    value_ = value != 0 ? 1 : 0;
    Changed(Aspect::Value);
}

void CheckBox::UserClicks() {
    if (!Enabled()) return;
    SetValue(1 - value_);
    CallHandler(onClick);
    CallHandler(onMouseUp);
}

bool CheckBox::UserPressesAccessKey() {
    SetFocus();
    UserClicks();
    return true;
}

OptionButton::OptionButton(Parent parent, OptionGroup& group, const Bounds& place, const std::string& caption)
    : Control(parent, native::kOptionButton, place, caption),
      group_(&group),
      index_(static_cast<int>(group.buttons_.size())) {
    group.buttons_.push_back(this);
}

void OptionButton::UserClicks() {
    if (!Enabled() || group_->Selected() == index_) return;
    group_->Select(index_);
    CallHandler(group_->onClick);
}

bool OptionButton::UserPressesAccessKey() {
    SetFocus();
    UserClicks();
    return true;
}

void OptionGroup::Select(int index) {
    selected_ = index >= 0 && index < static_cast<int>(buttons_.size()) ? index : -1;
    for (OptionButton* button : buttons_) button->Changed(Aspect::Value);
}

TextBox::TextBox(Parent parent, const Bounds& place, const std::string& text, TextStyle style)
    : Control(parent, native::kTextBox, place, text), style_(style) {}

void TextBox::SetMasked(bool masked) {
    masked_ = masked;
    Changed(Aspect::Value);
}

void MaskedBox::SelectAll() {
    if (window != nullptr) native::SelectAll(*this);
}

void TextBox::SelectAll() {
    if (window != nullptr) native::SelectAll(*this);
}

void TextBox::PutCaretAtEnd() {
    if (window != nullptr) native::PutCaretAtEnd(*this);
}

int TextBox::CaretLeft() const {
    return window != nullptr ? native::CaretLeft(*this) : 0;
}

void TextBox::UserEdits(const std::string& text) {
    if (text == text_) return;
    text_ = text;
    Changed(Aspect::Text);
    CallHandler(onChange);
}

bool TextBox::UserPastes(const std::string& text) {
    bool taken = false;
    if (onPaste) CallHandler([&] { taken = onPaste(text); });
    return taken;
}

bool TextBox::UserTypes(char character) {
    return Ask(onKeyPress, character);
}

bool TextBox::UserPressesEnter() {
    return UserTypes(static_cast<char>(kKeyEnter));
}

// Those with which it edits.
bool TextBox::KeepsKey(int key, bool control) const {
    return key == kKeyDelete ||
           (control && std::string_view("ACVXZ").find(static_cast<char>(key)) != std::string_view::npos);
}

ComboBox::ComboBox(Parent parent, const Bounds& place) : Control(parent, native::kComboBox, place, {}) {}

void ComboBox::SetItems(std::vector<std::string> items) {
    items_ = std::move(items);
    listIndex_ = -1;
    Changed(Aspect::Items);
}

void ComboBox::SetListIndex(int index) {
    listIndex_ = IndexIn(items_, index);
    Changed(Aspect::Selection);
}

std::string ComboBox::SelectedText() const {
    return listIndex_ < 0 ? std::string() : items_[static_cast<size_t>(listIndex_)];
}

void ComboBox::UserSelects(int index) {
    if (IndexIn(items_, index) < 0 || index == listIndex_) return;
    SetListIndex(index);
    CallHandler(onClick);
}

void ComboBox::UserHighlights(int index) {
    if (onHighlight) CallHandler([&] { onHighlight(IndexIn(items_, index)); });
}

void ComboBox::UserOpens(bool open) {
    if (onOpen) CallHandler([&] { onOpen(open); });
}

// They close the open list.
bool ComboBox::KeepsKey(int key, bool) const {
    return IsEnterOrEscape(key) && window != nullptr && native::IsOpen(*this);
}

ListBox::ListBox(Parent parent, const Bounds& place, ListStyle style)
    : Control(parent, native::kListBox, place, {}), style_(style) {}

void ListBox::SetItems(std::vector<std::string> items) {
    items_ = std::move(items);
    selected_.assign(items_.size(), false);
    Changed(Aspect::Items);
}

void ListBox::AddItem(const std::string& text) {
    items_.push_back(text);
    selected_.push_back(false);
    Changed(Aspect::Items);
}

void ListBox::SetItem(int index, const std::string& text) {
    if (IndexIn(items_, index) < 0) return;
    items_[static_cast<size_t>(index)] = text;
    Changed(Aspect::Items);
}

void ListBox::RemoveSelected() {
    size_t kept = 0;
    for (size_t i = 0; i < items_.size(); ++i)
        if (!selected_[i]) std::swap(items_[kept++], items_[i]);
    items_.resize(kept);
    selected_.assign(kept, false);
    Changed(Aspect::Items);
}

bool ListBox::IsSelected(int index) const {
    return IndexIn(items_, index) >= 0 && selected_[static_cast<size_t>(index)];
}

std::vector<int> ListBox::SelectedItems() const {
    std::vector<int> indexes;
    for (int i = 0; i < static_cast<int>(items_.size()); ++i)
        if (IsSelected(i)) indexes.push_back(i);
    return indexes;
}

void ListBox::Select(int index, bool selected) {
    if (IndexIn(items_, index) < 0) return;
    if (style_ == ListStyle::Single && selected) selected_.assign(items_.size(), false);
    selected_[static_cast<size_t>(index)] = selected;
    Changed(Aspect::Selection);
}

int ListBox::ListIndex() const {
    const auto first = std::find(selected_.begin(), selected_.end(), true);
    return first == selected_.end() ? -1 : static_cast<int>(first - selected_.begin());
}

void ListBox::SetListIndex(int index) {
    selected_.assign(items_.size(), false);
    if (IndexIn(items_, index) >= 0) selected_[static_cast<size_t>(index)] = true;
    Changed(Aspect::Selection);
}

void ListBox::UserSelects(const std::vector<int>& indexes) {
    std::vector<char> selected(items_.size(), false);
    for (const int index : indexes)
        if (IndexIn(items_, index) >= 0) selected[static_cast<size_t>(index)] = true;
    if (selected == selected_) return;
    selected_ = std::move(selected);
    CallHandler(onClick);
}

void ListBox::UserDoubleClicks(int index) {
    if (onDoubleClick) CallHandler([&] { onDoubleClick(index); });
}

void ListBox::UserReleasesMouse() {
    CallHandler(onMouseUp);
}

bool ListBox::UserPressesKey(int virtualKey) {
    return Ask(onKeyDown, virtualKey);
}

bool ListBox::UserTypes(char character) {
    return Ask(onKeyPress, character);
}

bool ListBox::KeepsKey(int key, bool) const {
    return IsEnterOrEscape(key) && onKeyPress;
}

// The strip's own border and its one row of tabs; win32/ gives the tabs this height.
constexpr int kTabBorder = 30;

TabPage::TabPage(TabStrip& strip, const std::string& caption)
    : Container(strip.Holder().Owner()), strip_(&strip), caption_(caption) {
    strip.pages_.push_back(this);
}

bool TabPage::IsInFront() const {
    return strip_->Visible() && strip_->Pages()[static_cast<size_t>(strip_->Tab())] == this;
}

TabPage* PageOf(Container& container) {
    return &container == &container.Owner() ? nullptr : static_cast<TabPage*>(&container);
}

TabStrip::TabStrip(Parent parent, const Bounds& place) : Control(parent, native::kTabStrip, place, {}) {}

Bounds TabStrip::PageArea() const {
    const Bounds& place = Place();
    const int top = kTabHeight + 2 * kTabBorder;  // the tabs stand off the strip's upper edge
    return {place.left + kTabBorder, place.top + top, place.width - 2 * kTabBorder, place.height - top - kTabBorder};
}

void TabStrip::SetTab(int index) {
    if (index < 0 || index >= static_cast<int>(pages_.size()) || index == tab_) return;
    const TabPage* old = pages_[static_cast<size_t>(tab_)];
    tab_ = index;
    Changed(Aspect::Value);
    Form& form = Holder().Owner();
    const Control* active = form.ActiveControl();
    if (active == nullptr || &active->Holder() != old) return;
    const auto& controls = pages_[static_cast<size_t>(index)]->Controls();
    const auto first = std::find_if(controls.begin(), controls.end(), [](Control* c) { return c->CanFocus(); });
    if (first != controls.end()) (*first)->SetFocus();
    else SetFocus();
}

void TabStrip::UserTurnsTo(int index) {
    const int before = tab_;
    SetTab(index);
    if (tab_ != before) CallHandler(onClick);
}

bool TabStrip::UserTurns(int steps) {
    const int count = static_cast<int>(pages_.size());
    if (count > 0 && Enabled()) UserTurnsTo(((tab_ + steps) % count + count) % count);
    return true;
}

namespace {

constexpr int kUpDownWidth = 255;

}  // namespace

UpDown::UpDown(Parent parent, TextBox& buddy, int minimum, int maximum)
    : Control(parent, native::kUpDown, {}, {}), buddy_(&buddy), minimum_(minimum), maximum_(maximum) {
    Move({buddy.Place().Right(), buddy.Place().top, kUpDownWidth, buddy.Place().height});
}

void UpDown::UserSpins(int steps) {
    if (!Enabled() || !buddy_->Enabled()) return;
    const double value = std::clamp<double>(std::trunc(Val(buddy_->Text())) + steps, minimum_, maximum_);
    buddy_->UserEdits(std::to_string(static_cast<int>(value)));
}

ProgressBar::ProgressBar(Parent parent, const Bounds& place) : Control(parent, native::kProgressBar, place, {}) {}

int ProgressBar::Step() const {
    const double part = static_cast<double>(std::min(value_, maximum_)) / static_cast<double>(maximum_);
    return static_cast<int>(part * kSteps);
}

void ProgressBar::SetRange(uint64_t maximum) {
    maximum_ = std::max<uint64_t>(maximum, 1);
    SetValue(0);
}

void ProgressBar::SetValue(uint64_t value) {
    const int before = Step();
    value_ = value;
    if (Step() != before || value == 0) Changed(Aspect::Value);
}

StatusBar::StatusBar(Form& form, int secondPanelWidth)
    : Control(form, native::kStatusBar, {}, {}), secondPanelWidth_(secondPanelWidth) {}

void StatusBar::SetSecondText(const std::string& text) {
    if (text == secondText_) return;
    secondText_ = text;
    Changed(Aspect::Text);
}

}  // namespace quirn
