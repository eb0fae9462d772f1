#include "platform/shell.h"

#include "platform/files.h"
#include "platform/headless/headless.h"
#include "platform/text.h"

namespace quirn {

using headless::TheWorld;

Failure OpenWithRegisteredProgram(Form&, const std::string& target) {
    const bool isPath = target.size() > 1 && target[1] == ':';
    if (TheWorld().shellFailure) return MakeError(*TheWorld().shellFailure);
    if (isPath && headless::FindFile(target) == nullptr) return MakeError(ErrorNumber::FileNotFound);
    TheWorld().openedTargets.push_back(target);
    return {};
}

Failure ShowInFolder(Form&, const std::string& path) {
    if (TheWorld().shellFailure) return MakeError(*TheWorld().shellFailure);
    TheWorld().openedTargets.push_back("folder of " + path);
    return {};
}

Failure MoveToRecycleBin(Form&, const std::string& path) {
    if (TheWorld().shellFailure) return MakeError(*TheWorld().shellFailure);
    return RemoveFile(path) ? Failure() : MakeError(ErrorNumber::PathFileAccess);
}

Failure MakeDesktopLink(const std::string& name, const std::string& arguments) {
    if (TheWorld().shellFailure) return MakeError(*TheWorld().shellFailure);
    TheWorld().desktopLinks[name] = arguments;
    return {};
}

std::vector<std::string> StartMenuPrograms(const std::string& fileName) {
    std::vector<std::string> found;
    for (const std::string& program : TheWorld().startMenuPrograms)
        if (EqualNoCase(program.substr(program.rfind('\\') + 1), fileName)) found.push_back(program);
    return found;
}

bool ShowHelpContents(Form&, const std::string& helpFile) {
    if (TheWorld().shellFailure || headless::FindFile(helpFile) == nullptr) return false;
    TheWorld().shownHelp.push_back(helpFile);
    return true;
}

}  // namespace quirn
