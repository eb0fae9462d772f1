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

std::function<void(Dialog&)>& DialogPlayer() {
    static std::function<void(Dialog&)> player;
    return player;
}

struct ExpectedFile {
    bool save;
    std::string title;
    std::vector<std::string> answer;
};

std::deque<ExpectedFile>& ExpectedFiles() {
    static std::deque<ExpectedFile> expected;
    return expected;
}

FileDialog& Last() {
    static FileDialog last;
    return last;
}

std::vector<std::string> OneOrNone(std::optional<std::string> path) {
    return path ? std::vector{std::move(*path)} : std::vector<std::string>();
}

std::optional<std::string> FirstOf(const std::vector<std::string>& paths) {
    return paths.empty() ? std::nullopt : std::optional(paths.front());
}

std::vector<std::string> AnswerFile(bool save, const FileDialog& dialog) {
    Last() = dialog;
    if (DialogPlayer()) {
        Dialog shown{save ? Dialog::Kind::SaveFile : Dialog::Kind::OpenFile, dialog.title, dialog.flags};
        DialogPlayer()(shown);
        return shown.paths;
    }
    auto& expected = ExpectedFiles();
    if (expected.empty() || expected.front().save != save ||
        (!expected.front().title.empty() && expected.front().title != dialog.title)) {
        ReportFailure(std::string("unexpected dialog to ") + (save ? "save" : "open") + " a file, titled \"" +
                      dialog.title + "\"");
        return {};
    }
    const std::vector<std::string> answer = expected.front().answer;
    expected.pop_front();
    return answer;
}

template <class T>
struct Chooser {
    std::deque<std::optional<T>> answers;
    T last{};

    std::optional<T> Ask(const char* what, const T& current) {
        last = current;
        if (answers.empty()) {
            ReportFailure(std::string("unexpected dialog to choose a ") + what);
            return std::nullopt;
        }
        std::optional<T> answer = answers.front();
        answers.pop_front();
        return answer;
    }
};

Chooser<Font>& Fonts() {
    static Chooser<Font> fonts;
    return fonts;
}

Chooser<Color>& Colors() {
    static Chooser<Color> colors;
    return colors;
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

void ExpectOpenFile(const std::string& title, std::optional<std::string> answer) {
    ExpectedFiles().push_back({false, title, OneOrNone(std::move(answer))});
}

void ExpectSaveFile(const std::string& title, std::optional<std::string> answer) {
    ExpectedFiles().push_back({true, title, OneOrNone(std::move(answer))});
}

void ExpectOpenFiles(const std::string& title, std::vector<std::string> answer) {
    ExpectedFiles().push_back({false, title, std::move(answer)});
}

size_t TakeMissingFileDialogs() {
    const size_t missing = ExpectedFiles().size();
    ExpectedFiles().clear();
    return missing;
}

void ExpectFont(std::optional<Font> answer) {
    Fonts().answers.push_back(std::move(answer));
}

void ExpectColor(std::optional<Color> answer) {
    Colors().answers.push_back(answer);
}

size_t TakeMissingChoosers() {
    const size_t missing = Fonts().answers.size() + Colors().answers.size();
    Fonts().answers.clear();
    Colors().answers.clear();
    return missing;
}

const Font& LastFontAsked() {
    return Fonts().last;
}

Color LastColorAsked() {
    return Colors().last;
}

const FileDialog& LastFileDialog() {
    return Last();
}

void SetDialogPlayer(std::function<void(Dialog&)> answer) {
    DialogPlayer() = std::move(answer);
}

void ReportFailure(const std::string& text) {
    Report()(text);
}

void SetDialogFailureReport(std::function<void(const std::string&)> report) {
    Report() = std::move(report);
}

}  // namespace headless

Answer ShowMessage(const std::string& text, unsigned style, const std::string& caption) {
    if (headless::DialogPlayer()) {
        headless::Dialog shown{headless::Dialog::Kind::Message, text, style};
        headless::DialogPlayer()(shown);
        return shown.answer;
    }
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

std::optional<std::string> AskOpenFile(const FileDialog& dialog) {
    return headless::FirstOf(headless::AnswerFile(false, dialog));
}

std::vector<std::string> AskOpenFiles(const FileDialog& dialog) {
    FileDialog many = dialog;
    many.flags |= kManyFiles;
    return headless::AnswerFile(false, many);
}

std::optional<std::string> AskSaveFile(const FileDialog& dialog) {
    return headless::FirstOf(headless::AnswerFile(true, dialog));
}

std::optional<Font> AskFont(const Font& current) {
    if (headless::DialogPlayer()) {
        headless::Dialog shown{headless::Dialog::Kind::Font, "Font"};
        headless::DialogPlayer()(shown);
        return shown.font;
    }
    return headless::Fonts().Ask("font", current);
}

std::optional<Color> AskColor(Color current) {
    if (headless::DialogPlayer()) {
        headless::Dialog shown{headless::Dialog::Kind::Color, "Color"};
        headless::DialogPlayer()(shown);
        return shown.color;
    }
    return headless::Colors().Ask("colour", current);
}

}  // namespace quirn
