#include "platform/control.h"

#include "platform/controls.h"
#include "platform/form.h"
#include "platform/native.h"

namespace quirn {

Control::Control(Parent parent, const native::Kind& kind, const Bounds& place, const std::string& text)
    : text_(text), container_(parent.container), frame_(parent.frame), kind_(kind), place_(place) {
    if (frame_ != nullptr) place_ = place.MovedBy(frame_->place_.left, frame_->place_.top);
    container_->controls_.push_back(this);
}

Control::~Control() {
    if (HasFocus()) container_->Owner().FocusMoved(nullptr);
    if (window != nullptr) native::DestroyControl(*this);
    std::erase(container_->controls_, this);
}

void Control::Changed(Aspect aspect) {
    if (window != nullptr) native::ControlChanged(*this, aspect);
}

const std::vector<TabPage*>& Control::Pages() const {
    static const std::vector<TabPage*> none;
    return none;
}

bool Control::HasFocus() const {
    return container_->Owner().ActiveControl() == this;
}

bool Control::CanFocus() const {
    if (!TakesFocus() || !enabled_ || !visible_) return false;
    const TabPage* page = PageOf(*container_);
    return page == nullptr || page->IsInFront();
}

void Control::SetText(const std::string& text) {
    if (text == text_) return;
    text_ = text;
    Changed(Aspect::Text);
}

void Control::SetEnabled(bool enabled) {
    if (enabled == enabled_) return;
    enabled_ = enabled;
    // First, since the system leaves the keyboard with a window that can no longer use it.
    if (!enabled && HasFocus()) container_->Owner().FocusNext(this);
    Changed(Aspect::Enabled);
}

void Control::SetVisible(bool visible) {
    if (visible == visible_) return;
    visible_ = visible;
    if (!visible && HasFocus()) container_->Owner().FocusNext(this);
    if (window != nullptr || container_->window != nullptr) native::ControlChanged(*this, Aspect::Visible);
}

void Control::Move(const Bounds& place) {
    if (place == place_) return;
    const int right = place.left - place_.left;
    const int down = place.top - place_.top;
    place_ = place;
    Changed(Aspect::Place);
    for (Control* inside : container_->controls_)
        if (inside->frame_ == this) inside->Move(inside->place_.MovedBy(right, down));
}

void Control::SetFont(const Font& font) {
    font_ = font;
    Changed(Aspect::Font);
}

void Control::SetForeColor(std::optional<Color> color) {
    foreColor_ = color;
    Changed(Aspect::Colors);
}

void Control::SetBackColor(std::optional<Color> color) {
    backColor_ = color;
    Changed(Aspect::Colors);
}

void Control::Repaint() {
    if (window != nullptr) native::Repaint(*this);
}

void Control::SetToolTip(const std::string& text) {
    toolTip_ = text;
    Changed(Aspect::ToolTip);
}

void Control::SetFocus() {
    if (!CanFocus()) return;
    Form& form = container_->Owner();
    // The system gives no window of a minimised one the keyboard.
    if (form.Visible() && !form.IsMinimized()) native::FocusControl(*this);
    else form.FocusMoved(this);
}

void Control::UserFocuses(bool focused) {
    Form& form = container_->Owner();
    Control* const before = form.ActiveControl();
    if (focused == (before == this)) return;
    if (focused && before != nullptr) before->UserFocuses(false);
    form.FocusMoved(focused ? this : nullptr);
    CallHandler(focused ? onGotFocus : onLostFocus);
}

}  // namespace quirn
