#include "tests/player/player.h"

#include <unistd.h>

#include <algorithm>
#include <cstdio>

#include "game/playerfiles.h"
#include "mainwin/menurows.h"
#include "platform/files.h"
#include "platform/folders.h"
#include "platform/headless/events.h"
#include "platform/headless/headless.h"
#include "platform/version.h"
#include "profile/splitpath.h"
#include "startup/main.h"
#include "tests/testing/world.h"

namespace quirn::test {

using headless::TheWorld;

namespace {

constexpr int kLongestFarewell = 300;
constexpr char kGameKeys[] = "Software\\Virgin";

bool SamePath(const std::string& a, const std::string& b) {
    return EqualNoCase(AbsolutePath(a), AbsolutePath(b));
}

using Texts = std::vector<std::string>;

// Without the macros on demand: Import takes those from the window.
Texts TextsOf(const Profile& profile, bool withMacros) {
    Texts texts(profile.WaveFiles.begin(), profile.WaveFiles.end());
    for (const Section* section : profile.Sections())
        if (withMacros || section != &profile.Messages)
            texts.insert(texts.end(), section->values.begin(), section->values.end());
    texts.push_back(std::to_string(profile.IgnoreList.size()));
    texts.insert(texts.end(), profile.IgnoreList.begin(), profile.IgnoreList.end());
    return texts;
}

std::string FirstChange(const Texts& before, const Texts& now) {
    const auto [was, is] = std::mismatch(before.begin(), before.end(), now.begin(), now.end());
    return '"' + (was == before.end() ? "" : *was) + "\" is now \"" + (is == now.end() ? "" : *is) + '"';
}

}  // namespace

uint64_t Random::Next() {
    state_ += 0x9E3779B97F4A7C15;
    uint64_t mixed = (state_ ^ state_ >> 30) * 0xBF58476D1CE4E5B9;
    mixed = (mixed ^ mixed >> 27) * 0x94D049BB133111EB;
    return mixed ^ mixed >> 31;
}

Player::Player(uint64_t seed, std::vector<unsigned> steps, bool tells)
    : seed_(seed), steps_(std::move(steps)), tells_(tells), random_(seed) {
    ResetWorld();
    headless::SetPlayer([this] { return Act(); });
    headless::SetDialogPlayer([this](headless::Dialog& dialog) { WaitForAnswer(dialog); });
}

Player::~Player() {
    headless::SetPlayer({});
    headless::SetDialogPlayer({});
    ResetWorld();
}

void Player::Play() {
    MakeWorld();
    stored_ = Stored();
    Tell("start " + TheWorld().commandLineTail);
    if (TheWorld().commandLineTail.starts_with("/LR")) Allow(Allowed::Transfer);
    RunProgram(program_);
    Check();
    CheckEnd();
}

int Player::Act() {
    Check();
    if (next_ == steps_.size()) return Leave();
    random_ = Random(seed_ * 1000003 + steps_[next_++]);
    const size_t allowedBefore = allowed_.size();
    ++depth_;
    const int wait = DoSomething();
    --depth_;
    Check();
    allowed_.resize(allowedBefore);
    return wait;
}

int Player::Leave() {
    if (++leaving_ > kLongestFarewell) Fail("the program cannot be left");
    const std::vector<Form*> forms = UsableForms();
    ++depth_;
    if (!dialogs_.empty()) {
        dialogs_.back().answered = true;
        if (dialogs_.back().dialog->style % kCritical == kYesNoCancel) dialogs_.back().dialog->answer = Answer::No;
    } else if (!forms.empty() && forms.back() != MainWindow()) {
        forms.back()->UserCloses(UnloadMode::CloseBox);
    } else if (frmMain* main = MainWindow(); main != nullptr && !main->IsBlocked()) {
        main->MenuBar()->UserChooses(mnuFile_Exit);
    } else if (TheWorld().commandLineTail.starts_with("/LR")) {
        TheWorld().windows = {{"SubSpaceClass", "Game"}};  // what it waits for
    }
    --depth_;
    return 1000;
}

// The program waits here as in the system's own dialogs.
void Player::WaitForAnswer(headless::Dialog& dialog) {
    if (!dialogs_.empty()) Fail("\"" + dialog.text + "\" opens over \"" + dialogs_.back().dialog->text + "\"");
    Tell("  dialog \"" + dialog.text + "\"");
    const headless::Question question;
    dialogs_.push_back({&dialog, false});
    while (!dialogs_.back().answered) WaitForEvents(1);
    dialogs_.pop_back();
    if (dialog.kind == headless::Dialog::Kind::SaveFile && !dialog.paths.empty()) Allow(Allowed::Save, dialog.paths[0]);
}

void Player::Check() {
    CheckStored();
    CheckWindows();
    CheckRecord();
    if (depth_ == 0) CheckDirty();
}

bool Player::IsAllowed(Allowed::What what) const {
    return std::any_of(allowed_.begin(), allowed_.end(), [&](const Allowed& one) { return one.what == what; });
}

bool Player::MayChange(const std::string& path) const {
    const PathParts parts = SplitPath(path);
    if (FoldCase(path).starts_with(FoldCase(LocalDataFolder()))) return true;  // what the program keeps of its own
    return std::any_of(allowed_.begin(), allowed_.end(), [&](const Allowed& allowed) {
        if (allowed.what == Allowed::Library && FoldCase(path).starts_with(FoldCase(program_.qrnFolder))) return true;
        if (allowed.what == Allowed::Save)
            return SamePath(path, allowed.path) ||
                   SamePath(path, program_.gameFolder + "\\" + SplitPath(allowed.path).name + ".ssm");
        const bool isGameFile = std::any_of(std::begin(kPlayerFiles), std::end(kPlayerFiles),
                                            [&](auto* name) { return EqualNoCase(parts.File(), name); });
        return allowed.what == Allowed::Transfer && (path.starts_with(kGameKeys) || isGameFile);
    });
}

std::map<std::string, std::string> Player::Stored() const {
    std::map<std::string, std::string> stored;
    for (const auto& [path, file] : TheWorld().files) stored.emplace(path, file.bytes);
    for (const auto& [path, values] : TheWorld().registry)
        if (path.starts_with(kGameKeys))
            for (const auto& [name, value] : values) stored[path] += name + std::to_string(value.type) + value.bytes;
    return stored;
}

void Player::CheckStored() {
    auto now = Stored();
    for (const auto& [path, bytes] : now) {
        const auto before = stored_.find(path);
        if ((before == stored_.end() || before->second != bytes) && !MayChange(path)) Fail(path + " has changed");
    }
    for (const auto& [path, bytes] : stored_)
        if (!now.contains(path) && !MayChange(path)) Fail(path + " has gone");
    stored_ = std::move(now);
}

// A window that waits for another must have one to wait for, and the keyboard must be where the player can see it.
void Player::CheckWindows() {
    const auto waits = [](const Form* form) { return form->IsBlocked() && !form->IsLoading(); };
    const auto& forms = headless::LoadedForms();
    if (dialogs_.empty() && UsableForms().empty() && std::any_of(forms.begin(), forms.end(), waits))
        Fail("a window waits for a dialog that nobody can reach");
    for (const Form* form : forms)
        if (form->ActiveControl() != nullptr && !form->ActiveControl()->CanFocus())
            Fail("the keyboard is in a control of " + form->Caption() + " that cannot be used");
}

// What is edited in the window stays there until it is saved or played: whoever discards it must not find it again.
void Player::CheckRecord() {
    if (MainWindow() == nullptr) return;
    Texts now = TextsOf(program_.profile, false);
    if (!record_.empty() && now != record_ && !IsAllowed(Allowed::Load) && !IsAllowed(Allowed::Save) &&
        !IsAllowed(Allowed::Transfer))
        Fail("the profile has taken an edit: " + FirstChange(record_, now));
    record_ = std::move(now);
}

// Not dirty: the window is as it was loaded or saved, or as it was when the player did not want to save.
void Player::CheckDirty() {
    if (MainWindow() == nullptr || program_.dirty) {
        if (!wasDirty_ && program_.dirty && !IsAllowed(Allowed::Edit)) Fail("marked as edited without an edit");
        wasDirty_ = true;
        return;
    }
    wasDirty_ |= IsAllowed(Allowed::Load);
    // Looking would complete a chat name that is being typed.
    if (MainWindow()->ActiveControl() != nullptr && MainWindow()->ActiveControl()->onLostFocus) return;
    Texts shown = Shown();
    if (!wasDirty_ && shown != clean_) Fail("an edit is not marked: " + FirstChange(clean_, shown));
    wasDirty_ = false;
    clean_ = std::move(shown);
}

std::vector<std::string> Player::Shown() {
    const Profile before = program_.profile;
    MainWindow()->CollectProfile();
    Texts shown = TextsOf(program_.profile, true);
    program_.profile = before;
    return shown;
}

void Player::CheckEnd() {
    if (!headless::LoadedForms().empty()) Fail("\"" + headless::LoadedForms()[0]->Caption() + "\" is still loaded");
    if (headless::RunningTimers() != 0) Fail("a timer is still running");
    if (!TheWorld().trayIcons.empty()) Fail("the icon is still in the tray");
}

frmMain* Player::MainWindow() const {
    for (Form* form : headless::LoadedForms())
        if (form->Caption().starts_with(VersionTitle()) && form->MenuBar() != nullptr && !form->IsLoading())
            return static_cast<frmMain*>(form);
    return nullptr;
}

std::vector<Form*> Player::UsableForms() const {
    std::vector<Form*> usable;
    for (Form* form : headless::LoadedForms())
        if (form->Visible() && !form->IsBlocked()) usable.push_back(form);
    return usable;
}

void Player::Allow(Allowed::What what, const std::string& path) {
    allowed_.push_back({what, path});
}

void Player::Tell(const std::string& text) const {
    if (tells_) std::fprintf(stderr, "%*s%s\n", 2 * depth_, "", text.c_str());
}

void Player::Fail(const std::string& what) const {
    std::fprintf(stderr, "FAILED: %s\n", what.c_str());
    _exit(2);
}

}  // namespace quirn::test
