#include "game/findgame.h"

#include <vector>

#include "game/zonelist.h"
#include "platform/files.h"
#include "platform/folders.h"
#include "platform/shell.h"
#include "profile/splitpath.h"

namespace quirn {

namespace {

constexpr char kFolder[] = "\\SubSpace";

bool IsGame(const std::string& folder) {
    return IsOnLocalDisk(folder) && LookForGame(folder).IsWhole();
}

}  // namespace

GamePlace LookForGame(const std::string& folder) {
    GamePlace place;
    place.program = FileExists(folder + "\\" + kGameProgram);
    const Result<std::vector<Zone>> zones = ReadZoneList(folder);
    if (!zones.Failed()) place.zones = zones.Value().size();
    return place;
}

std::string FindGame() {
    const std::string own = ProgramFolder();
    for (const std::string& folder : {own, own + kFolder, AbsolutePath(own + "\\..")})
        if (IsGame(folder)) return folder;
    for (const std::string& folder : ProgramPlaces())
        if (IsGame(folder + kFolder)) return folder + kFolder;
    for (const std::string& program : StartMenuPrograms(kGameProgram)) {
        const std::string folder = SplitPath(program).Folder();
        if (IsGame(folder)) return folder;
    }
    return {};
}

}  // namespace quirn
