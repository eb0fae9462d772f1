#include "tests/player/player.h"

#include <unistd.h>

#include <algorithm>
#include <cstdio>

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
    seen_ = Look();
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
        if (dialogs_.back().dialog->style % 16 == kYesNoCancel) dialogs_.back().dialog->answer = Answer::No;
    } else if (!forms.empty() && forms.back() != MainWindow()) {
        forms.back()->UserCloses(UnloadMode::CloseBox);
    } else if (frmMain* main = MainWindow(); main != nullptr && !main->IsBlocked()) {
        main->MenuBar()->UserChooses(mnuFile_Exit);
    } else {
        TheWorld().windows = {{"SubSpaceClass", "Game"}};  // what /LR: waits for
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
    if (dialog.kind == headless::Dialog::Kind::SaveFile && dialog.path) Allow(Allowed::Save, *dialog.path);
}

void Player::Check() {
    CheckFiles();
    CheckWindows();
    if (depth_ == 0) CheckDirty();
}

Player::Seen Player::Look() const {
    Seen seen;
    for (const auto& [path, file] : TheWorld().files) seen.files.emplace(path, file.bytes);
    for (const auto& [path, values] : TheWorld().registry) {
        if (!path.starts_with(kGameKeys)) continue;
        seen.gameKeys += path;
        for (const auto& [name, value] : values)
            seen.gameKeys += name + '=' + std::to_string(value.type) + value.bytes + '\n';
    }
    return seen;
}

bool Player::IsAllowed(Allowed::What what) const {
    return std::any_of(allowed_.begin(), allowed_.end(), [&](const Allowed& one) { return one.what == what; });
}

bool Player::MayChange(const std::string& path) const {
    const PathParts parts = SplitPath(path);
    if (FoldCase(path).starts_with(FoldCase(LocalDataFolder()))) return true;  // what the program keeps of its own
    return std::any_of(allowed_.begin(), allowed_.end(), [&](const Allowed& allowed) {
        if (allowed.what == Allowed::Save)
            return SamePath(path, allowed.path) ||
                   SamePath(path, program_.gameFolder + "\\" + SplitPath(allowed.path).name + ".ssm");
        return allowed.what == Allowed::Transfer && SamePath(parts.Folder(), program_.gameFolder) &&
               (EqualNoCase(parts.File(), "ignore.txt") || EqualNoCase(parts.extension, "wav"));
    });
}

void Player::CheckFiles() {
    Seen now = Look();
    for (const auto& [path, bytes] : now.files) {
        const auto before = seen_.files.find(path);
        if ((before == seen_.files.end() || before->second != bytes) && !MayChange(path)) Fail(path + " has changed");
    }
    for (const auto& [path, bytes] : seen_.files)
        if (!now.files.contains(path) && !MayChange(path)) Fail(path + " has gone");
    if (now.gameKeys != seen_.gameKeys && !IsAllowed(Allowed::Transfer)) Fail("the game's keys have changed");
    seen_ = std::move(now);
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

// Not dirty: the window is as it was loaded or saved, or as it was when the player did not want to save.
void Player::CheckDirty() {
    if (MainWindow() == nullptr || MainWindow()->IsLoading() || program_.dirty) {
        wasDirty_ = true;
        return;
    }
    wasDirty_ |= IsAllowed(Allowed::Load);
    // Looking would complete a chat name that is being typed.
    if (MainWindow()->ActiveControl() != nullptr && MainWindow()->ActiveControl()->onLostFocus) return;
    std::vector<std::string> shown = Shown();
    if (!wasDirty_ && shown != clean_)
        for (size_t i = 0; i < std::min(shown.size(), clean_.size()); ++i)
            if (shown[i] != clean_[i]) Fail("an edit is not marked: \"" + clean_[i] + "\" is now \"" + shown[i] + "\"");
    wasDirty_ = false;
    clean_ = std::move(shown);
}

std::vector<std::string> Player::Shown() {
    const Profile before = program_.profile;
    MainWindow()->CollectProfile();
    std::vector<std::string> shown(program_.profile.WaveFiles.begin(), program_.profile.WaveFiles.end());
    for (const Section* section : std::as_const(program_.profile).Sections())
        shown.insert(shown.end(), section->values.begin(), section->values.end());
    shown.push_back(std::to_string(program_.profile.IgnoreList.size()));
    for (const std::string& name : program_.profile.IgnoreList) shown.push_back(name);
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
        if (form->Caption().starts_with(VersionTitle()) && form->MenuBar() != nullptr)
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
