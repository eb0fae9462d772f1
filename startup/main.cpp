#include "startup/main.h"

#include <set>

#include "auxiliary/frmsplash.h"
#include "mainwin/appsettings.h"
#include "mainwin/frmmain.h"
#include "platform/files.h"
#include "platform/folders.h"
#include "platform/process.h"
#include "platform/text.h"
#include "startup/commandline.h"
#include "startup/instance.h"

namespace quirn {

namespace {

// Programs that were cut off leave unfinished files, and that of a profile may hold a password.
void SweepFolders(const Program& program) {
    std::set<std::string, LessNoCase> folders{program.qrnFolder, program.gameFolder};
    const auto addFolderOf = [&](const std::string& file) { folders.insert(file.substr(0, file.rfind('\\'))); };
    for (const std::string& file : program.recentFiles) addFolderOf(file);
    for (const Favourite& favourite : program.favourites) addFolderOf(favourite.path);
    for (const std::string& folder : folders) SweepFolder(folder);
}

}  // namespace

void Main() {
    Program program;
    RunProgram(program);
}

void RunProgram(Program& program) {
    if (!ClaimSingleInstance()) {
        HandOverToRunningCopy();
        return;
    }

    ReadFileLocations(program);
    if (const std::string folder = LocalDataFolder(); !folder.empty()) program.dataFolder = folder + "\\QUIRN";
    InitCatalogue(program.profile);
    for (const std::string& argument : SplitCommandLine(CommandLineTail()))
        if (HandleCommandLineArg(program, argument)) return;

    frmSplash splash;
    if (!program.quiet) {
        splash.Show();
        splash.Repaint();
    }
    program.helpFile = ProgramFolder() + "\\QUIRN.HLP";
    frmMain mainWindow(program);
    mainWindow.Load();
    if (!program.quiet) {
        splash.Unload();
        // Loading may have ended in an exit.
        if (mainWindow.IsLoaded()) {
            mainWindow.Show();
            // With the splash went the program's only window, and with it its place in front.
            mainWindow.BringToFront();
        }
    }
    // Loading has filled the controls, which is no change that anyone would want to save.
    program.dirty = false;
    SweepFolders(program);
    RunEventLoop();
}

}  // namespace quirn
