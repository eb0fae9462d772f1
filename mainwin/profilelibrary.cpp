#include "mainwin/profilelibrary.h"

#include <utility>

#include "game/comparerows.h"
#include "game/settingsstore.h"
#include "game/transfer.h"
#include "mainwin/favourites.h"
#include "mainwin/friendcopy.h"
#include "mainwin/frmrename.h"
#include "mainwin/loading.h"
#include "platform/dialogs.h"
#include "platform/files.h"
#include "platform/folders.h"
#include "platform/shell.h"
#include "platform/text.h"
#include "platform/version.h"
#include "profile/documentnames.h"
#include "profile/profilefile.h"
#include "profile/versions.h"

namespace quirn {

namespace {

std::string FileOf(const std::string& path) {
    return path.substr(path.rfind('\\') + 1);
}

std::string FolderOf(const std::string& path) {
    return path.substr(0, path.rfind('\\'));
}

// From the last point on, which a name that is typed without one keeps.
std::string EndingOf(const std::string& file) {
    const size_t point = file.rfind('.');
    return point == std::string::npos ? std::string() : file.substr(point);
}

bool HasSpaces(const std::string& text) {
    return text.find(' ') != std::string::npos;
}

}  // namespace

ProfileLibrary::ProfileLibrary(Form& mainWindow, Program& program, const ProfilesView& profilesView, LibraryView view)
    : mainWindow_(mainWindow),
      program_(program),
      profilesView_(profilesView),
      view_(std::move(view)),
      window_(Deeds()),
      comparison_(mainWindow, program, profilesView, "Other profile", "Game now",
                  [this] { return GameSide(program_.gameFolder); }) {}

LibraryDeeds ProfileLibrary::Deeds() {
    LibraryDeeds deeds;
    deeds.Read = [this] { return Read(); };
    deeds.FavouriteNumber = [this](const std::string& path) { return FavouriteNumber(path); };
    deeds.IsInGame = [this](const LibraryEntry& entry) { return IsInGame(entry); };
    deeds.Open = [this](const std::string& path) { view_.Open(path); };
    deeds.Play = [this](const std::string& path) { view_.Play(path); };
    deeds.Compare = [this](const std::string& path) { comparison_.Open(path, FileOf(path)); };
    deeds.Rename = [this](const std::string& path) { Rename(path); };
    deeds.CopyForFriend = [this](const std::string& path) { SaveCopy(path); };
    deeds.Versions = [this](const std::string& path) { view_.ShowVersions(path); };
    deeds.Link = [this](const std::string& path) { MakeLink(path); };
    deeds.ShowInFolder = [this](const std::string& path) { ShowError(quirn::ShowInFolder(window_, path)); };
    deeds.Delete = [this](const std::string& path) { Delete(path); };
    deeds.MakeFavourite = [this](const std::string& path, size_t slot) { MakeFavourite(path, slot); };
    deeds.canDo = [this] { return !mainWindow_.IsBlocked(); };
    return deeds;
}

void ProfileLibrary::Open() {
    window_.Open(mainWindow_, program_.qrnFolder, program_.CurrentFile);
}

void ProfileLibrary::Close() {
    window_.Unload();
    comparison_.Close();
}

void ProfileLibrary::ShowWhatCanBeDone() {
    window_.ShowWhatCanBeDone();
    comparison_.ShowWhatCanBeDone();
}

LibraryReader ProfileLibrary::Read() {
    Result<GameSettings> settings = ReadGameSettings();
    game_ = settings.Failed() ? GameSettings() : settings.Take();
    std::vector<std::string> others;
    for (const std::string& file : program_.recentFiles)
        if (!Trim(file).empty()) others.push_back(file);
    for (const Favourite& favourite : program_.favourites)
        if (!favourite.path.empty()) others.push_back(favourite.path);
    return {program_.qrnFolder, others};
}

int ProfileLibrary::FavouriteNumber(const std::string& path) const {
    for (size_t slot = 0; slot < program_.favourites.size(); ++slot)
        if (!program_.favourites[slot].path.empty() && IsSameFile(program_.favourites[slot].path, path))
            return static_cast<int>(slot) + 1;
    return 0;
}

// Only a profile that could be it is loaded.
bool ProfileLibrary::IsInGame(const LibraryEntry& entry) const {
    const auto dialog = game_.find(setting::kGroupNames[static_cast<size_t>(setting::Group::Dialog)]);
    if (dialog == game_.end()) return false;
    const auto name = dialog->second.find("PlayerName");
    if (name == dialog->second.end() || TextOfStored(name->second) != entry.pilot) return false;
    Profile profile;
    InitCatalogue(profile);
    return LoadProfile(profile, entry.path) <= LoadResult::LoadedFromEarlierVersion &&
           GameHolds(game_, profile, program_.gameFolder);
}

void ProfileLibrary::Rename(const std::string& path) {
    const std::string file = FileOf(path);
    std::optional<std::string> name = frmRename(file).Ask(window_);
    if (!name) return;
    if (EndingOf(*name).empty()) *name += EndingOf(file);
    const std::string newPath = FolderOf(path) + "\\" + *name;
    if (!EqualNoCase(path, newPath) && FindEntry(newPath)) {
        ShowMessage("There is a file named " + *name + " already.", kExclamation);
        return;
    }
    if (Failure failure = RenameEntry(path, newPath)) {
        ShowError(failure);
        return;
    }
    FollowRename(path, newPath);
    window_.Refresh();
}

// Whoever knows the file by its old name. Its earlier versions go along as far as they can be moved.
void ProfileLibrary::FollowRename(const std::string& path, const std::string& newPath) {
    ProfileVersions(program_.dataFolder, path).MoveTo(ProfileVersions(program_.dataFolder, newPath));
    for (std::string& recent : program_.recentFiles)
        if (IsSameFile(recent, path)) recent = newPath;
    for (Favourite& favourite : program_.favourites)
        if (!favourite.path.empty() && IsSameFile(favourite.path, path)) favourite.path = newPath;
    if (mainWindow_.Caption() == DocumentTitle(VersionTitle(), path))
        mainWindow_.SetCaption(DocumentTitle(VersionTitle(), newPath));
    if (IsSameFile(program_.CurrentFile, path)) program_.CurrentFile = newPath;
    view_.RefreshMenus();
}

void ProfileLibrary::SaveCopy(const std::string& path) {
    Profile profile;
    InitCatalogue(profile);
    if (LoadProfileAndTell(profile, path) && SaveCopyForFriend(window_, program_, profile, path)) {
        profilesView_.SetStatus(kCopySaved);
        window_.Refresh();
    }
}

void ProfileLibrary::Delete(const std::string& path) {
    if (ShowMessage("Move " + FileOf(path) + " to the recycle bin?", kOkCancel + kQuestion) != Answer::Ok) return;
    ShowError(MoveToRecycleBin(window_, path));
    window_.Refresh();
}

// The command line ends an argument at a space, so a path with one needs another way to be written.
void ProfileLibrary::MakeLink(const std::string& path) {
    const std::string file = FileOf(path);
    std::string argument = EqualNoCase(FolderOf(path), AbsolutePath(program_.qrnFolder)) ? file : path;
    if (HasSpaces(argument)) argument = ShortPath(path);
    if (argument.empty() || HasSpaces(argument)) {
        ShowMessage(
            "A shortcut cannot name a file with spaces in its path, and Windows keeps no short name for this one. "
            "Give it a name without spaces first.",
            kExclamation);
        return;
    }
    const Failure failure = MakeDesktopLink(file.substr(0, file.rfind('.')), "/LR:" + argument);
    ShowError(failure);
    if (!failure) profilesView_.SetStatus("A shortcut has been put on the desktop");
}

// Another profile is not pushed out unasked: in the main window the same keys play it.
void ProfileLibrary::MakeFavourite(const std::string& path, size_t slot) {
    Favourite& favourite = program_.favourites[slot];
    if (!favourite.path.empty()) {
        if (IsSameFile(favourite.path, path)) return;  // under the name that the player gave it
        if (ShowMessage("Favourite " + std::to_string(slot + 1) + " is '" + favourite.name + "' now. Make it " +
                            FileOf(path) + " instead?",
                        kOkCancel + kQuestion) != Answer::Ok)
            return;
    }
    favourite = {FavouriteName(path), path};
    view_.RefreshMenus();
    window_.Refresh();
}

}  // namespace quirn
