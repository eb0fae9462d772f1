#include "platform/tray.h"

#include "platform/native.h"

namespace quirn {

void TrayIcon::Add() {
    if (there_ || !form_->IsLoaded()) return;
    there_ = true;
    native::AddTrayIcon(*this);
}

void TrayIcon::Remove() {
    if (!there_) return;
    there_ = false;
    native::RemoveTrayIcon(*this);
}

void TrayIcon::ShowBalloon(const std::string& title, const std::string& text) {
    if (there_) native::ShowTrayBalloon(*this, title, text);
}

void TrayIcon::UserPoints(unsigned mouseMessage) {
    if (there_ && onMouse) CallHandler([&] { onMouse(mouseMessage); });
}

}  // namespace quirn
