#include "platform/timer.h"

#include "platform/form.h"
#include "platform/native.h"

namespace quirn {

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
    if (enabled_) CallHandler(onTimer);
}

}  // namespace quirn
