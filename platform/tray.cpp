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

void TrayIcon::UserPoints(unsigned mouseMessage) {
    if (there_ && onMouse) CallHandler([&] { onMouse(mouseMessage); });
}

}  // namespace quirn
