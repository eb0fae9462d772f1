#include "mainwin/profilescommands.h"

#include "mainwin/frmmain.h"
#include "mainwin/menurows.h"
#include "mainwin/transferwords.h"
#include "platform/files.h"
#include "platform/headless/dialogs.h"
#include "platform/headless/events.h"
#include "platform/headless/headless.h"
#include "profile/profilefile.h"
#include "profile/versions.h"
#include "tests/auxiliary/controlsof.h"
#include "tests/testing/profiles.h"
#include "tests/testing/userinput.h"

namespace quirn {
namespace {

using namespace test;
using namespace std::string_literals;
using headless::TheWorld;

TEST(NoticeTest, TellsTheWorstFirst) {
    NoticeFacts facts;
    EXPECT_EQ(WorstOf(facts).text, "");
    facts.changes = 1;
    facts.since = "2004-03-13 09.05.59";
    EXPECT_EQ(WorstOf(facts).text, "The game changed 1 setting since 2004-03-13 09:05.");
    EXPECT_EQ(WorstOf(facts).action, Notice::Action::Keep);
    facts.oddWave = OddWave{1, "C:\\me\\diary.txt", false};
    EXPECT_EQ(WorstOf(facts).text, "Shift-F12: diary.txt is no wave file. The game sends it to others.");
    facts.oddWave.reset();
    facts.gameRuns = true;
    EXPECT_EQ(WorstOf(facts).link, "");
    facts.unfinished = true;
    EXPECT_EQ(WorstOf(facts).text, "The last transfer was not finished.");
    EXPECT_EQ(SaveNotice("C:\\p\\DUEL.QRN"), "Save writes DUEL.QRN");
    EXPECT_EQ(WordsFor(38, true, 1), "38 settings, the ignore list and 1 wave message");
    EXPECT_EQ(WordsFor(1, false, 2), "1 setting and 2 wave messages");
}

class ProfilesCommandsTest : public WorldTest {
protected:
    ProfilesCommandsTest() {
        program_.gameFolder = Scratch();
        program_.dataFolder = Scratch() + "\\data";
        PutFile(Scratch() + "\\favorite.lst", "Alpha Reach,a.example,5000\r\n-First\r\n");
        MakeKey("Software\\Virgin\\SubSpace\\Messages");
        PutValue("Software\\Virgin\\SubSpace\\Messages", "ShiftF1", 1, "found\0"s);
        InitCatalogue(program_.profile);
        main_.Load();
    }

    std::string StoredMacro() { return GetValue("Software\\Virgin\\SubSpace\\Messages", "ShiftF1")->bytes; }
    void Choose(int command) { main_.MenuBar()->UserChooses(command); }
    bool Offers(int command) { return main_.MenuBar()->Find(command)->IsEnabled(); }

    Program program_;
    frmMain main_{program_};
};

TEST_F(ProfilesCommandsTest, WhatWasTransferredByMistakeIsUndone) {
    EXPECT_FALSE(Offers(mnuProfiles_Undo));
    program_.profile.Messages.Value(1) = "mine";
    main_.ShowProfile();
    Choose(mnuProfiles_Transfer);
    EXPECT_EQ(StoredMacro(), "mine\0"s);
    ASSERT_TRUE(Offers(mnuProfiles_Undo));
    for (const char* button : {"Cancel", "&Put Back"}) {
        EXPECT_EQ(StoredMacro(), "mine\0"s);
        headless::PostAfter(10, [button] { Click(ButtonOf(*headless::LoadedForms().back(), button)); });
        Choose(mnuProfiles_Undo);
    }
    EXPECT_EQ(StoredMacro(), "found\0"s);
}

// What the game changed itself goes back by its own tick only, and names one by one.
TEST_F(ProfilesCommandsTest, ATransferIsShownAndItsTickedRowsGoBack) {
    PutFile(Scratch() + "\\ignore.txt", "# friends\nMole\nOrla\n");
    PutValue("Software\\Virgin\\SubSpace\\Messages", "ShiftF2", 1, "\"a\\b\xE9\0"s);
    program_.profile.Messages.Value(1) = "mine";
    program_.profile.IgnoreList = {"Trill"};
    main_.ShowProfile();
    main_.Show();
    Choose(mnuProfiles_Transfer);
    PutValue("Software\\Virgin\\SubSpace\\Messages", "ShiftF2", 1, "by the game\0"s);
    headless::PostAfter(10, [] { Click(ButtonOf(*headless::LoadedForms().back(), "&Show...")); });
    Choose(mnuProfiles_Undo);
    Form& compare = *headless::LoadedForms().back();
    EXPECT_EQ(compare.Caption(), "Compare - Before '<current SS settings>' (21:26)");
    auto& table = ControlOf<Table>(compare, "");
    EXPECT_EQ(LabelOf(compare, "ticked").Text(), "4 ticked");
    EXPECT_FALSE(table.isTicked(table.FindRow("Shift F2", 0).value()));
    ClickTick(table, table.FindRow("Ignore list: Mole", 0).value());
    Click(ButtonOf(compare, "&Put Back"));
    EXPECT_EQ(StoredMacro(), "found\0"s);
    EXPECT_EQ(FileBytes(Scratch() + "\\ignore.txt"), "Orla\r\n");
    for (const char* row : {"Shift F2", "Ignore list: Mole"}) ClickTick(table, table.FindRow(row, 0).value());
    Click(ButtonOf(compare, "&Put Back"));
    EXPECT_EQ(GetValue("Software\\Virgin\\SubSpace\\Messages", "ShiftF2")->bytes, "\"a\\b\xE9\0"s);
    EXPECT_EQ(FileBytes(Scratch() + "\\ignore.txt"), "# friends\nMole\nOrla\n");
}

TEST_F(ProfilesCommandsTest, ACopyForAFriendHoldsNoSecretsAndTouchesNothingElse) {
    const std::string own = Scratch() + "\\DUEL.QRN";
    const std::string copy = Scratch() + "\\DUEL-copy.qrn";
    const std::string old = "[IgnoreList]\r\nIgnore2=Orla\r\n[Dialog]\r\nPlayerPassword=older\r\n";
    PutFile(own, "mine");
    PutFile(copy, old);
    program_.CurrentFile = own;
    program_.qrnFolder = Scratch();
    Profile& profile = program_.profile;
    profile.Dialog.Value(kPlayerPassword) = "secret";
    profile.Dialog.Value(kProxyIP) = "192.0.2.1";
    profile.Messages.Value(1) = "hello";
    profile.IgnoreList = {"Mole"};
    profile.WaveFiles = {"C:\\me\\a.wav", "C:\\me\\b.wav"};
    main_.ShowProfile();
    headless::PostAfter(10, [] {
        Form& dialog = *headless::LoadedForms().back();
        Click(ControlOf<CheckBox>(dialog, "&Wave messages"));
        Click(ButtonOf(dialog, "&Save As..."));
    });
    headless::ExpectSaveFile("Copy Without Password", own);
    ExpectMessage("The copy needs a name of its own: " + own + " is the profile itself.", kExclamation);
    headless::ExpectSaveFile("Copy Without Password", copy);
    Choose(mnuProfiles_Copy);

    const std::string text = FileBytes(copy).value();
    for (const char* gone : {"secret", "older", "192.0.2.1", "Mole", "Orla"})
        EXPECT_EQ(text.find(gone), std::string::npos) << gone;
    for (const char* there : {"ShiftF1=hello\r\n", "WaveFileF11=C:\\me\\a.wav\r\n"})
        EXPECT_NE(text.find(there), std::string::npos) << there;
    EXPECT_EQ(FileBytes(own), "mine");
    EXPECT_FALSE(FileBytes(Scratch() + "\\DUEL-copy.ssm"));
    EXPECT_EQ(program_.CurrentFile + program_.recentFiles[0], own);
    EXPECT_EQ(ReadWholeFile(ProfileVersions(program_.dataFolder, copy).List().at(0).file).Value(), old);
}

// The favourite comes from its file, so what is not saved stays in the window, and stays marked.
TEST_F(ProfilesCommandsTest, AFavouritePlayedByItsKeyIsTickedAndTakesNoEdit) {
    const std::string file = Scratch() + "\\ace.qrn";
    Profile favourite;
    InitCatalogue(favourite);
    favourite.Messages.Value(1) = "of the favourite";
    EXPECT_FALSE(SaveProfileCopy(favourite, file));
    PutFile(Scratch() + "\\subspace.exe", "game");
    program_.qrnFolder = Scratch();
    main_.Show();
    Choose(mnuProfiles_Library);
    Press(*headless::LoadedForms().back(), '1', true);
    program_.dirty = true;
    ExpectMessage("Save changes to <current SS settings>", kYesNoCancel + kQuestion, Answer::No, "Save Changes?");
    Press(main_, '1', true);
    EXPECT_EQ(StoredMacro(), "of the favourite\0"s);
    EXPECT_TRUE(program_.dirty);
    const auto ticked = [] {
        TheWorld().trayIcons.front()->UserPoints(kMouseRightDown);
        return TheWorld().poppedUpMenus.back().menu->Find(mnuPUTrayIcon_Fav)->checked;
    };
    EXPECT_TRUE(ticked());
    PutValue("Software\\Virgin\\SubSpace\\Messages", "ShiftF1", 1, "by the game\0"s);
    EXPECT_FALSE(ticked());
}

TEST_F(ProfilesCommandsTest, AnyKeptStateComesBackFromTheHistory) {
    for (const char* macro : {"one", "two"}) {
        program_.profile.Messages.Value(1) = macro;
        main_.ShowProfile();
        Choose(mnuProfiles_Transfer);
    }
    ExpectMessage(
        "Put back all that the game had before '<current SS settings>' (21:26) was transferred? What it has "
        "now is kept in the history.",
        kOkCancel + kQuestion);
    ExpectMessage("Forget all kept transfers? There is no way back to what the game had before them then.",
                  kOkCancel + kExclamation);
    headless::PostAfter(10, [this] {
        Form& history = *headless::LoadedForms().back();
        auto& table = ControlOf<Table>(history, "");
        EXPECT_EQ(table.RowCount(), 2u);
        EXPECT_EQ(table.Current(), 0u) << "the newest";
        EXPECT_EQ(table.cellText(0, 3), "1 setting");
        ClickRow(table, 1);
        Click(ButtonOf(history, "&Put Back"));
        EXPECT_EQ(StoredMacro(), "found\0"s);
        EXPECT_EQ(table.cellText(0, 2), "Put back");
        Click(ButtonOf(history, "&Forget All"));
        EXPECT_EQ(table.RowCount(), 0u);
        EXPECT_FALSE(ButtonOf(history, "&Put Back").Enabled());
        Click(ButtonOf(history, "Close"));
    });
    Choose(mnuProfiles_History);
}

TEST_F(ProfilesCommandsTest, WhatTheGameChangesIsNoticedAndKept) {
    Choose(mnuProfiles_Transfer);
    PutValue("Software\\Virgin\\SubSpace\\Messages", "ShiftF1", 1, "by the game\0"s);
    main_.Show();
    main_.BringToFront();
    WaitForEvents(50);
    LinkButton& link = ControlOf<LinkButton>(main_, "Keep them...");
    ASSERT_TRUE(link.Visible());
    program_.dirty = false;
    Click(link);
    Form& compare = *headless::LoadedForms().back();
    EXPECT_EQ(LabelOf(compare, "ticked").Text(), "1 ticked");
    EXPECT_FALSE(program_.dirty);
    Click(ButtonOf(compare, "Take Into &Profile"));
    EXPECT_TRUE(program_.dirty);
    EXPECT_EQ(program_.profile.Messages.Value(1), "by the game");
    WaitForEvents(50);
    EXPECT_FALSE(link.Visible());
    EXPECT_FALSE(ControlOf<Table>(compare, "").FindRow("Shift F1", 0));
}

TEST_F(ProfilesCommandsTest, OnlyTickedRowsGoIntoTheGame) {
    PutValue("Software\\Virgin\\SubSpace\\Messages", "ShiftF2", 1, "kept\0"s);
    program_.profile.Messages.Value(1) = "mine";
    main_.ShowProfile();
    main_.Show();
    Choose(mnuProfiles_Compare);
    Form& compare = *headless::LoadedForms().back();
    auto& table = ControlOf<Table>(compare, "");
    const size_t row = table.FindRow("Shift F1", 0).value();
    EXPECT_EQ(table.cellText(row, 3), "* found");
    ClickTick(table, row);
    Click(ButtonOf(compare, "Write Into &Game"));
    EXPECT_EQ(StoredMacro(), "mine\0"s);
    EXPECT_EQ(GetValue("Software\\Virgin\\SubSpace\\Messages", "ShiftF2")->bytes, "kept\0"s);
    EXPECT_FALSE(table.FindRow("Shift F1", 0));
    EXPECT_TRUE(table.FindRow("Shift F2", 0));
    EXPECT_TRUE(Offers(mnuProfiles_Undo));
    Choose(mnuFile_Close);
    WaitForEvents(50);
    EXPECT_FALSE(compare.IsLoaded());
}

}  // namespace
}  // namespace quirn
