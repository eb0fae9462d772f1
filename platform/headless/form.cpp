#include "platform/form.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "platform/headless/events.h"
#include "platform/native.h"

// Forms without windows: all their state is in the portable part. Time is counted, not waited for: it moves on only
// while the program waits for events.
namespace quirn {

namespace {

struct RunningTimer {
    Timer* timer;
    long due;
};

struct PostedTask {
    long due;
    std::function<void()> task;
};

long now = 0;
int loadedForms = 0;
std::vector<RunningTimer> timers;
std::vector<PostedTask> tasks;

// Runs the earliest task or timer that is due, if any.
bool RunOne() {
    const auto task = std::min_element(tasks.begin(), tasks.end(), [](const auto& a, const auto& b) { return a.due < b.due; });
    const auto timer =
        std::min_element(timers.begin(), timers.end(), [](const auto& a, const auto& b) { return a.due < b.due; });
    if (task != tasks.end() && task->due <= now && (timer == timers.end() || task->due <= timer->due)) {
        const std::function<void()> run = std::move(task->task);
        tasks.erase(task);
        run();
        return true;
    }
    if (timer != timers.end() && timer->due <= now) {
        timer->due += std::max(timer->timer->Interval(), 1);
        timer->timer->Fire();
        return true;
    }
    return false;
}

}  // namespace

namespace headless {

void ResetEvents() {
    now = 0;
    timers.clear();
    tasks.clear();
}

void PostAfter(int milliseconds, std::function<void()> task) { tasks.push_back({now + milliseconds, std::move(task)}); }

long Now() { return now; }

}  // namespace headless

void DoEvents() {
    while (RunOne()) {
    }
}

void WaitForEvents(int milliseconds) {
    const long end = now + milliseconds;
    while (now < end && !RunOne()) ++now;
    DoEvents();
}

void RunEventLoop() {
    // A loop that nothing can end any more would never return: give up when nothing is left to happen.
    while (loadedForms > 0 && (!tasks.empty() || !timers.empty())) WaitForEvents(1);
}

namespace native {

void CreateForm(Form& form) {
    ++loadedForms;
    form.window = &form;
    for (Control* control : form.Controls()) control->window = control;
}

void DestroyForm(Form& form) {
    --loadedForms;
    form.window = nullptr;
    for (Control* control : form.Controls()) control->window = nullptr;
}

void FormChanged(Form&, Aspect) {}
void ShowForm(Form& form, bool visible) { form.WindowShown(visible); }
void BringToFront(Form& form) { form.WindowMinimized(false); }
void Repaint(Form&) {}
void DestroyControl(Control& control) { control.window = nullptr; }
void ControlChanged(Control&, Aspect) {}

void StopTimer(Timer& timer) {
    std::erase_if(timers, [&](const RunningTimer& running) { return running.timer == &timer; });
}

void StartTimer(Timer& timer) {
    StopTimer(timer);
    timers.push_back({&timer, now + std::max(timer.Interval(), 1)});
}

}  // namespace native

}  // namespace quirn
