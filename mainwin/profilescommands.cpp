#include "mainwin/profilescommands.h"

#include "mainwin/friendcopy.h"
#include "mainwin/frmhistory.h"
#include "mainwin/frmundo.h"
#include "mainwin/frmversions.h"
#include "mainwin/transferwords.h"
#include "mainwin/windowsides.h"
#include "platform/dialogs.h"
#include "platform/folders.h"
#include "platform/text.h"
#include "profile/splitpath.h"

namespace quirn {

namespace {

constexpr int kSoon = 10;  // milliseconds

// Old programs' files below the program folders and the like are redirected to a copy of the folder in here.
bool IsRedirected(const std::string& gameFolder) {
    const std::string local = LocalDataFolder();
    return !local.empty() && gameFolder.size() > 2 && FindEntry(local + "\\VirtualStore" + gameFolder.substr(2));
}

}  // namespace

ProfilesCommands::ProfilesCommands(Form& mainWindow, Program& program, Launcher& launcher, NoticeBar& notices,
                                   ProfilesView view)
    : mainWindow_(mainWindow),
      program_(program),
      launcher_(launcher),
      notices_(notices),
      view_(std::move(view)),
      comparison_(mainWindow, program, launcher, view_, [this] { LookSoon(); }),
      transferComparison_(mainWindow,
                          [this](auto& entry, auto& part) {
                              PutBack(TransferLog(program_.dataFolder), entry, part, TransferWay::PutBack);
                          }),
      versionComparison_(mainWindow, program, view_, "Version", "File now", [this] { return FileSide(versionsOf_); }),
      library_(mainWindow, program, view_,
               {view_.Open, view_.Play, [this](auto& path) { ShowVersions(path); }, view_.RefreshMenus}) {
    lookTimer_.SetInterval(kSoon);
    lookTimer_.onTimer = [this] {
        lookTimer_.SetEnabled(false);
        if (!mainWindow_.IsBlocked()) Look();
    };
    launcher_.onChange = [this] { LookSoon(); };
}

// No question and no launch. The profile goes into the game as the window shows it.
void ProfilesCommands::mnuProfiles_Transfer_Click() {
    view_.CollectProfile();
    if (launcher_.Transfer(program_.profile, {program_.CurrentFile, TransferWay::NoRun}))
        view_.SetStatus("Profile has been transferred");
}

void ProfilesCommands::mnuProfiles_Undo_Click() {
    const TransferLog log(program_.dataFolder);
    const std::optional<TransferEntry> last = log.Last();
    if (!last || !MayWriteNow()) return;
    const Result<Undo> undo = PlanUndo(log, *last);
    if (undo.Failed()) {
        ShowError(undo.Error());
        return;
    }
    frmUndo question(*last, undo.Value(), program_.gameFolder);
    const frmUndo::Choice choice = question.Ask(mainWindow_);
    if (choice == frmUndo::Choice::PutBack) PutBack(log, *last, undo.Value().back, TransferWay::Undo);
    if (choice == frmUndo::Choice::Show) ShowError(transferComparison_.Open(log, *last, undo.Value().back));
}

void ProfilesCommands::mnuProfiles_History_Click() {
    const TransferLog log(program_.dataFolder);
    frmHistory history(log, [&](const TransferEntry& entry) { PutBackWhole(log, entry); });
    const std::optional<TransferEntry> shown = history.Ask(mainWindow_);
    if (shown) ShowError(transferComparison_.Open(log, *shown, {}));
    LookSoon();
}

void ProfilesCommands::mnuProfiles_Copy_Click() {
    const Profile profile = WindowProfile(program_, view_);
    if (!SaveCopyForFriend(mainWindow_, program_, profile, program_.CurrentFile)) return;
    view_.SetStatus(kCopySaved);
    library_.Refresh();
}

void ProfilesCommands::ShowVersions(const std::string& path) {
    const ProfileVersions versions(program_.dataFolder, path);
    frmVersions dialog(path, versions, [&](auto& version) { return view_.PutBackVersion(path, version); });
    const std::optional<ProfileVersion> shown = dialog.Ask(mainWindow_);
    library_.Refresh();
    if (!shown) return;
    versionsOf_ = path;
    versionComparison_.Open(shown->file, "an earlier " + SplitPath(path).File());
}

void ProfilesCommands::PutBackWhole(const TransferLog& log, const TransferEntry& entry) {
    const Result<GameState> before = log.WholeBefore(entry);
    if (before.Failed()) {
        ShowError(before.Error());
        return;
    }
    if (ShowMessage("Put back all that the game had before " + NameInWords(entry) +
                        " was transferred? What it has now is kept in the history.",
                    kOkCancel + kQuestion) == Answer::Ok)
        PutBack(log, entry, before.Value(), TransferWay::PutBack);
}

// It is a transfer like all others, so it can be undone. One that was cut off is over then, also when it had not come
// to change anything.
void ProfilesCommands::PutBack(const TransferLog& log, const TransferEntry& entry, const GameState& state,
                               TransferWay way) {
    if (!MayWriteNow() || !launcher_.PutIntoGame(state, entry.gameFolder, {entry.note.profile, way})) return;
    view_.SetStatus("Settings have been put back");
    if (!entry.finished) ShowError(log.Finish(entry.folder));
    LookSoon();
}

// The game writes its settings when it ends, over whatever has been put back meanwhile.
bool ProfilesCommands::MayWriteNow() const {
    while (launcher_.GameIsRunning())
        if (ShowMessage("The game is running and writes its settings when it ends. End it first.",
                        kRetryCancel + kExclamation) != Answer::Retry)
            return false;
    return true;
}

bool ProfilesCommands::HasGameFolder() const {
    return program_.gameFolder != kNotSet;
}

bool ProfilesCommands::HasVersions() const {
    const std::string& file = program_.CurrentFile;
    return !IsUntitled(file) && !ProfileVersions(program_.dataFolder, file).List().empty();
}

bool ProfilesCommands::HasTransfer() const {
    return !TransferLog(program_.dataFolder).IsEmpty();
}

void ProfilesCommands::FollowNotice(Notice::Action action) {
    if (action == Notice::Action::Undo) mnuProfiles_Undo_Click();
    if (action == Notice::Action::Keep) comparison_.OpenWithChanges();
    if (action == Notice::Action::AcceptWave) {
        launcher_.AcceptOddWave();
        LookSoon();
    }
}

void ProfilesCommands::CloseWindows() {
    comparison_.Close();
    transferComparison_.Close();
    library_.Close();
    versionComparison_.Close();
}

void ProfilesCommands::LookSoon() {
    lookTimer_.SetEnabled(true);
}

void ProfilesCommands::Look() {
    if (firstGameFolder_.empty()) firstGameFolder_ = program_.gameFolder;
    const NoticeFacts facts = Facts();
    notices_.Show(WorstOf(facts));
    notices_.ShowSave(SaveNotice(program_.CurrentFile));
    // Beside a window that has gone to the tray it would lie over the game.
    if (!mainWindow_.Visible()) CloseWindows();
    comparison_.ShowWhatCanBeDone();
    transferComparison_.ShowWhatCanBeDone();
    library_.ShowWhatCanBeDone();
    versionComparison_.ShowWhatCanBeDone();
    view_.ShowKeepRow(facts.changes > 0 || facts.filesChanged);
}

NoticeFacts ProfilesCommands::Facts() const {
    const TransferLog log(program_.dataFolder);
    const std::optional<TransferEntry> last = log.Last();
    const GameChanges changes = FindGameChanges(log, program_.gameFolder);
    const Result<GameSettings> settings = ReadGameSettings();
    NoticeFacts facts;
    facts.unfinished = last && !last->finished;
    facts.notKept = !launcher_.KeptLast();
    facts.versionNotKept = !program_.keptLastVersion;
    facts.oddWave = launcher_.OddWaveMessage();
    facts.gameRuns = launcher_.GameIsRunning();
    facts.noSettings = !settings.Failed() && settings.Value().empty();
    facts.folderChanged = !EqualNoCase(program_.gameFolder, firstGameFolder_);
    facts.redirected = IsRedirected(program_.gameFolder);
    facts.changes = changes.now.SettingCount();
    facts.filesChanged = !changes.now.files.empty();
    facts.since = changes.since;
    return facts;
}

}  // namespace quirn
