#include "logedit/progressframe.h"

namespace quirn {

namespace {

constexpr Bounds kFrame{0, 0, 4800, 900};
constexpr Bounds kBar{150, 450, 4500, 270};

}  // namespace

ProgressFrame::ProgressFrame(Form& form, const VirtualList& over)
    : over_(over), famProgFrame(form, kFrame, "Reading log file...", FrameStyle::Panel), ProgBar(famProgFrame, kBar) {
    Hide();
}

void ProgressFrame::Show(const std::string& caption, uint64_t maximum) {
    const Bounds& list = over_.Place();
    famProgFrame.Move(
        kFrame.MovedBy(list.left + (list.width - kFrame.width) / 2, list.top + (list.height - kFrame.height) / 2));
    famProgFrame.SetText(caption);
    famProgFrame.SetForeColor(over_.ForeColor());
    famProgFrame.SetBackColor(over_.BackColor());
    famProgFrame.SetVisible(true);
    ProgBar.SetRange(maximum);
    ProgBar.SetVisible(true);
    famProgFrame.Repaint();
    ProgBar.Repaint();
}

void ProgressFrame::Hide() {
    ProgBar.SetVisible(false);
    famProgFrame.SetVisible(false);
}

}  // namespace quirn
