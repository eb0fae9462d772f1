#include "platform/process.h"

#include <algorithm>

#include "platform/files.h"
#include "platform/headless/headless.h"

namespace quirn {

using headless::TheWorld;

namespace {

constexpr size_t kCaptionLimit = 255;

}  // namespace

std::string CommandLineTail() {
    return TheWorld().commandLineTail;
}

bool ClaimSingleInstance() {
    return !TheWorld().otherCopyRuns;
}

Process::~Process() = default;

// A handle is a program's place in the list of the started ones, from 1.
bool Process::Start(const std::string& program, const std::string& folder) {
    if (TheWorld().programsFailToStart || headless::FindFile(program) == nullptr || !FolderExists(folder)) return false;
    TheWorld().startedPrograms.push_back({program, folder});
    handle_ = reinterpret_cast<void*>(TheWorld().startedPrograms.size());
    return true;
}

bool Process::IsRunning() const {
    const auto place = reinterpret_cast<size_t>(handle_);
    return place != 0 && TheWorld().startedPrograms.at(place - 1).running;
}

bool WindowOfClassExists(const std::string& className) {
    return std::any_of(TheWorld().windows.begin(), TheWorld().windows.end(),
                       [&](const auto& window) { return EqualNoCase(window.className, className); });
}

WindowHandle FirstTopLevelWindow() {
    return TheWorld().windows.empty() ? 0 : 1;
}

WindowHandle NextTopLevelWindow(WindowHandle window) {
    return window < TheWorld().windows.size() ? window + 1 : 0;
}

std::string WindowCaption(WindowHandle window) {
    return TheWorld().windows.at(window - 1).caption.substr(0, kCaptionLimit);
}

bool ShowNormal(WindowHandle window) {
    auto& shown = TheWorld().windows.at(window - 1);
    shown.shownNormal = shown.answers;
    return shown.answers;
}

void BringToFront(WindowHandle window) {
    TheWorld().broughtToFront = window - 1;
}

}  // namespace quirn
