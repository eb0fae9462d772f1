#include "startup/commandline.h"

#include "mainwin/launcher.h"
#include "mainwin/loading.h"
#include "platform/dialogs.h"
#include "platform/text.h"
#include "profile/splitpath.h"

namespace quirn {

namespace {

constexpr std::string_view kLoadAndRun = "/LR:";
constexpr std::string_view kQuiet = "/Q";

bool LoadAndRun(Program& program, const std::string& argument) {
    const PathParts parts = SplitPath(argument);
    const bool bareName = parts.drive.empty() && parts.folder.empty();
    // A bare name without an extension ends in a point, on purpose: it finds only a file that has none.
    const std::string file = bareName ? program.qrnFolder + "\\" + parts.File() : argument;
    if (!LoadProfileAndTell(program.profile, file)) return false;
    Launcher launcher(program);
    if (!launcher.TransferAndLaunch(program.profile, {file, TransferWay::CommandLine})) return false;
    launcher.WaitForGame();
    return true;
}

}  // namespace

std::vector<std::string> SplitCommandLine(std::string_view commandLine, int MaxCount) {
    std::vector<std::string> words(1);
    bool inside = false;
    for (const char c : commandLine) {
        if (c == ' ' || c == '\t') {
            inside = false;
            continue;
        }
        if (!inside) {
            if (words.size() > static_cast<size_t>(MaxCount)) break;
            words.emplace_back();
            inside = true;
        }
        words.back() += c;
    }
    return words;
}

bool HandleCommandLineArg(Program& program, std::string_view Arg) {
    program.quiet = false;
    const std::string argument = FoldCase(Trim(Arg));
    if (argument.empty()) return false;
    if (argument.starts_with(kLoadAndRun)) return LoadAndRun(program, argument.substr(kLoadAndRun.size()));
    if (argument.starts_with(kQuiet)) {
        program.quiet = true;
        return false;
    }
    ShowMessage("ERROR - Invalid command line option '" + argument + "'", kCritical);
    return false;
}

}  // namespace quirn
