#include "mainwin/profilescommands.h"

#include "mainwin/frmhistory.h"
#include "mainwin/frmundo.h"
#include "mainwin/transferwords.h"
#include "platform/dialogs.h"
#include "platform/folders.h"
#include "platform/text.h"
#include "profile/settingvalues.h"

namespace quirn {

namespace {

constexpr int kSoon = 10;  // milliseconds

// Old programs' files below the program folders and the like are redirected to a copy of the folder in here.
bool IsRedirected(const std::string& gameFolder) {
    const std::string local = LocalDataFolder();
    return !local.empty() && gameFolder.size() > 2 && FindEntry(local + "\\VirtualStore" + gameFolder.substr(2));
}

// The settings that a state holds, a line each as their pages word them, with their values in a profile.
std::string Listed(const GameState& state, const Profile& profile) {
    constexpr size_t kMostLines = 20;
    std::string text;
    size_t lines = 0;
    for (const SettingRow& row : setting::kRows) {
        const auto section = state.settings.find(setting::kGroupNames[static_cast<size_t>(row.group)]);
        if (section == state.settings.end() || !section->second.contains(row.name)) continue;
        if (++lines <= kMostLines) text += DisplayCaption(row) + ": " + DisplayValue(row, profile.Value(row)) + "\n";
    }
    if (lines > kMostLines) text += "and " + std::to_string(lines - kMostLines) + " more settings\n";
    if (!state.files.empty()) text += WordsFor({{}, state.files}) + "\n";
    return text;
}

}  // namespace

ProfilesCommands::ProfilesCommands(Form& mainWindow, Program& program, Launcher& launcher, NoticeBar& notices,
                                   ProfilesView view)
    : mainWindow_(mainWindow), program_(program), launcher_(launcher), notices_(notices), view_(std::move(view)) {
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
    if (!question.Ask(mainWindow_) || !MayWriteNow()) return;
    // One that was cut off is over now, also when it had not come to change anything.
    if (PutBack(undo.Value().back, last->gameFolder, {last->note.profile, TransferWay::Undo}) && !last->finished)
        ShowError(log.Finish(last->folder));
}

void ProfilesCommands::mnuProfiles_History_Click() {
    const TransferLog log(program_.dataFolder);
    frmHistory history(log, [&](const TransferEntry& entry) { PutBackWhole(log, entry); });
    history.ShowModal(mainWindow_);
    LookSoon();
}

void ProfilesCommands::PutBackWhole(const TransferLog& log, const TransferEntry& entry) {
    const Result<GameState> before = log.WholeBefore(entry);
    if (before.Failed()) {
        ShowError(before.Error());
        return;
    }
    if (ShowMessage("Put back all that the game had before " + NameInWords(entry) +
                        " was transferred? What it has now is kept in the history.",
                    kOkCancel + kQuestion) == Answer::Ok &&
        MayWriteNow())
        PutBack(before.Value(), entry.gameFolder, {entry.note.profile, TransferWay::PutBack});
}

void ProfilesCommands::KeepChanges() {
    const TransferLog log(program_.dataFolder);
    const GameChanges changes = FindGameChanges(log, program_.gameFolder);
    if (changes.now.IsEmpty()) return;
    Profile kept = program_.profile;
    TakeIntoProfile(changes.now, program_.gameFolder, kept);
    if (ShowMessage("Take what the game has changed into the profile in the window?\n\n" + Listed(changes.now, kept) +
                        "\nNothing is saved before you save it.",
                    kOkCancel + kQuestion, "Keep the Game's Changes") != Answer::Ok)
        return;
    view_.CollectProfile();
    TakeIntoProfile(changes.now, program_.gameFolder, program_.profile);
    program_.dirty = true;
    view_.ShowProfile();
    ShowError(AcceptGameChanges(log, changes.now));
    LookSoon();
}

// What goes wrong is shown. It is a transfer like all others, so it can be undone.
bool ProfilesCommands::PutBack(const GameState& state, const std::string& gameFolder, const TransferNote& note) {
    const TransferResult result = PutIntoGame(state, gameFolder, TransferLog(program_.dataFolder), note);
    ShowErrors(result.errors);
    if (result.errors.empty()) view_.SetStatus("Settings have been put back");
    LookSoon();
    return result.errors.empty();
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

bool ProfilesCommands::HasTransfer() const {
    return !TransferLog(program_.dataFolder).IsEmpty();
}

void ProfilesCommands::FollowNotice(Notice::Action action) {
    if (action == Notice::Action::Undo) mnuProfiles_Undo_Click();
    if (action == Notice::Action::Keep) KeepChanges();
}

void ProfilesCommands::LookSoon() {
    lookTimer_.SetEnabled(true);
}

void ProfilesCommands::Look() {
    if (firstGameFolder_.empty()) firstGameFolder_ = program_.gameFolder;
    const NoticeFacts facts = Facts();
    notices_.Show(WorstOf(facts));
    notices_.ShowSave(SaveNotice(program_.CurrentFile));
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
