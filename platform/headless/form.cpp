#include "platform/form.h"

#include <algorithm>
#include <map>
#include <utility>
#include <vector>

#include "platform/headless/dialogs.h"
#include "platform/headless/events.h"
#include "platform/headless/headless.h"
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

struct ModalWait {
    const Form* form;
    const Form* owner;
};

long now = 0;
std::vector<Form*> loadedForms;
std::vector<RunningTimer> timers;
std::vector<PostedTask> tasks;
std::vector<ModalWait> modalForms;
int questions = 0;
std::function<int()> player;

// Before the form's window goes, as on Windows.
void EndModal(const Form& form) {
    std::erase_if(modalForms, [&](const ModalWait& wait) { return wait.form == &form; });
}

bool NothingIsLeftToHappen() {
    return !player && tasks.empty() && timers.empty();
}

// Runs the earliest task or timer that is due, if any.
bool RunOne() {
    const auto task =
        std::min_element(tasks.begin(), tasks.end(), [](const auto& a, const auto& b) { return a.due < b.due; });
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

// What a frame takes of a form, in twips.
constexpr int kBorders = 90;
constexpr int kCaption = 285;
constexpr int kMenu = 285;

std::map<const Control*, size_t> topIndexes;  // of lists that have been scrolled

// A window of the same life as on Windows: there from the first moment that the control is seen.
void MakeWindow(Control& control) {
    TabPage* const page = PageOf(control.Holder());
    if (!control.Visible() || (page != nullptr && !page->IsInFront())) return;
    control.window = &control;
    if (page != nullptr) page->window = page;
}

}  // namespace

namespace headless {

void ResetEvents() {
    now = 0;
    timers.clear();
    tasks.clear();
}

void PostAfter(int milliseconds, std::function<void()> task) {
    tasks.push_back({now + milliseconds, std::move(task)});
}

long Now() {
    return now;
}

void SetPlayer(std::function<int()> act) {
    player = std::move(act);
}

Question::Question() {
    ++questions;
}

Question::~Question() {
    --questions;
}

const std::vector<Form*>& LoadedForms() {
    return loadedForms;
}

size_t RunningTimers() {
    return timers.size();
}

}  // namespace headless

Bounds ScreenArea() {
    return {0, 0, 15360, 11520};
}

Bounds WorkArea(const Form&) {
    return {0, 0, 15360, 11100};
}

void DoEvents() {
    while (RunOne()) {
    }
}

// Nothing is painted here, and nobody else asks.
void DoPaintEvents() {}

void WaitForEvents(int milliseconds) {
    const long end = now + (player ? player() : milliseconds);
    while (now < end && !RunOne()) ++now;
    DoEvents();
}

void RunEventLoop() {
    // A loop that nothing can end any more would never return.
    while (!loadedForms.empty() && !NothingIsLeftToHappen()) WaitForEvents(1);
}

namespace native {

// All kinds are alike here: what they do is in their portable part.
struct Kind {};
const Kind kLabel{}, kPicture{}, kFrame{}, kButton{}, kLinkButton{}, kCheckBox{}, kOptionButton{}, kTextBox{},
    kMaskedBox{}, kUpDown{}, kComboBox{}, kListBox{}, kVirtualList{}, kTable{}, kTabStrip{}, kProgressBar{},
    kStatusBar{};

void CreateForm(Form& form) {
    loadedForms.push_back(&form);
    form.window = &form;
}

void FormReady(Form&) {}

void DestroyForm(Form& form) {
    EndModal(form);
    std::erase(loadedForms, &form);
    form.window = nullptr;
    ForEachControl(form, [](Control& control) {
        topIndexes.erase(&control);
        control.window = nullptr;
        control.Holder().window = nullptr;
    });
}

void FormChanged(Form& form, Aspect aspect) {
    if (aspect == Aspect::Place) form.WindowResized();
}

void ShowForm(Form& form, bool visible) {
    if (visible) ForEachControl(form, MakeWindow);
    else EndModal(form);
    form.WindowShown(visible);
}

bool IsBlocked(const Form& form) {
    return questions > 0 || std::any_of(modalForms.begin(), modalForms.end(),
                                        [&](const ModalWait& wait) { return wait.owner == &form; });
}

void RunModal(Form& form, Form& owner) {
    modalForms.push_back({&form, &owner});
    form.Show();
    while (form.IsLoaded() && form.Visible()) {
        if (NothingIsLeftToHappen()) {
            headless::ReportFailure("the modal form \"" + form.Caption() + "\" was left open");
            form.Hide();
        }
        WaitForEvents(1);
    }
}

void BringToFront(Form& form) {
    form.WindowMinimized(false);
    form.WindowActivated();
}
void Repaint(Form&) {}
void Repaint(Control&) {}
void SetOwner(Form&, Form&) {}
void KeepOnTop(Form&) {}

Size InnerSize(const Form& form) {
    const int frame = form.Border() == FormBorder::None ? 0 : kBorders;
    const int above = (form.Border() == FormBorder::None ? 0 : kCaption) + (form.MenuBar() != nullptr ? kMenu : 0);
    return {form.Place().width - frame, form.Place().height - frame - above};
}

Size DialogFrame() {
    return {kBorders, kBorders + kCaption};
}

void MenuChanged(Form&) {}

void PopUpMenu(Form&, Menu& menu, int defaultCommand, const Control*) {
    headless::TheWorld().poppedUpMenus.push_back({&menu, defaultCommand});
}

void ControlChanged(Control& control, Aspect aspect) {
    if (aspect == Aspect::Visible) MakeWindow(control);
    if (aspect == Aspect::Items) topIndexes.erase(&control);
    if (!control.Pages().empty() && aspect == Aspect::Value) ForEachControl(control.Holder().Owner(), MakeWindow);
}

void DestroyControl(Control& control) {
    topIndexes.erase(&control);
    control.window = nullptr;
}
void FocusControl(Control& control) {
    control.UserFocuses(true);
}
void SelectAll(Control&) {}
void PutCaretAtEnd(TextBox&) {}
int CaretLeft(const TextBox&) {
    return 0;
}

bool IsOpen(const ComboBox&) {
    return false;
}

void ReadSelection(const VirtualList&, ListSelection&) {}
void ReadSelection(const Table&, ListSelection&, std::optional<size_t>&) {}
void ScrollTo(Table&, size_t) {}

size_t RowsInSight(const VirtualList& list) {
    constexpr int kTwipsPerPoint = 20;
    const int points = list.FontUsed().points > 0 ? list.FontUsed().points : 8;
    const int line = points * kTwipsPerPoint * 5 / 4;
    return static_cast<size_t>(std::max(list.Place().height / line, 1));
}

// The last items fill the list: it scrolls no further.
static size_t HighestTop(const VirtualList& list) {
    const size_t visible = RowsInSight(list);
    return list.Count() > visible ? list.Count() - visible : 0;
}

size_t TopIndex(const VirtualList& list) {
    const auto found = topIndexes.find(&list);
    return found == topIndexes.end() ? 0 : std::min(found->second, HighestTop(list));
}

void SetTopIndex(VirtualList& list, size_t item) {
    topIndexes[&list] = std::min(item, HighestTop(list));
}

void AddItems(VirtualList&, bool) {}

void AddTrayIcon(TrayIcon& icon) {
    headless::TheWorld().trayIcons.push_back(&icon);
}

void RemoveTrayIcon(TrayIcon& icon) {
    std::erase(headless::TheWorld().trayIcons, &icon);
}

void ShowTrayBalloon(TrayIcon&, const std::string& title, const std::string& text) {
    headless::TheWorld().balloons.push_back(title + ": " + text);
}

void StopTimer(Timer& timer) {
    std::erase_if(timers, [&](const RunningTimer& running) { return running.timer == &timer; });
}

void StartTimer(Timer& timer) {
    StopTimer(timer);
    timers.push_back({&timer, now + std::max(timer.Interval(), 1)});
}

}  // namespace native

}  // namespace quirn
