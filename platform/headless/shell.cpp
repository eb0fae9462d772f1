#include "platform/shell.h"

#include "platform/headless/headless.h"

namespace quirn {

using headless::TheWorld;

bool OpenWithRegisteredProgram(Form&, const std::string& target) {
    TheWorld().openedTargets.push_back(target);
    return !TheWorld().shellFails;
}

bool ShowHelpContents(Form&, const std::string& helpFile) {
    if (TheWorld().shellFails || headless::FindFile(helpFile) == nullptr) return false;
    TheWorld().shownHelp.push_back(helpFile);
    return true;
}

}  // namespace quirn
