#include "platform/shell.h"

#include "platform/headless/headless.h"

namespace quirn {

using headless::TheWorld;

bool OpenWithRegisteredProgram(Form&, const std::string& target) {
    const bool isPath = target.size() > 1 && target[1] == ':';
    if (TheWorld().shellFails || (isPath && headless::FindFile(target) == nullptr)) return false;
    TheWorld().openedTargets.push_back(target);
    return true;
}

bool ShowHelpContents(Form&, const std::string& helpFile) {
    if (TheWorld().shellFails || headless::FindFile(helpFile) == nullptr) return false;
    TheWorld().shownHelp.push_back(helpFile);
    return true;
}

}  // namespace quirn
