#include "platform/headless/dialogs.h"

#include <deque>
#include <utility>

#include "platform/version.h"

namespace quirn {

namespace headless {

namespace {

std::deque<MessageBox>& Expected() {
    static std::deque<MessageBox> expected;
    return expected;
}

std::function<void(const std::string&)>& Report() {
    static std::function<void(const std::string&)> report = [](const std::string&) {};
    return report;
}

std::string Describe(const MessageBox& box) {
    return "\"" + box.text + "\" (style " + std::to_string(box.style) + ", caption \"" + box.caption + "\")";
}

}  // namespace

void ExpectMessageBox(MessageBox box) {
    if (box.caption.empty()) box.caption = kTitle;
    Expected().push_back(std::move(box));
}

std::vector<MessageBox> TakeMissingBoxes() {
    std::vector<MessageBox> missing(Expected().begin(), Expected().end());
    Expected().clear();
    return missing;
}

void SetDialogFailureReport(std::function<void(const std::string&)> report) {
    Report() = std::move(report);
}

}  // namespace headless

Answer ShowMessage(const std::string& text, unsigned style, const std::string& caption) {
    auto& expected = headless::Expected();
    const headless::MessageBox shown{text, style, Answer::Cancel, caption.empty() ? kTitle : caption};
    if (expected.empty() || expected.front().text != shown.text || expected.front().style != shown.style ||
        expected.front().caption != shown.caption) {
        headless::Report()("unexpected message box " + headless::Describe(shown) +
                           (expected.empty() ? "" : "; expected was " + headless::Describe(expected.front())));
        return Answer::Cancel;
    }
    const Answer answer = expected.front().answer;
    expected.pop_front();
    return answer;
}

}  // namespace quirn
