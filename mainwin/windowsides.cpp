#include "mainwin/windowsides.h"

#include <utility>

#include "game/comparerows.h"
#include "profile/documentnames.h"
#include "profile/profilefile.h"
#include "profile/splitpath.h"

namespace quirn {

Profile WindowProfile(Program& program, const ProfilesView& view) {
    const Profile before = program.profile;
    view.CollectProfile();
    return std::exchange(program.profile, before);
}

CompareSide WindowSide(Program& program, const ProfilesView& view) {
    const std::string& file = program.CurrentFile;
    return SideOf(IsUntitled(file) ? file : SplitPath(file).File(), WindowProfile(program, view));
}

CompareSide FileSide(const std::string& file) {
    Profile saved;
    InitCatalogue(saved);
    const LoadResult loaded = IsUntitled(file) ? LoadResult::NotFound : LoadProfile(saved, file);
    CompareSide side = SideOf({}, saved);
    side.isThere = loaded == LoadResult::Loaded || loaded == LoadResult::LoadedFromEarlierVersion;
    return side;
}

void TakeIntoWindow(const CompareRows& rows, const Profile& from, Program& program, const ProfilesView& view) {
    view.CollectProfile();
    TakeRows(rows, from, program.profile);
    program.dirty = true;
    view.ShowProfile();
    view.SetStatus("Settings have been taken into the profile");
}

}  // namespace quirn
