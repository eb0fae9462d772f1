#pragma once

#include <functional>

namespace quirn {

// Calls onTimer again and again while it is enabled. Starting it anew (SetEnabled(false), SetEnabled(true), or another
// interval) starts the interval anew.
class Timer {
public:
    Timer() = default;
    ~Timer();
    Timer(const Timer&) = delete;
    Timer& operator=(const Timer&) = delete;

    void SetInterval(int milliseconds);
    void SetEnabled(bool enabled);
    int Interval() const { return interval_; }
    bool Enabled() const { return enabled_; }

    std::function<void()> onTimer;

    void Fire();  // for the back end

private:
    int interval_ = 0;
    bool enabled_ = false;
};

}  // namespace quirn
