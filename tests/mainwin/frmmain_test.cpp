#include "mainwin/frmmain.h"

#include <random>

#include "mainwin/bindingtables.h"
#include "platform/settings.h"
#include "profile/profilefile.h"
#include "tests/auxiliary/controlsof.h"
#include "tests/testing/profiles.h"
#include "tests/testing/userinput.h"

namespace quirn {
namespace {

using namespace test;

class FrmMainTest : public WorldTest {
protected:
    FrmMainTest() {
        program_.gameFolder = Scratch() + "\\game";
        program_.qrnFolder = Scratch();
        MakeFolder(program_.gameFolder);
        PutFile(program_.gameFolder + "\\favorite.lst",
                "Alpha Reach,a.example,5000\r\n-First\r\nBeta Drift,b.example,6000\r\n-Second\r\n");
        InitCatalogue(program_.profile);
        for (const Section* section : program_.profile.Sections())
            MakeKey("Software\\Virgin\\SubSpace\\" + section->name);
    }

    // What the player would have after showing the profile and saving it from the controls.
    Profile ShownAndCollected(frmMain& window, const Profile& profile) {
        program_.profile = profile;
        window.ShowProfile();
        EXPECT_FALSE(program_.dirty);
        window.CollectProfile();
        return program_.profile;
    }

    Program program_;
};

class RandomProfile {
public:
    Profile Make() {
        Profile profile = EmptyProfile();
        for (Section* section : profile.Sections())
            for (int i = 1; i <= section->Count(); ++i)
                section->Value(i) = section->IsNumber(i) ? std::to_string(Number(2)) : Text();
        const bool listed = Number(2) == 0;
        profile.Dialog.Value(kServerArena) = listed ? "Beta Drift" : "Gamma" + Text();
        profile.Dialog.Value(kServerName) = listed ? "b.example" : Text();
        profile.Dialog.Value(kServerPort) = listed ? "6000" : Text();
        profile.Dialog.Value(kProxyIP) = Number(2) == 0 ? "" : Text() + "." + Text() + "." + Text();
        profile.Dialog.Value(kPlayerShipType) = std::to_string(Number(12));  // some are in no list
        SplitResolution(setting::kResolutions[Number(std::size(setting::kResolutions))],
                        profile.Options.Value(kResolutionX), profile.Options.Value(kResolutionY));
        for (const SettingRow* group : setting::kOptionGroups)
            profile.Value(*group) = std::to_string(Number(5));  // some groups have fewer buttons
        for (const SettingRow* free : setting::kNumbers)
            profile.Value(*free) = Number(3) == 0 ? Text() : std::to_string(Number(70000));
        profile.Advanced.Value(kGammaPercent) = std::to_string(1 + Number(500));
        profile.WaveFiles = {Text(), kNotSet};
        profile.IgnoreList.resize(Number(10));
        for (std::string& name : profile.IgnoreList) name = Text() + "x";
        return profile;
    }

private:
    size_t Number(size_t below) { return random_() % below; }

    // Over all printable bytes; spaces and quotes around a value are lost in every INI file.
    std::string Text() {
        std::string text(Number(30), ' ');
        for (char& c : text) do
                c = static_cast<char>(0x20 + Number(0xE0));
            while (c == 0x7F);
        for (size_t end : {size_t{0}, text.size() - 1})
            if (!text.empty() && (text[end] == ' ' || text[end] == '"' || text[end] == '\'')) text[end] = '%';
        return text;
    }

    std::mt19937 random_{1610};
};

TEST_F(FrmMainTest, RandomProfilesSurviveTheControlsAndTheFile) {
    frmMain window(program_);
    window.Load();
    window.Show();
    RandomProfile random;
    const std::string file = Scratch() + "\\random.qrn";
    for (int round = 0; round < 500; ++round) {
        const Profile made = random.Make();
        const Profile collected = ShownAndCollected(window, made);
        ExpectSame(collected, made);
        // The file is the slow part, and has tests of its own.
        if (round % 20 == 0) {
            ASSERT_FALSE(SaveProfile(collected, program_.gameFolder, file));
            Profile loaded = EmptyProfile();
            ASSERT_EQ(LoadProfile(loaded, file), LoadResult::Loaded);
            ExpectSame(ShownAndCollected(window, loaded), made);
        }
        if (HasFatalFailure()) return;
    }
    window.Unload();
}

TEST_F(FrmMainTest, WhatControlsCannotShowBecomesWhatTheySay) {
    frmMain window(program_);
    window.Load();
    Profile profile = SampleProfile();
    profile.Dialog.Value(kServerArena) = "Beta";  // part of a listed name
    profile.Dialog.Value(kProxyIP) = "no address";
    profile.Options.Value(kResolutionX) = "800";
    profile.Options.Value(kResolutionY) = "480";
    const int clock = OptionsSetting(profile, "Clock", SettingMode::Index);
    profile.Options.Value(clock) = "5";
    profile.HiddenOptions.values = {"", "abc", "0.5", "2"};
    const Profile collected = ShownAndCollected(window, profile);
    EXPECT_EQ(collected.Dialog.Value(kServerArena), "Beta Drift");
    EXPECT_EQ(collected.Dialog.Value(kServerName), "b.example");
    EXPECT_EQ(collected.Dialog.Value(kProxyIP), "");
    EXPECT_EQ(collected.Options.Value(kResolutionY), "600");
    EXPECT_EQ(collected.Options.Value(clock), "1");
    EXPECT_EQ(collected.HiddenOptions.values, (std::vector<std::string>{"", "0", "0", "2"}));
    profile.Options.Value(kResolutionX) = "1920";
    EXPECT_EQ(ShownAndCollected(window, profile).Options.Value(kResolutionX), "640");
    window.Unload();
}

TEST_F(FrmMainTest, AChatNameIsSavedCompleteWhileTheCursorIsInIt) {
    frmMain window(program_);
    window.Load();
    window.Show();
    program_.CurrentFile = Scratch() + "\\a.qrn";
    program_.profile.Messages.Value(kChatName) = "night";
    window.ShowProfile();
    for (Control* control : ControlOf<TabStrip>(window, "").Pages()[0]->Controls())
        if (control->Text() == "night") control->SetFocus();
    Press(window, 'S', true);
    EXPECT_FALSE(program_.dirty);
    Profile saved = EmptyProfile();
    ASSERT_EQ(LoadProfile(saved, program_.CurrentFile), LoadResult::Loaded);
    EXPECT_EQ(saved.Messages.Value(kChatName), "?chat=night");
    EXPECT_TRUE(window.Unload());
}

TEST_F(FrmMainTest, ThePickListGoesWithTheMacroThatItWasOpenedFor) {
    frmMain window(program_);
    window.Load();
    window.Show();
    auto& strip = ControlOf<TabStrip>(window, "");
    strip.SetTab(4);
    const auto& controls = strip.Pages()[4]->Controls();
    const auto macro = std::find_if(controls.begin(), controls.end(),
                                    [](Control* control) { return dynamic_cast<TextBox*>(control) != nullptr; });
    const auto& list = ControlOf<ListBox>(window, "");
    Type(static_cast<TextBox&>(**macro), "%");
    EXPECT_TRUE(list.Visible());
    window.ShowProfile();
    EXPECT_FALSE(list.Visible());
}

TEST_F(FrmMainTest, APastedProxyAddressFillsItsFourBoxes) {
    frmMain window(program_);
    window.Load();
    window.Show();
    std::vector<MaskedBox*> boxes;
    for (Control* control : ControlOf<TabStrip>(window, "").Pages()[0]->Controls())
        if (auto* box = dynamic_cast<MaskedBox*>(control)) boxes.push_back(box);
    for (const char* text : {"10.20.30.40", " 10 . 20.30.40:8080\r\n"}) {
        for (MaskedBox* box : boxes) {
            program_.profile.Dialog.Value(kProxyIP) = "1.2.3.4";
            window.ShowProfile();
            program_.dirty = false;
            Paste(*box, text, 1);
            window.CollectProfile();
            EXPECT_EQ(program_.profile.Dialog.Value(kProxyIP), "10.20.30.40") << text;
            EXPECT_TRUE(program_.dirty);
        }
    }
    program_.profile.Dialog.Value(kProxyIP) = "1.2.3.4";
    window.ShowProfile();
    Paste(*boxes[1], "10.x", 1);
    window.CollectProfile();
    EXPECT_EQ(program_.profile.Dialog.Value(kProxyIP), "1.210.3.4");
}

TEST_F(FrmMainTest, PastedNamesGoInLineByLineAndNoneTwice) {
    frmMain window(program_);
    window.Load();
    window.Show();
    auto& strip = ControlOf<TabStrip>(window, "");
    strip.SetTab(6);
    const auto& controls = strip.Pages()[6]->Controls();
    auto& list = dynamic_cast<ListBox&>(*controls[0]);
    auto& name = dynamic_cast<TextBox&>(*controls[2]);
    Paste(name, " Mole\r\norla \r\n\r\nmole\r\n");
    EXPECT_EQ(list.Items(), (std::vector<std::string>{"Mole", "orla"}));
    EXPECT_TRUE(program_.dirty);
    program_.dirty = false;
    Type(name, "ORLA");
    Click(*controls[3]);
    EXPECT_EQ(list.Items().size(), 2u);
    EXPECT_EQ(name.Text(), "");
    EXPECT_FALSE(program_.dirty);
    EXPECT_FALSE(controls[4]->Enabled());
    Choose(list, {0});
    Click(*controls[4]);
    EXPECT_EQ(list.Items(), (std::vector<std::string>{"orla"}));
    EXPECT_FALSE(controls[4]->Enabled());
}

// The open list covers what the page says of a zone.
TEST_F(FrmMainTest, TheStatusBarTellsOfTheZonesInTheOpenList) {
    frmMain window(program_);
    window.Load();
    window.Show();
    auto& bar = ControlOf<StatusBar>(window, "");
    ComboBox* zones = nullptr;
    for (Control* control : ControlOf<TabStrip>(window, "").Pages()[0]->Controls())
        if (auto* box = dynamic_cast<ComboBox*>(control)) zones = box;
    zones->UserOpens(true);
    zones->UserHighlights(1);
    EXPECT_EQ(bar.Text(), "b.example  Port 6000  Second");
    zones->UserOpens(false);
    EXPECT_EQ(bar.Text(), "");
}

TEST_F(FrmMainTest, ClosesToTheTrayAndEndsByExitAlone) {
    frmMain window(program_);
    window.Load();
    window.Show();
    program_.dirty = true;
    window.UserCloses(UnloadMode::CloseBox);
    EXPECT_TRUE(window.IsLoaded());
    EXPECT_FALSE(window.Visible());
    EXPECT_EQ(GetSetting("Settings", "ToldOfTray", ""), "1");

    ExpectMessage("Save changes to <current SS settings>", kYesNoCancel | kQuestion, Answer::Cancel, "Save Changes?");
    EXPECT_FALSE(window.Unload());
    EXPECT_EQ(GetSetting("File Locations", "SubSpace", "none"), "none");

    // The icon went with that question: the window would be gone without a trace.
    window.Show();
    ExpectMessage("QUIRN is still running, but its icon has gone from the tray. Start QUIRN again to see its window.",
                  kInformation);
    window.UserCloses(UnloadMode::CloseBox);
    EXPECT_FALSE(window.Visible());

    program_.recentFiles[0] = "C:\\a.qrn";
    ExpectMessage("Save changes to <current SS settings>", kYesNoCancel | kQuestion, Answer::No, "Save Changes?");
    EXPECT_TRUE(window.Unload());
    EXPECT_EQ(GetSetting("File Locations", "SubSpace", "none"), program_.gameFolder);
    EXPECT_EQ(GetSetting("MRUList", "MRU0", ""), "C:\\a.qrn");
}

TEST_F(FrmMainTest, TheEndOfTheSessionAsksForEditsThatAreNotSaved) {
    frmMain window(program_);
    window.Load();
    program_.dirty = true;
    for (const Answer answer : {Answer::Cancel, Answer::No}) {
        ExpectMessage("Save changes to <current SS settings>", kYesNoCancel | kQuestion, answer, "Save Changes?");
        window.UserCloses(UnloadMode::SystemShutdown);
        EXPECT_EQ(window.IsLoaded(), answer == Answer::Cancel);
    }
}

TEST_F(FrmMainTest, AMinimisedWindowKeepsNothing) {
    frmMain window(program_);
    window.Load();
    window.WindowMinimized(true);
    EXPECT_TRUE(window.Unload());
    EXPECT_EQ(GetSetting("Settings", "MainLeft", "none"), "none");
}

TEST_F(FrmMainTest, WithoutAZoneListTheAnswerDecides) {
    program_.gameFolder = kNotSet;
    ExpectMessage("Cannot find FAVORITE.LST, make sure the location of the subspace.exe is set correctly.",
                  kOkCancel | kQuestion, Answer::Cancel);
    frmMain window(program_);
    window.Load();
    EXPECT_FALSE(window.IsLoaded());
}

}  // namespace
}  // namespace quirn
