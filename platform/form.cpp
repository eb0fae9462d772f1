#include "platform/form.h"

#include <exception>
#include <new>

#include "platform/dialogs.h"
#include "platform/native.h"
#include "platform/version.h"

namespace quirn {

Form::Form(FormBorder border, int width, int height) : border_(border), place_{0, 0, width, height} {}

Form::~Form() {
    if (loaded_) native::DestroyForm(*this);
}

void Form::SetCaption(const std::string& caption) {
    caption_ = caption;
    if (loaded_) native::FormChanged(*this, Aspect::Text);
}

void Form::Move(const Bounds& place) {
    place_ = place;
    placeIsSet_ = true;
    if (loaded_) native::FormChanged(*this, Aspect::Place);
}

void Form::Load() {
    if (loaded_) return;
    loaded_ = true;
    visible_ = false;
    native::CreateForm(*this);
    if (onLoad) CallHandler(onLoad);
}

void Form::Show() {
    Load();
    if (loaded_) native::ShowForm(*this, true);
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
    if (!loaded_) return true;  // a handler unloaded it
    loaded_ = false;
    visible_ = false;
    native::DestroyForm(*this);
    return true;
}

void Form::UserCloses(UnloadMode mode) {
    CallHandler([this, mode] { Unload(mode); });
}

void Form::UserTypes(char character) {
    if (onKeyPress) CallHandler([this, character] { onKeyPress(character); });
}

Timer::~Timer() {
    if (enabled_) native::StopTimer(*this);
}

void Timer::SetInterval(int milliseconds) {
    interval_ = milliseconds;
    if (enabled_) native::StartTimer(*this);
}

void Timer::SetEnabled(bool enabled) {
    if (enabled_ == enabled) return;
    enabled_ = enabled;
    if (enabled) native::StartTimer(*this);
    else native::StopTimer(*this);
}

void Timer::Fire() {
    if (enabled_ && onTimer) CallHandler(onTimer);
}

void CallHandler(const std::function<void()>& handler) {
    try {
        handler();
    } catch (const std::bad_alloc&) {
        ShowError(MakeError(ErrorNumber::OutOfMemory));
    } catch (const std::exception& error) {
        ShowError({51, kTitle, std::string("Internal error: ") + error.what()});
    }
}

}  // namespace quirn
