#include "mainwin/profilelibrary.h"

#include "mainwin/frmmain.h"
#include "mainwin/menurows.h"
#include "platform/headless/events.h"
#include "platform/headless/headless.h"
#include "tests/auxiliary/controlsof.h"
#include "tests/testing/profiles.h"
#include "tests/testing/userinput.h"

namespace quirn {
namespace {

using namespace test;
using headless::TheWorld;

class ProfileLibraryTest : public WorldTest {
protected:
    ProfileLibraryTest() {
        program_.gameFolder = program_.qrnFolder = Scratch();
        program_.dataFolder = Scratch() + "\\data";
        PutFile(Scratch() + "\\favorite.lst", "Alpha Reach,a.example,5000\r\n-First\r\n");
        PutProfile("DUEL.QRN", "Vex Calder");
        PutProfile("nova", "Nova Kest");
        PutProfile("two words.qrn", "Orla");
        PutFile(Scratch() + "\\monday.log", "[Player] > hello\r\n");
        InitCatalogue(program_.profile);
        main_.Load();
        program_.favourites[1] = {"Gone", Scratch() + "\\elsewhere\\gone.qrn"};
        main_.Show();
        main_.MenuBar()->UserChooses(mnuProfiles_Library);
    }

    void PutProfile(const std::string& file, const std::string& pilot) {
        PutFile(Path(file), "[QUIRN]\r\nVersion=1.61\r\n[Dialog]\r\nPlayerName=" + pilot +
                                "\r\nServerArena=Tin Meridian\r\nPlayerShipType=3\r\n");
    }
    std::string Path(const std::string& file) { return Scratch() + "\\" + file; }
    Form& Library() {
        for (Form* form : headless::LoadedForms())
            if (form->Caption().starts_with("Profile Library")) return *form;
        throw std::runtime_error("no library");
    }
    Table& Rows() { return ControlOf<Table>(Library(), ""); }
    void GoTo(const std::string& name) { ClickRow(Rows(), Rows().FindRow(name, 0).value()); }
    void ChooseMore(const std::string& caption) {
        Click(ButtonOf(Library(), "&More"));
        Menu& menu = *TheWorld().poppedUpMenus.back().menu;
        for (const Menu::Item& item : menu.Items())
            if (item.caption == caption) return menu.UserChooses(item.row.command);
        throw std::runtime_error("no row " + caption);
    }
    std::string Names() {
        std::string names;
        for (size_t row = 0; row < Rows().RowCount(); ++row) names += Rows().cellText(row, 0) + ";";
        return names;
    }

    Program program_;
    frmMain main_{program_};
};

TEST_F(ProfileLibraryTest, ListsWhatIsAProfileWhateverItsName) {
    EXPECT_EQ(Names(), "DUEL;gone;nova (no .qrn);two words;");
    EXPECT_EQ(Rows().cellText(0, 2) + Rows().cellText(0, 3) + Rows().cellText(0, 4), "Vex CalderTin MeridianLeviathan");
    EXPECT_EQ(Rows().cellText(1, 6), "2");
    EXPECT_TRUE(Rows().cellStyle(1, 0).grey);
    ClickRow(Rows(), 1);
    EXPECT_FALSE(ButtonOf(Library(), "&Open").Enabled());
    ClickHead(Rows(), 2);
    EXPECT_EQ(Names(), "gone;nova (no .qrn);two words;DUEL;");
    ClickHead(Rows(), 2);
    EXPECT_EQ(Names(), "DUEL;two words;nova (no .qrn);gone;");
    Type(ControlOf<TextBox>(Library(), ""), "KEST");
    EXPECT_EQ(Names(), "nova (no .qrn);");
}

TEST_F(ProfileLibraryTest, AFolderThatIsGoneIsToldOf) {
    program_.qrnFolder = Scratch() + "\\unplugged";
    Press(Library(), kKeyF5);
    EXPECT_EQ(Names(), "gone;");
    EXPECT_EQ(ControlOf<Label>(Library(), "1 profile").Text(), "1 profile. The folder for QRN files cannot be read.");
}

TEST_F(ProfileLibraryTest, TheCurrentFileFollowsItsNewName) {
    GoTo("DUEL");
    Press(Library(), kKeyEnter);
    EXPECT_EQ(program_.CurrentFile, Path("DUEL.QRN"));
    EXPECT_EQ(main_.Caption(), "QUIRN v1.61 - DUEL.QRN");
    Press(Library(), '1', true);
    EXPECT_EQ(program_.favourites[0].name, "Vex Calder - Tin Meridian");
    program_.favourites[0].name = "Duels";
    Press(Library(), '1', true);
    EXPECT_EQ(program_.favourites[0].name, "Duels");
    headless::PostAfter(10, [] {
        Form& rename = *headless::LoadedForms().back();
        ControlOf<TextBox>(rename, "DUEL.QRN").SetText("best");
        Click(ButtonOf(rename, "OK"));
    });
    Press(Library(), 113);
    EXPECT_TRUE(FileBytes(Path("best.QRN")));
    EXPECT_FALSE(FileBytes(Path("DUEL.QRN")));
    EXPECT_EQ(program_.CurrentFile, Path("best.QRN"));
    EXPECT_EQ(program_.favourites[0].path, Path("best.QRN"));
    EXPECT_EQ(main_.Caption(), "QUIRN v1.61 - best.QRN");
    EXPECT_EQ(Rows().cellText(*Rows().Current(), 0), "best");
}

TEST_F(ProfileLibraryTest, AFavouriteIsPushedOutOnlyAfterAQuestion) {
    const std::string question = "Favourite 2 is 'Gone' now. Make it DUEL.QRN instead?";
    GoTo("DUEL");
    ExpectMessage(question, kOkCancel + kQuestion, Answer::Cancel);
    Press(Library(), '2', true);
    EXPECT_EQ(program_.favourites[1].name, "Gone");
    ExpectMessage(question, kOkCancel + kQuestion);
    Press(Library(), '2', true);
    EXPECT_EQ(program_.favourites[1].path, Path("DUEL.QRN"));
}

TEST_F(ProfileLibraryTest, AComparisonNamesBothProfiles) {
    GoTo("DUEL");
    Press(Library(), kKeyEnter);
    GoTo("nova");
    Click(ButtonOf(Library(), "&Compare..."));
    EXPECT_EQ(headless::LoadedForms().back()->Caption(), "Compare - DUEL.QRN and nova");
}

TEST_F(ProfileLibraryTest, WhatCannotBeDoneIsToldAndNothingIsLost) {
    GoTo("two words");
    ExpectMessage(
        "A shortcut cannot name a file with spaces in its path, and Windows keeps no short name for this one. Give it "
        "a "
        "name without spaces first.",
        kExclamation);
    ChooseMore("Desktop &Shortcut");
    EXPECT_TRUE(TheWorld().desktopLinks.empty());
    GoTo("DUEL");
    ChooseMore("Desktop &Shortcut");
    EXPECT_EQ(TheWorld().desktopLinks["DUEL"], "/LR:DUEL.QRN");
    ExpectMessage("Move DUEL.QRN to the recycle bin?", kOkCancel + kQuestion, Answer::Cancel);
    Rows().SetFocus();
    Press(Library(), kKeyDelete);
    EXPECT_TRUE(FileBytes(Path("DUEL.QRN")));
    ExpectMessage("Move DUEL.QRN to the recycle bin?", kOkCancel + kQuestion);
    Press(Library(), kKeyDelete);
    EXPECT_EQ(Names(), "gone;nova (no .qrn);two words;");
    GoTo("two words");  // the last row
    ExpectMessage("Move two words.qrn to the recycle bin?", kOkCancel + kQuestion);
    Press(Library(), kKeyDelete);
    EXPECT_EQ(Names(), "gone;nova (no .qrn);");
}

}  // namespace
}  // namespace quirn
