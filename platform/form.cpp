#include "platform/form.h"

#include <algorithm>
#include <exception>
#include <new>
#include <utility>

#include "platform/dialogs.h"
#include "platform/native.h"
#include "platform/text.h"
#include "platform/version.h"

namespace quirn {

namespace {

constexpr int kFrameGuess = 90;     // both sides together
constexpr int kCaptionGuess = 375;  // with the frame above and below

bool HasAccessKey(const Control& control, char key) {
    const std::string& text = control.Text();
    for (size_t at = text.find('&'); at != std::string::npos && at + 1 < text.size(); at = text.find('&', at + 2))
        if (text[at + 1] != '&' && FoldCase(text[at + 1]) == FoldCase(key)) return true;
    return false;
}

}  // namespace

Form::Form(FormBorder border, int width, int height) : Container(*this), border_(border), place_{0, 0, width, height} {
    if (border == FormBorder::Dialog) {
        const native::Size frame = native::DialogFrame();
        place_.width += frame.width;
        place_.height += frame.height;
    }
    normalPlace_ = place_;
}

Form::~Form() {
    if (loaded_) native::DestroyForm(*this);
}

void Form::SetCaption(const std::string& caption) {
    caption_ = caption;
    if (loaded_) native::FormChanged(*this, Aspect::Text);
}

void Form::Move(const Bounds& place) {
    place_ = normalPlace_ = place;
    placeIsSet_ = true;
    if (loaded_) native::FormChanged(*this, Aspect::Place);
}

void Form::WindowMoved(const Bounds& place, bool maximized) {
    place_ = place;
    if (!maximized) normalPlace_ = place;
}

int Form::InnerWidth() const {
    return loaded_ ? native::InnerSize(*this).width : place_.width - kFrameGuess;
}

int Form::InnerHeight() const {
    return loaded_ ? native::InnerSize(*this).height : place_.height - kCaptionGuess;
}

void Form::SetMenu(Menu& menu) {
    menu_ = &menu;
    menu.onChanged = [this] {
        if (loaded_) native::MenuChanged(*this);
    };
}

void Form::SetButtons(Button* defaultButton, Button* cancelButton) {
    defaultButton_ = defaultButton;
    cancelButton_ = cancelButton;
}

void Form::SetMinimumSize(int width, int height) {
    minimumWidth_ = width;
    minimumHeight_ = height;
}

void Form::Load() {
    if (loaded_) return;
    loaded_ = true;
    visible_ = false;
    loading_ = true;
    native::CreateForm(*this);
    CallHandler(onLoad);
    loading_ = false;
    if (loaded_) native::FormReady(*this);
}

void Form::Show() {
    Load();
    if (!loaded_) return;
    native::ShowForm(*this, true);
    if (active_ == nullptr) FocusNext(nullptr);
}

void Form::ShowModal(Form& owner) {
    Load();
    if (!loaded_) return;
    Form* const before = owner.modal_;
    owner.modal_ = this;
    native::RunModal(*this, owner);
    owner.modal_ = before;
}

bool Form::IsBlocked() const {
    return loaded_ && (loading_ || native::IsBlocked(*this));
}

void Form::ShowOwned(Form& owner) {
    Load();
    if (!loaded_) return;
    native::SetOwner(*this, owner);
    Show();
}

void Form::SetAlwaysOnTop() {
    if (loaded_) native::KeepOnTop(*this);
}

void Form::Hide() {
    if (loaded_) native::ShowForm(*this, false);
}

void Form::BringToFront() {
    if (loaded_) native::BringToFront(*this);
}

void Form::Repaint() {
    if (loaded_) native::Repaint(*this);
}

bool Form::Unload(UnloadMode mode) {
    if (!loaded_) return true;
    if (onQueryUnload && !onQueryUnload(mode)) return false;
    if (onUnload && !onUnload()) return false;
    if (loaded_) Discard();  // else a handler unloaded it
    return true;
}

void Form::Discard() {
    // Its window would go with this one's, and its loop would wait for ever.
    if (modal_ != nullptr && modal_->loaded_) modal_->Discard();
    loaded_ = false;
    visible_ = false;
    minimized_ = false;
    active_ = nullptr;
    native::DestroyForm(*this);
}

void Form::PopUpMenu(Menu& menu, int defaultCommand) {
    if (loaded_) native::PopUpMenu(*this, menu, defaultCommand, nullptr);
}

void Form::PopUpMenuBelow(const Control& button, Menu& menu) {
    if (loaded_) native::PopUpMenu(*this, menu, 0, &button);
}

void Form::UserCloses(UnloadMode mode) {
    CallHandler([this, mode] { Unload(mode); });
}

void Form::UserTypes(char character) {
    if (onKeyPress) CallHandler([this, character] { onKeyPress(character); });
}

void Form::UserPressesEnter() {
    if (active_ != nullptr && active_->Visible() && active_->UserPressesEnter()) return;
    if (defaultButton_ != nullptr && defaultButton_->Visible()) defaultButton_->UserClicks();
}

void Form::UserPressesEscape() {
    if (cancelButton_ != nullptr && cancelButton_->Visible()) cancelButton_->UserClicks();
}

bool Form::UserPressesShortcut(KeyStroke key) {
    bool swallowed = false;
    if (onKeyDown && !key.shift) CallHandler([&] { swallowed = onKeyDown(key.key, key.control); });
    if (swallowed) return true;
    const Menu::Item* const item = menu_ == nullptr ? nullptr : menu_->FindByKey(key);
    // The key of a row that is grey is the control's.
    if (item == nullptr || !item->IsEnabled()) return false;
    menu_->UserChooses(item->row.command);
    return true;
}

bool Form::UserPressesAccessKey(char key) {
    const std::vector<Control*> order = TabOrder();
    return std::any_of(order.begin(), order.end(), [&](Control* control) {
        const TabPage* page = PageOf(control->Holder());
        return control->Visible() && control->Enabled() && (page == nullptr || page->IsInFront()) &&
               HasAccessKey(*control, key) && control->UserPressesAccessKey();
    });
}

bool Form::UserTurnsPage(int steps) {
    if (minimized_) return false;  // the focus could not follow
    const auto& all = Controls();
    return std::any_of(all.begin(), all.end(), [&](Control* c) { return c->Visible() && c->UserTurns(steps); });
}

void Form::WindowActivated() {
    if (loaded_ && !loading_ && !IsBlocked()) CallHandler(onActivate);
}

void Form::WindowResized() {
    if (loaded_) CallHandler(onResize);
}

// The controls of a page come before their strip.
std::vector<Control*> Form::TabOrder() const {
    std::vector<Control*> order;
    for (Control* control : Controls()) {
        for (const TabPage* page : control->Pages())
            order.insert(order.end(), page->Controls().begin(), page->Controls().end());
        order.push_back(control);
    }
    return order;
}

void Form::FocusNext(const Control* after) {
    std::vector<Control*> order = TabOrder();
    const auto at = std::find(order.begin(), order.end(), after);
    if (at != order.end()) std::rotate(order.begin(), at + 1, order.end());
    const auto next = std::find_if(order.begin(), order.end(), [](Control* control) { return control->CanFocus(); });
    if (next != order.end()) (*next)->SetFocus();
    else if (active_ != nullptr) active_->UserFocuses(false);
}

void CallHandler(const std::function<void()>& handler) {
    if (!handler) return;
    try {
        handler();
    } catch (const std::bad_alloc&) {
        ShowError(MakeError(ErrorNumber::OutOfMemory));
    } catch (const std::exception& error) {
        RuntimeError internal = MakeError(ErrorNumber::InternalError);
        internal.description += std::string(": ") + error.what();
        ShowError(internal);
    }
}

}  // namespace quirn
