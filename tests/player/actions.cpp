#include <algorithm>

#include "mainwin/menurows.h"
#include "platform/files.h"
#include "platform/headless/events.h"
#include "platform/headless/headless.h"
#include "platform/native.h"
#include "platform/version.h"
#include "tests/player/player.h"
#include "tests/testing/userinput.h"
#include "tests/testing/world.h"

namespace quirn::test {

using headless::TheWorld;

namespace {

const std::string kProfile =
    "[QUIRN]\r\nVersion=1.61\r\n[Dialog]\r\nPlayerName=Ace\r\nServerArena=Ember Reach\r\nPlayerShipType=3\r\n"
    "WaveFileF11=C:\\SubSpace\\ping.wav\r\n[Messages]\r\nShiftF1=hello\r\n[Options]\r\nMusicVolume=40\r\n"
    "[IgnoreList]\r\nIgnore1=Mole\r\n[Advanced]\r\nSkipSplash=";
const std::string kLog =
    "  Ace> hello\r\n  Mole> hi there\r\nP  Ace> team\r\n    Mole(25) killed by: Ace\r\n  Orla> \x93quoted\x94\r\n\r\n"
    "C 1:Mole> chat\r\nnonsense\r\n";

// What lies in the player's folders at the start; without bytes it is not there.
const struct {
    const char* path;
    std::string bytes;
} kFiles[] = {{"C:\\Mine\\a.qrn", kProfile + "0"},
              {"C:\\Mine\\b.qrn", kProfile + "1"},
              {"C:\\Mine\\a & b.qrn", kProfile + "0"},
              {"C:\\Mine\\old.qrn", "[Dialog]\r\nPlayerName=Old\r\n"},
              {"C:\\Mine\\new.qrn", ""},
              {"C:\\Mine\\notes.txt", "nothing of interest"},
              {"C:\\None\\missing.qrn", ""},
              {"C:\\SubSpace\\subspace.exe", "game"},
              {"C:\\SubSpace\\favorite.lst", "Ember Reach,zone1.example,5400\r\n*Duels.\r\n"},
              {"C:\\SubSpace\\ignore.txt", "Mole\r\nOrla\r\n"},
              {"C:\\SubSpace\\ping.wav", "wave"},
              {"C:\\SubSpace\\chat.ssm", "one\r\ntwo\r\n"},
              {"C:\\SubSpace\\monday.log", kLog},
              {"C:\\SubSpace\\other.log", kLog + kLog},
              {"C:\\Program\\readme.txt", "Read me.\r\n"}};
const char* const kTexts[] = {"a",  "Ace",  " ",  "%", ".", "192.0.2.1", "7",
                              "-3", "\xE9", "\"", "=", ";", "[x]",       "GZZZ-"};
const int kKeys[] = {kKeyTab, kKeyEnter, kKeyEscape, kKeyDelete, kKeyF1, kKeyF3, kKeyF5, ' ', '%',
                     'A',     'C',       'D',        'F',        'N',    'O',    'S',    '1', '3'};
constexpr char kAccessKeys[] = "abcdefghilmnoprstvw";
constexpr unsigned kTrayMessages[] = {kMouseLeftDoubleClick, kMouseRightDown, 512};
constexpr int kPauses[] = {1, 50, 200, 1000, 4000};
constexpr Answer kOkOrNot[] = {Answer::Ok, Answer::Ok, Answer::Cancel};
constexpr Answer kYesOrNot[] = {Answer::Yes, Answer::No, Answer::Cancel};

std::string InARow(const std::vector<std::string>& paths) {
    std::string row;
    for (const std::string& path : paths) row += " " + path;
    return row;
}

}  // namespace

void Player::MakeWorld() {
    auto& world = TheWorld();
    headless::MakeFolder("C:\\Mine");
    for (const auto& [path, bytes] : kFiles)
        if (!bytes.empty() && !random_.OneIn(20)) PutFile(path, bytes);
    for (const char* key : {"Dialog", "Messages", "Options", "Advanced"})
        if (!random_.OneIn(10)) MakeKey(std::string("Software\\Virgin\\SubSpace\\") + key);
    const auto setting = [](const std::string& name, const std::string& text) {
        PutValue("Software\\QUIRN\\" + name.substr(0, name.find('/')), name.substr(name.find('/') + 1), 1, text + '\0');
    };
    if (!random_.OneIn(10)) setting("File Locations/SubSpace", "C:\\SubSpace");
    setting("File Locations/QRN Files", "C:\\Mine");
    for (int i = 1; i <= 3; ++i) {
        setting("Favourites/Fav" + std::to_string(i) + "Name", "Ace - Ember Reach");
        setting("Favourites/Fav" + std::to_string(i) + "Path", random_.From(kFiles).path);
        setting("Recent File List/MRU" + std::to_string(i), random_.From(kFiles).path);
    }
    const char* const starts[] = {"", "", "", "", "/Q", "/LR:a.qrn", "/LR:b.qrn", "/what"};
    world.commandLineTail = random_.From(starts);
    world.programsFailToStart = random_.OneIn(10);
}

int Player::DoSomething() {
    const std::vector<Form*> forms = UsableForms();
    const size_t kind = random_.Below(100);
    if (!dialogs_.empty() && kind < 60) AnswerDialog();
    else if (!forms.empty() && kind < 80) UseForm(*random_.From(forms));
    else if (kind < 86) UseTray();
    else if (kind < 89) StartSecondCopy();
    else if (kind < 90) EndSession();
    else if (kind < 96) ChangeWorld();
    else return random_.From(kPauses);
    return 0;
}

void Player::AnswerDialog() {
    OpenDialog& open = dialogs_.back();
    headless::Dialog& dialog = *open.dialog;
    const unsigned buttons = dialog.style % kCritical;
    open.answered = true;
    dialog.answer = buttons == kPlain ? Answer::Ok : random_.From(buttons == kOkCancel ? kOkOrNot : kYesOrNot);
    if (!random_.OneIn(5)) {
        dialog.font = Font{.face = "Arial", .points = 12};
        dialog.color = Rgb(1, 2, 3);
        dialog.paths = {kFiles[random_.Below(random_.OneIn(3) ? std::size(kFiles) : 4)].path};  // or a profile
        if ((dialog.style & kFileMustExist) != 0 && headless::FindFile(dialog.paths[0]) == nullptr)
            dialog.paths.clear();
        if ((dialog.style & kManyFiles) != 0) dialog.paths = SomeFiles();
    }
    Tell("answer " + std::to_string(static_cast<int>(dialog.answer)) + InARow(dialog.paths));
}

void Player::UseForm(Form& form) {
    const size_t kind = random_.Below(20);
    // It opens, plays, renames and deletes any profile.
    if (form.Caption().starts_with("Profile Library"))
        for (const auto what : {Allowed::Load, Allowed::Transfer, Allowed::Library}) Allow(what);
    if (kind < 2) PressKey(form);
    else if (kind < 3 || form.IsMinimized()) UseWindow(form);
    else if (kind < 4 && form.onDropFiles) Drop(form);
    else if (kind < 8 && form.MenuBar() != nullptr) ChooseFromMenu(form, *form.MenuBar());
    else {
        std::vector<Control*> controls;
        native::ForEachControl(form, [&](Control& control) {
            const TabPage* page = PageOf(control.Holder());
            if (control.Visible() && control.Enabled() && (page == nullptr || page->IsInFront()))
                controls.push_back(&control);
        });
        if (!controls.empty()) UseControl(*random_.From(controls));
    }
}

std::vector<std::string> Player::SomeFiles() {
    std::vector<std::string> paths;
    do paths.emplace_back(random_.From(kFiles).path);
    while (random_.OneIn(2));
    return paths;
}

void Player::Drop(Form& form) {
    const std::vector<std::string> paths = SomeFiles();
    const std::string& path = paths.front();
    Tell("drop" + InARow(paths));
    Allow(Allowed::Load);
    const std::string before = program_.CurrentFile;
    const auto isProfile = [&] { return FileBytes(path).value_or("").find("[Dialog]") != std::string::npos; };
    const bool wasProfile = isProfile();  // others may write or remove it while a box waits
    form.onDropFiles(paths);
    if (program_.CurrentFile == path && before != path && !wasProfile && !isProfile() && !MayChange(path))
        Fail("a Save would now destroy " + path);
}

void Player::UseControl(Control& control) {
    Tell("use \"" + control.Text().substr(0, 60) + "\" of " + control.Holder().Owner().Caption());
    if (auto* strip = dynamic_cast<TabStrip*>(&control)) {
        TurnTo(*strip, static_cast<int>(random_.Below(strip->Pages().size())));
        return;
    }
    Allow(Allowed::Edit);
    AllowClickOn(&control);
    if (auto* lines = dynamic_cast<VirtualList*>(&control)) UseList(*lines);
    else if (auto* table = dynamic_cast<Table*>(&control)) UseTable(*table);
    else if (auto* arrows = dynamic_cast<UpDown*>(&control)) Spin(*arrows, random_.OneIn(2) ? 1 : -1);
    else if (auto* text = dynamic_cast<TextBox*>(&control)) {
        text->SetFocus();
        if (text->Style() != TextStyle::Line) return;
        if (random_.OneIn(4)) text->UserEdits(random_.OneIn(4) ? std::string(300, 'x') : "");
        else Type(*text, random_.From(kTexts));
    } else if (auto* masked = dynamic_cast<MaskedBox*>(&control)) {
        masked->SetFocus();
        const size_t caret = random_.Below(masked->Text().size() + 1);
        if (random_.OneIn(4)) Paste(*masked, random_.From(kTexts), caret);
        else if (random_.OneIn(4)) masked->UserClears(0, caret);
        else Type(*masked, random_.OneIn(3) ? "\x08" : random_.From(kTexts), caret);
    } else if (auto* combo = dynamic_cast<ComboBox*>(&control); combo != nullptr && !combo->Items().empty()) {
        combo->SetFocus();
        combo->UserHighlights(static_cast<int>(random_.Below(combo->Items().size())));
        if (random_.OneIn(2)) Choose(*combo, static_cast<int>(random_.Below(combo->Items().size())));
        else combo->UserHighlights(combo->ListIndex());
    } else if (auto* list = dynamic_cast<ListBox*>(&control); list != nullptr && !list->Items().empty()) {
        list->SetFocus();
        Choose(*list, {static_cast<int>(random_.Below(list->Items().size()))});
        list->UserReleasesMouse();
    } else {
        Click(control);
    }
}

void Player::UseList(VirtualList& list) {
    list.SetFocus();
    if (random_.OneIn(3)) {
        list.UserPressesRightButton();
        if (!TheWorld().poppedUpMenus.empty())
            ChooseFromMenu(list.Holder().Owner(), *TheWorld().poppedUpMenus.back().menu);
    } else if (list.Count() > 0) {
        const size_t item = random_.Below(list.Count());
        if (random_.OneIn(4)) DoubleClickItem(list, item);
        else ClickItem(list, item, random_.OneIn(3), random_.OneIn(3));
    }
}

void Player::UseTable(Table& table) {
    table.SetFocus();
    if (table.RowCount() == 0) return;
    const size_t row = random_.Below(table.RowCount());
    if (table.isTicked && random_.OneIn(2)) ClickTick(table, row);
    else ClickRow(table, row, random_.OneIn(3), random_.OneIn(3));
}

void Player::UseWindow(Form& form) {
    Tell("window " + form.Caption());
    if (form.IsMinimized()) {
        form.WindowMinimized(false);
        form.WindowResized();
    } else if (random_.OneIn(2)) {
        form.UserCloses(UnloadMode::CloseBox);
    } else if (form.Border() == FormBorder::Sizable || form.Border() == FormBorder::Fixed) {
        form.WindowMinimized(true);
    } else if (form.Border() == FormBorder::SizableDialog) {
        Bounds place = form.Place();
        place.width = form.MinimumWidth() + static_cast<int>(random_.Below(9000));
        form.WindowMoved(place, random_.OneIn(3));
        form.WindowResized();
    }
}

void Player::PressKey(Form& form) {
    const int key = random_.From(kKeys);
    const bool control = random_.OneIn(3);
    Tell("key " + std::to_string(key) + (control ? " with Ctrl in " : " in ") + form.Caption());
    if (&form == MainWindow() && control && key == 'S') Allow(Allowed::Save, program_.CurrentFile);
    if (&form == MainWindow() && control && (key == 'N' || key == 'O')) Allow(Allowed::Load);
    if (&form == MainWindow() && control && (key == 'T' || key == 'Z' || key == '1' || key == '3'))
        Allow(Allowed::Transfer);
    if (key == kKeyEnter || key == ' ') AllowClickOn(form.ActiveControl());
    if (key != kKeyTab && (!control || key == kKeyEnter || key == ' ')) Allow(Allowed::Edit);
    if (!control && random_.OneIn(5)) PressAccessKey(form);
    else if (key == kKeyTab && !control) form.FocusNext(form.ActiveControl());
    else Press(form, key, control, random_.OneIn(8));
}

void Player::PressAccessKey(Form& form) {
    const char key = kAccessKeys[random_.Below(sizeof kAccessKeys - 1)];
    native::ForEachControl(form, [&](Control& control) {
        if (FoldCase(control.Text()).find(FoldCase(std::string{'&', key})) != std::string::npos) AllowClickOn(&control);
    });
    form.UserPressesAccessKey(key);
}

void Player::ChooseFromMenu(Form& form, Menu& menu) {
    TheWorld().poppedUpMenus.clear();
    const Menu::Item& item = random_.From(menu.Items());
    const int command = item.row.command;
    menu.UserPointsAt(command);
    if (random_.OneIn(8) || !item.IsEnabled()) return;
    Tell("menu " + std::to_string(command) + " \"" + item.caption + "\" of " + form.Caption());
    if (&form == MainWindow()) {
        if (command == mnuFile_Save) Allow(Allowed::Save, program_.CurrentFile);
        if (command == mnuFile_New || command == mnuFile_Open || (command >= mnuFileMRU && command < mnuFileBarMRU))
            Allow(Allowed::Load);
        if (command == mnuFile_Import) Allow(Allowed::Edit);
        if ((command >= mnuPUTrayIcon_Fav && command < mnuPUTrayIconBarExit) || command == mnuProfiles_Transfer ||
            command == mnuProfiles_Undo || command == mnuProfiles_History ||
            (command >= mnuProfilesFav && command < mnuPUTrayIcon_Open))
            Allow(Allowed::Transfer);
        if (command == mnuProfiles_Versions) {
            Allow(Allowed::Save, program_.CurrentFile);
            Allow(Allowed::Load);
        }
    }
    menu.UserChooses(command);
}

void Player::UseTray() {
    if (TheWorld().trayIcons.empty()) return;
    TrayIcon& icon = *TheWorld().trayIcons.front();
    const unsigned message = random_.From(kTrayMessages);
    Tell("tray " + std::to_string(message));
    icon.UserPoints(message);
    if (!TheWorld().poppedUpMenus.empty()) ChooseFromMenu(icon.Owner(), *TheWorld().poppedUpMenus.back().menu);
}

// Windows asks one top-level window after the other, until one says no.
void Player::EndSession() {
    Tell("the session ends");
    std::vector<Form*> forms = headless::LoadedForms();
    if (random_.OneIn(2)) std::reverse(forms.begin(), forms.end());
    for (Form* form : forms) {
        const auto& loaded = headless::LoadedForms();
        const auto isLoaded = [&] { return std::find(loaded.begin(), loaded.end(), form) != loaded.end(); };
        if (isLoaded() && form->IsBlocked()) return;
        if (isLoaded()) form->UserCloses(UnloadMode::SystemShutdown);
        if (isLoaded()) return;
    }
}

// It shows the main window, whatever that does, and goes.
void Player::StartSecondCopy() {
    Tell("second copy");
    frmMain* const main = MainWindow();
    if (main == nullptr) return;
    native::ShowForm(*main, true);
    main->WindowMinimized(false);
}

// Others write, lock and remove files, fill the disk, and end games.
void Player::ChangeWorld() {
    auto& world = TheWorld();
    const std::string path = random_.From(kFiles).path;
    headless::File* const file = headless::FindFile(path);
    const size_t kind = random_.Below(10);
    Tell("world " + std::to_string(kind) + " " + path);
    switch (kind) {
        case 0: PutFile(path, random_.OneIn(2) ? kLog : kProfile + "0"); break;
        case 1: world.files.erase(AbsolutePath(path)); break;
        case 2:
            if (file != nullptr) file->readOnly = !file->readOnly;
            break;
        case 3:
            if (file != nullptr) file->holders = 1 - file->holders;
            break;
        case 4: world.diskRoom = world.diskRoom ? std::nullopt : std::optional(random_.Below(8000)); break;
        case 5:
            if (!world.startedPrograms.empty()) world.startedPrograms.back().running = false;
            break;
        case 6: world.programsFailToStart = !world.programsFailToStart; break;
        case 7: world.clipboardIsHeld = !world.clipboardIsHeld; break;
        case 8:
            world.shellFailure = world.shellFailure ? std::nullopt : std::optional(ErrorNumber::PermissionDenied);
            break;
        default:
            if (world.windows.empty()) world.windows = {{"SubSpaceClass", "Game"}};
            else world.windows.clear();
    }
    stored_ = Stored();
}

void Player::AllowClickOn(const Control* control) {
    if (control == nullptr) return;
    for (const char* button : {"Transfer Profile And Run Subspace", "&Put Back", "Write Into &Game"})
        if (control->Text() == button) Allow(Allowed::Transfer);
    if (control->Text() == "Take Into &Profile") Allow(Allowed::Load);
}

}  // namespace quirn::test
