#include "mainwin/filecommands.h"

#include "mainwin/loading.h"
#include "mainwin/menurows.h"
#include "mainwin/notice.h"
#include "mainwin/saving.h"
#include "platform/clock.h"
#include "platform/dialogs.h"
#include "platform/files.h"
#include "platform/text.h"
#include "profile/macroimport.h"
#include "profile/profilefile.h"

namespace quirn {

namespace {

constexpr char kProfileFilter[] = "All Files (*.*)|*.*|QRN Files (*.qrn)|*.qrn|Text Files (*.txt)|*.txt";
constexpr char kMacroFilter[] = "All Files (*.*)|*.*|Subspace Macro Files (*.ssm)|*.ssm|Text Files (*.txt)|*.txt";
constexpr int kSecondFilter = 2;

constexpr char kLoaded[] = "File has been loaded";
constexpr char kLoadFailed[] = "ERROR loading file";
constexpr char kSaved[] = "File has been saved";
constexpr char kImported[] = "Macro file has been imported";

}  // namespace

FileCommands::FileCommands(Program& program, std::string baseTitle, FileCommandsView view)
    : program_(program), baseTitle_(std::move(baseTitle)), view_(std::move(view)) {}

bool FileCommands::AskSaveChanges() {
    if (!AskToSave()) return false;
    program_.dirty = false;
    return true;
}

bool FileCommands::AskToSave() {
    switch (ShowMessage("Save changes to " + program_.CurrentFile, kYesNoCancel + kQuestion, "Save Changes?")) {
        // Always by Save As, on purpose, also when the profile has a file.
        case Answer::Yes: return mnuFile_SaveAs_Click();
        case Answer::No: return true;
        default: return false;
    }
}

// With a clean profile nothing happens at all, on purpose.
void FileCommands::mnuFile_New_Click() {
    if (!program_.dirty || !AskSaveChanges()) return;
    program_.CurrentFile = kUntitled;
    ShowTitle(kUntitled);
    ResetProfile(program_.profile);
    view_.ShowProfile();
}

void FileCommands::mnuFile_Open_Click() {
    if (!MayDiscard()) return;
    const auto path = AskOpenFile({.title = "Open",
                                   .filter = kProfileFilter,
                                   .filterIndex = kSecondFilter,
                                   .folder = program_.qrnFolder,
                                   .fileName = "",
                                   .flags = kFileMustExist | kHideReadOnly});
    if (!path) return;
    // Before loading, on purpose: a later Save writes to the file that could not be loaded.
    program_.CurrentFile = *path;
    OpenProfile(*path);
}

void FileCommands::OpenDropped(const std::string& path) {
    // Not as Open: whatever was dropped by mistake must survive the next Save.
    if (MayDiscard()) OpenAsCurrent(path);
}

bool FileCommands::OpenAsCurrent(const std::string& path) {
    const bool loaded = OpenProfile(path);
    if (loaded) program_.CurrentFile = path;
    return loaded;
}

bool FileCommands::OpenProfile(const std::string& path) {
    if (!LoadProfileAndTell(program_.profile, path)) {
        view_.SetStatus(kLoadFailed);
        return false;
    }
    AddToRecentFiles(path);
    ShowTitle(path);
    view_.ShowProfile();
    view_.SetStatus(kLoaded);
    program_.dirty = false;
    return true;
}

// This and Save As show their own error, on purpose: the player must know before the next command runs.
void FileCommands::mnuFile_Save_Click() {
    if (IsUntitled(program_.CurrentFile)) {
        mnuFile_SaveAs_Click();
        return;
    }
    Save(program_.CurrentFile);
}

bool FileCommands::Save(const std::string& path) {
    view_.CollectProfile();
    const Failure failure =
        SaveKeepingVersion(program_, path, [&] { return SaveProfile(program_.profile, program_.gameFolder, path); });
    if (failure) {
        ShowError(failure);
        return false;
    }
    view_.SetStatus(kSaved);
    program_.dirty = false;
    return true;
}

bool FileCommands::mnuFile_SaveAs_Click() {
    const auto path = AskSaveFile({.title = "Save As",
                                   .filter = kProfileFilter,
                                   .filterIndex = kSecondFilter,
                                   .folder = program_.qrnFolder,
                                   .fileName = SaveAsName(program_.CurrentFile),
                                   .flags = kOverwritePrompt | kHideReadOnly});
    if (!path) return false;
    program_.CurrentFile = *path;
    ShowTitle(*path);
    if (!Save(*path)) return false;
    AddToRecentFiles(*path);
    return true;
}

// Without a question, and current file and dirty flag stay, all on purpose: a Save that follows writes to the file that
// was current before.
void FileCommands::mnuFileMRU_Click(size_t index) {
    const std::string path = program_.recentFiles[index];
    if (!LoadProfileAndTell(program_.profile, path)) {
        view_.SetStatus(kLoadFailed);
        return;
    }
    ShowTitle(path);
    view_.ShowProfile();
    view_.SetStatus(kLoaded);
    AddToRecentFiles(path);
}

void FileCommands::mnuFile_Import_Click() {
    const auto path = AskOpenFile({.title = "Import Subspace Macro File",
                                   .filter = kMacroFilter,
                                   .filterIndex = kSecondFilter,
                                   .folder = program_.gameFolder,
                                   .fileName = "",
                                   .flags = kHideReadOnly});
    if (!path) return;
    // A file with few lines must not bring back what the player has typed over in the other macros.
    const Result<bool> changed = ImportMacroFile(program_.profile, *path, view_.CollectMacros);
    if (changed.Failed()) {
        ShowError(changed.Error());
        return;
    }
    if (changed.Value()) program_.dirty = true;
    view_.ShowMacros();
    view_.ShowMacroPage();
    view_.SetStatus(kImported);
}

// The version is read and the file is named before the question about edits: saving those may push the version out, or
// make another file the current one. When the file stays as it is, so do edits that were to be given up.
bool FileCommands::PutBackVersion(const std::string& path, const ProfileVersion& version) {
    const bool isCurrent = IsSameFile(path, program_.CurrentFile);
    const bool wasDirty = program_.dirty;
    const Result<std::string> bytes = ReadWholeFile(version.file);
    if (bytes.Failed()) ShowError(bytes.Error());
    if (bytes.Failed() || (isCurrent && !MayDiscard())) return false;
    const bool done = ReplaceByVersion(path, version, bytes.Value()) && (!isCurrent || OpenAsCurrent(path));
    if (!done) program_.dirty = wasDirty;
    return done;
}

bool FileCommands::ReplaceByVersion(const std::string& path, const ProfileVersion& version, const std::string& bytes) {
    if (ShowMessage("Make " + path + " what it was before it was replaced (" +
                        TimeInWords(version.time, SortableTime()) + ")? What it holds now becomes a version.",
                    kOkCancel + kQuestion) != Answer::Ok)
        return false;
    const ProfileVersions versions(program_.dataFolder, path);
    const Result<std::string> kept = versions.KeepPresent();
    if (kept.Failed()) {
        ShowError(kept.Error());
        return false;
    }
    const Failure failure = WriteWholeFile(path, bytes);
    versions.Settle(kept.Value());
    ShowError(failure);
    return !failure;
}

void FileCommands::AddToRecentFiles(const std::string& path) {
    AddRecentFile(program_.recentFiles, path);
    view_.RefreshRecentMenu();
}

void FileCommands::ShowTitle(const std::string& file) {
    view_.SetTitle(DocumentTitle(baseTitle_, file));
}

void HideRecentMenu(Menu& menu) {
    for (int command = mnuFileMRU; command <= mnuFileBarMRU; ++command) menu.SetVisible(command, false);
}

void RefreshRecentMenu(Menu& menu, const RecentFiles& files) {
    for (size_t i = 0; i < files.size(); ++i) {
        if (Trim(files[i]).empty()) continue;
        const int command = mnuFileMRU + static_cast<int>(i);
        menu.SetCaption(command, RecentFileCaption(i, DoubleAmpersands(files[i])));
        menu.SetVisible(command, true);
        menu.SetVisible(mnuFileBarMRU, true);
    }
}

}  // namespace quirn
