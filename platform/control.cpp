#include "platform/control.h"

#include "platform/native.h"

namespace quirn {

Control::Control(Container& container, ControlKind kind, const Bounds& place, const std::string& text)
    : container_(container), kind_(kind), place_(place), text_(text) {
    container.controls_.push_back(this);
}

Control::~Control() {
    if (window != nullptr) native::DestroyControl(*this);
    std::erase(container_.controls_, this);
}

void Control::Changed(Aspect aspect) {
    if (window != nullptr) native::ControlChanged(*this, aspect);
}

void Control::SetText(const std::string& text) {
    if (text == text_) return;
    text_ = text;
    Changed(Aspect::Text);
}

void Control::SetEnabled(bool enabled) {
    enabled_ = enabled;
    Changed(Aspect::Enabled);
}

void Control::SetVisible(bool visible) {
    visible_ = visible;
    Changed(Aspect::Visible);
}

void Control::Move(const Bounds& place) {
    place_ = place;
    Changed(Aspect::Place);
}

void Control::SetFont(const Font& font) {
    font_ = font;
    Changed(Aspect::Font);
}

void Control::SetForeColor(Color color) {
    foreColor_ = color;
    Changed(Aspect::Colors);
}

}  // namespace quirn
