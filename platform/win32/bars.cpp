#include <windows.h>

#include <commctrl.h>  // needs windows.h first

#include "platform/win32/kind.h"
#include "platform/win32/metrics.h"

// Bars that tell of the program's work: progress and status.
namespace quirn {

namespace win32 {

namespace {

Look ProgressLook(const ProgressBar&) {
    return {.className = PROGRESS_CLASSA, .commonClass = ICC_PROGRESS_CLASS, .liesOver = true};
}

// Painted at once, since the work that it shows leaves no time for events; but no more often than anybody sees, since
// painting may take longer than the work.
void ApplyProgress(const ProgressBar& bar, Aspect aspect) {
    if (aspect != Aspect::Value) return;
    constexpr ULONGLONG kPause = 30;  // milliseconds
    static ULONGLONG paintedAt = 0;
    const ULONGLONG now = GetTickCount64();
    const bool atEnd = bar.Step() == 0 || bar.Step() == ProgressBar::kSteps;
    if (!atEnd && now - paintedAt < kPause) return;
    paintedAt = now;
    SendMessageA(WindowOf(bar), PBM_SETPOS, static_cast<WPARAM>(bar.Step()), 0);
    UpdateWindow(WindowOf(bar));
}

void FillProgress(const ProgressBar& bar) {
    SendMessageA(WindowOf(bar), PBM_SETRANGE32, 0, ProgressBar::kSteps);
    ApplyProgress(bar, Aspect::Value);
}

Look StatusLook(const StatusBar& bar) {
    const bool sizable = bar.Holder().Owner().Border() == FormBorder::Sizable;
    return {.className = STATUSCLASSNAMEA,
            .style = static_cast<DWORD>(sizable ? SBARS_SIZEGRIP : 0),
            .commonClass = ICC_BAR_CLASSES};
}

void ApplyStatus(const StatusBar& bar, Aspect aspect) {
    if (aspect != Aspect::Text || bar.SecondPanelWidth() == 0) return;
    SendMessageA(WindowOf(bar), SB_SETTEXTA, 1, reinterpret_cast<LPARAM>(bar.SecondText().c_str()));
}

void PlacePanels(const StatusBar& bar) {
    if (bar.SecondPanelWidth() == 0) return;
    RECT area{};
    GetClientRect(GetParent(WindowOf(bar)), &area);
    const int rightEdges[] = {area.right - ToPixels(bar.SecondPanelWidth(), DpiOf(bar)), -1};
    SendMessageA(WindowOf(bar), SB_SETPARTS, std::size(rightEdges), reinterpret_cast<LPARAM>(rightEdges));
}

void FillStatus(const StatusBar& bar) {
    PlacePanels(bar);
    ApplyText(bar);
    ApplyStatus(bar, Aspect::Text);
}

void StatusFormResized(const StatusBar& bar) {
    SendMessageA(WindowOf(bar), WM_SIZE, 0, 0);
    PlacePanels(bar);
}

}  // namespace

}  // namespace win32

namespace native {

using namespace win32;

const Kind kProgressBar{.look = For<ProgressLook>, .fill = For<FillProgress>, .apply = For<ApplyProgress>};
const Kind kStatusBar{
    .look = For<StatusLook>, .fill = For<FillStatus>, .apply = For<ApplyStatus>, .formResized = For<StatusFormResized>};

}  // namespace native

}  // namespace quirn
