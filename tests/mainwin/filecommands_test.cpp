#include "mainwin/filecommands.h"

#include "mainwin/menurows.h"
#include "mainwin/notice.h"
#include "platform/clock.h"
#include "platform/headless/dialogs.h"
#include "profile/profilefile.h"
#include "tests/testing/profiles.h"

namespace quirn {
namespace {

using namespace test;
using headless::ExpectOpenFile;
using headless::ExpectSaveFile;

constexpr char kFilter[] = "All Files (*.*)|*.*|QRN Files (*.qrn)|*.qrn|Text Files (*.txt)|*.txt";

// The main window is two texts and a pilot name and a macro that the player may be typing in.
class FileCommandsTest : public WorldTest {
protected:
    FileCommandsTest() {
        program_.profile = SampleProfile();
        program_.gameFolder = Scratch() + "\\game";
        program_.qrnFolder = Scratch();
        MakeFolder(program_.gameFolder);
        PutFile(old_, "[QUIRN]\r\nVersion=1.61\r\n[Dialog]\r\nPlayerName=Old\r\n");
        ShowProfile();
    }

    void ShowProfile() {
        pilot_ = program_.profile.Dialog.Value(kPlayerName);
        macro_ = program_.profile.Messages.Value(16);
    }

    FileCommandsView View() {
        return {.ShowProfile = [this] { ShowProfile(); },
                .CollectProfile =
                    [this] {
                        program_.profile.Dialog.Value(kPlayerName) = pilot_;
                        program_.profile.Messages.Value(16) = macro_;
                    },
                .ShowMacros = [this] { macro_ = program_.profile.Messages.Value(16); },
                .CollectMacros = [this] { program_.profile.Messages.Value(16) = macro_; },
                .ShowMacroPage = [this] { macroPageInFront_ = true; },
                .SetTitle = [this](const std::string& title) { title_ = title; },
                .SetStatus = [this](const std::string& status) { status_ = status; },
                .RefreshRecentMenu = [this] { recentInMenu_ = program_.recentFiles[0]; }};
    }

    void ExpectQuestion(Answer answer) {
        ExpectMessage("Save changes to " + program_.CurrentFile, 35, answer, "Save Changes?");
    }

    std::string PilotIn(const std::string& file) {
        Profile profile = EmptyProfile();
        return LoadProfile(profile, file) == LoadResult::Loaded ? profile.Dialog.Value(kPlayerName) : "no file";
    }

    const std::string old_ = Scratch() + "\\old.qrn";
    const std::string new_ = Scratch() + "\\my.best.qrn";
    Program program_;
    std::string pilot_, macro_, title_ = "as before", status_, recentInMenu_;
    bool macroPageInFront_ = false;
    FileCommands commands_{program_, "QUIRN v1.61", View()};
};

TEST_F(FileCommandsTest, NewDoesNothingToACleanProfile) {
    commands_.mnuFile_New_Click();
    EXPECT_EQ(program_.CurrentFile, "<current SS settings>");
    EXPECT_EQ(title_, "as before");
    EXPECT_EQ(pilot_, "D1");

    program_.dirty = true;
    ExpectQuestion(Answer::Cancel);
    commands_.mnuFile_New_Click();
    EXPECT_TRUE(program_.dirty);
    EXPECT_EQ(pilot_, "D1");

    ExpectQuestion(Answer::No);
    commands_.mnuFile_New_Click();
    EXPECT_EQ(program_.CurrentFile, "<untitled.qrn>");
    EXPECT_EQ(title_, "QUIRN v1.61 - <untitled.qrn>");
    EXPECT_EQ(pilot_, "");
    EXPECT_FALSE(program_.dirty);
    EXPECT_EQ(program_.profile.Options.Value(1), SampleProfile().Options.Value(1));
}

TEST_F(FileCommandsTest, OpenAsksFirstAndKeepsANameThatFailed) {
    program_.dirty = true;
    ExpectQuestion(Answer::Cancel);
    commands_.mnuFile_Open_Click();

    program_.dirty = false;
    ExpectOpenFile("Open", std::nullopt);
    commands_.mnuFile_Open_Click();
    EXPECT_EQ(headless::LastFileDialog().filter, kFilter);
    EXPECT_EQ(headless::LastFileDialog().filterIndex, 2);
    EXPECT_EQ(headless::LastFileDialog().folder, Scratch());
    EXPECT_EQ(headless::LastFileDialog().fileName, "");
    EXPECT_EQ(headless::LastFileDialog().flags, 0x1004u);
    EXPECT_EQ(program_.CurrentFile, kCurrentSettings);
    EXPECT_EQ(status_, "");

    ExpectOpenFile("Open", old_);
    commands_.mnuFile_Open_Click();
    EXPECT_EQ(program_.CurrentFile, old_);
    EXPECT_EQ(title_, "QUIRN v1.61 - old.qrn");
    EXPECT_EQ(status_, "File has been loaded");
    EXPECT_EQ(pilot_, "Old");
    EXPECT_EQ(recentInMenu_, old_);

    ExpectOpenFile("Open", new_);
    ExpectMessage("ERROR - Could not find profile named '" + new_ + "'", kCritical);
    commands_.mnuFile_Open_Click();
    EXPECT_EQ(program_.CurrentFile, new_);
    EXPECT_EQ(title_, "QUIRN v1.61 - old.qrn");
    EXPECT_EQ(status_, "ERROR loading file");
    EXPECT_EQ(program_.recentFiles[0], old_);

    program_.dirty = true;
    ExpectQuestion(Answer::No);
    commands_.OpenDropped(old_);
    EXPECT_EQ(program_.CurrentFile, old_);
    EXPECT_FALSE(program_.dirty);
    ExpectMessage("ERROR - Could not find profile named '" + new_ + "'", kCritical);
    commands_.OpenDropped(new_);
    EXPECT_EQ(program_.CurrentFile, old_);  // and what was dropped by mistake survives the next Save
}

TEST_F(FileCommandsTest, SaveAsTakesNameTitleAndPlaceInTheList) {
    ExpectSaveFile("Save As", std::nullopt);
    commands_.mnuFile_Save_Click();  // untitled
    EXPECT_EQ(headless::LastFileDialog().filter, kFilter);
    EXPECT_EQ(headless::LastFileDialog().filterIndex, 2);
    EXPECT_EQ(headless::LastFileDialog().folder, Scratch());
    EXPECT_EQ(headless::LastFileDialog().fileName, "untitled.qrn");
    EXPECT_EQ(headless::LastFileDialog().flags, 6u);
    EXPECT_EQ(title_, "as before");

    program_.dirty = true;
    pilot_ = "Typed";
    ExpectSaveFile("Save As", new_);
    EXPECT_TRUE(commands_.mnuFile_SaveAs_Click());
    EXPECT_EQ(program_.CurrentFile, new_);
    EXPECT_EQ(title_, "QUIRN v1.61 - my.best.qrn");
    EXPECT_EQ(status_, "File has been saved");
    EXPECT_EQ(recentInMenu_, new_);
    EXPECT_FALSE(program_.dirty);
    EXPECT_EQ(PilotIn(new_), "Typed");

    // The question saves by the dialog, whatever the profile's name.
    program_.dirty = true;
    ExpectQuestion(Answer::Yes);
    ExpectSaveFile("Save As", std::nullopt);
    EXPECT_FALSE(commands_.AskSaveChanges());
    EXPECT_EQ(headless::LastFileDialog().fileName, "my.best.qrn");
    EXPECT_TRUE(program_.dirty);
    ExpectQuestion(Answer::Yes);
    ExpectSaveFile("Save As", old_);
    EXPECT_TRUE(commands_.AskSaveChanges());
    EXPECT_FALSE(program_.dirty);
    EXPECT_EQ(PilotIn(old_), "Typed");
}

TEST_F(FileCommandsTest, SaveWritesTheCurrentFileAndNothingElse) {
    program_.CurrentFile = old_;
    program_.dirty = true;
    pilot_ = "Typed";
    commands_.mnuFile_Save_Click();
    EXPECT_EQ(PilotIn(old_), "Typed");
    EXPECT_EQ(status_, "File has been saved");
    EXPECT_FALSE(program_.dirty);
    EXPECT_EQ(title_, "as before");
    EXPECT_EQ(program_.recentFiles[0], "");
}

TEST_F(FileCommandsTest, ASaveThatFailsIsShownAndLeavesTheChangesUnsaved) {
    program_.CurrentFile = old_;
    program_.dirty = true;
    SetReadOnly(old_);
    ExpectError(75, "Path/File access error");
    commands_.mnuFile_Save_Click();
    ExpectSaveFile("Save As", old_);
    ExpectError(75, "Path/File access error");
    EXPECT_FALSE(commands_.mnuFile_SaveAs_Click());
    EXPECT_TRUE(program_.dirty);
    EXPECT_EQ(status_, "");
    EXPECT_EQ(program_.recentFiles[0], "");
    ExpectQuestion(Answer::Yes);
    ExpectSaveFile("Save As", Scratch() + "\\no folder\\a.qrn");
    ExpectError(76, "Path not found");
    EXPECT_FALSE(commands_.AskSaveChanges());
}

TEST_F(FileCommandsTest, ARecentFileLoadsWithoutAskingAndKeepsTheCurrentName) {
    program_.recentFiles = {new_, old_, "", "", ""};
    program_.CurrentFile = new_;
    program_.dirty = true;
    commands_.mnuFileMRU_Click(1);
    EXPECT_EQ(pilot_, "Old");
    EXPECT_EQ(title_, "QUIRN v1.61 - old.qrn");
    EXPECT_EQ(status_, "File has been loaded");
    EXPECT_EQ(recentInMenu_, old_);
    EXPECT_EQ(program_.CurrentFile, new_);
    EXPECT_TRUE(program_.dirty);

    ExpectMessage("ERROR - Could not find profile named '" + new_ + "'", kCritical);
    commands_.mnuFileMRU_Click(1);
    EXPECT_EQ(status_, "ERROR loading file");
    EXPECT_EQ(program_.recentFiles[1], new_);
    EXPECT_EQ(title_, "QUIRN v1.61 - old.qrn");
}

TEST_F(FileCommandsTest, ImportKeepsWhatWasTypedInOtherMacros) {
    const std::string macros = Scratch() + "\\duel.ssm";
    PutFile(macros, "one\r\ntwo\r\n");
    pilot_ = macro_ = "typed";
    ExpectOpenFile("Import Subspace Macro File", Scratch() + "\\gone.ssm");
    ExpectError(53, "File not found");
    commands_.mnuFile_Import_Click();
    EXPECT_NE(program_.profile.Messages.Value(16), "typed");
    EXPECT_EQ(status_, "");
    ExpectOpenFile("Import Subspace Macro File", macros);
    commands_.mnuFile_Import_Click();
    EXPECT_EQ(headless::LastFileDialog().filter,
              "All Files (*.*)|*.*|Subspace Macro Files (*.ssm)|*.ssm|Text Files (*.txt)|*.txt");
    EXPECT_EQ(headless::LastFileDialog().filterIndex, 2);
    EXPECT_EQ(headless::LastFileDialog().folder, program_.gameFolder);
    EXPECT_EQ(headless::LastFileDialog().flags, 4u);
    EXPECT_EQ(program_.profile.Messages.Value(2), "two");
    EXPECT_EQ(macro_, "typed");
    EXPECT_NE(program_.profile.Dialog.Value(kPlayerName), "typed");  // no edits but macros
    EXPECT_TRUE(macroPageInFront_);
    EXPECT_TRUE(program_.dirty);
    EXPECT_EQ(status_, "Macro file has been imported");

    program_.dirty = false;
    status_.clear();
    ExpectOpenFile("Import Subspace Macro File", macros);
    commands_.mnuFile_Import_Click();  // the same again
    EXPECT_FALSE(program_.dirty);
    EXPECT_EQ(status_, "Macro file has been imported");

    status_.clear();
    ExpectOpenFile("Import Subspace Macro File", std::nullopt);
    commands_.mnuFile_Import_Click();
    EXPECT_EQ(status_, "");
}

TEST(RecentMenuTest, ShowsFilesOnceThereAreSome) {
    std::vector<MenuRow> rows;
    for (int command = mnuFileMRU; command <= mnuFile_Close; ++command) rows.push_back({command, 1, ""});
    Menu menu(rows);
    HideRecentMenu(menu);
    RefreshRecentMenu(menu, {"", "  ", "", "", ""});
    EXPECT_FALSE(menu.Find(mnuFileMRU)->visible);
    EXPECT_FALSE(menu.Find(mnuFileBarMRU)->visible);
    EXPECT_TRUE(menu.Find(mnuFile_Close)->visible);
    RefreshRecentMenu(menu, {"C:\\a.qrn", "", "", "", "D:\\b.qrn"});
    EXPECT_EQ(menu.Find(mnuFileMRU)->caption, "&1 C:\\a.qrn");
    EXPECT_EQ(menu.Find(mnuFileMRU + 4)->caption, "&5 D:\\b.qrn");
    EXPECT_TRUE(menu.Find(mnuFileMRU + 4)->visible);
    EXPECT_FALSE(menu.Find(mnuFileMRU + 1)->visible);
    EXPECT_TRUE(menu.Find(mnuFileBarMRU)->visible);
}

TEST_F(FileCommandsTest, WhatASaveReplacedIsPutBack) {
    program_.dataFolder = Scratch() + "\\data";
    program_.CurrentFile = old_;
    const std::string before = *FileBytes(old_);
    commands_.mnuFile_Save_Click();
    EXPECT_TRUE(program_.keptLastVersion);
    const ProfileVersions versions(program_.dataFolder, old_);
    ASSERT_EQ(versions.List().size(), 1u);
    const ProfileVersion version = versions.List().front();

    // An edit in the window is asked for as Open does.
    program_.dirty = true;
    ExpectQuestion(Answer::Cancel);
    EXPECT_FALSE(commands_.PutBackVersion(std::string(program_.CurrentFile), version));
    EXPECT_EQ(PilotIn(old_), "D1");
    program_.dirty = false;
    ExpectMessage("Make " + old_ + " what it was before it was replaced (" + TimeInWords(version.time, SortableTime()) +
                      ")? What it holds now becomes a version.",
                  kOkCancel + kQuestion);
    EXPECT_TRUE(commands_.PutBackVersion(std::string(program_.CurrentFile), version));
    EXPECT_EQ(FileBytes(old_), before);
    EXPECT_EQ(pilot_, "Old");
    EXPECT_EQ(title_, "QUIRN v1.61 - old.qrn");
    EXPECT_EQ(versions.List().size(), 2u);

    // Edits that are saved into another file first stay in that one; those that are not stay in the window on failure.
    const std::string question = "Make " + old_ + " what it was before it was replaced (" +
                                 TimeInWords(version.time, SortableTime()) + ")? What it holds now becomes a version.";
    pilot_ = "Edited";
    program_.dirty = true;
    ExpectQuestion(Answer::Yes);
    ExpectSaveFile("Save As", new_);
    ExpectMessage(question, kOkCancel + kQuestion);
    EXPECT_TRUE(commands_.PutBackVersion(std::string(program_.CurrentFile), version));
    EXPECT_EQ(PilotIn(new_), "Edited");
    EXPECT_EQ(program_.CurrentFile, old_);
    program_.dirty = true;
    ExpectQuestion(Answer::No);
    ExpectMessage(question, kOkCancel + kQuestion, Answer::Cancel);
    EXPECT_FALSE(commands_.PutBackVersion(std::string(program_.CurrentFile), version));
    EXPECT_TRUE(program_.dirty);
    program_.dirty = false;

    PutFile(Scratch() + "\\full", "");
    program_.dataFolder = Scratch() + "\\full";
    commands_.mnuFile_Save_Click();
    EXPECT_EQ(status_, "File has been saved");
    EXPECT_FALSE(program_.keptLastVersion);
}

}  // namespace
}  // namespace quirn
