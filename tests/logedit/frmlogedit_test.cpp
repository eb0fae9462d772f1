#include "logedit/frmlogedit.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "logedit/linecolors.h"
#include "logedit/logmenurows.h"
#include "platform/files.h"
#include "platform/headless/dialogs.h"
#include "platform/settings.h"
#include "tests/testing/userinput.h"
#include "tests/testing/world.h"

// The log editor's window as the player uses it.
namespace quirn::test {
namespace {

using namespace logmenu;
using Lines = std::vector<std::string>;

const std::string kTitleText = "The Vellick Subspace Manager";
constexpr char kLog[] =
    "  Bo> one\r\n"
    "P Cy> two\r\n"
    "T Ann> three\r\n"
    "\r\n"
    "  Welcome\r\n"
    "Xx Dee> hidden\r\n"
    "  Cy> four BO\r\n";

template <class T>
T& Find(const Form& form, const std::string& text) {
    for (Control* control : form.Controls())
        if (auto* found = dynamic_cast<T*>(control); found != nullptr && found->Text().starts_with(text)) return *found;
    throw std::runtime_error("no control " + text);
}

class LogEditTest : public WorldTest {
protected:
    LogEditTest() {
        path_ = Scratch() + "\\monday.log";
        PutFile(path_, kLog);
        Start();
    }

    void Start() {
        edit_.Forget();
        form_ = std::make_unique<frmLogEdit>(folder_, edit_);
        form_->Show();
    }

    void Open(const std::string& path) {
        headless::ExpectOpenFile("Open", path);
        Choose(*form_, mnuFile_Open);
    }

    // All players are shown but this one of the list.
    void OpenWithout(size_t player) {
        Open(path_);
        ClickItem(List("Include"), player);
        Press(">>");
        Press("Apply Filter");
    }

    VirtualList& List(const char* name) { return Find<VirtualList>(*form_, name); }
    VirtualList& Log() { return List("Log"); }
    Button& Press(const char* caption) {
        Button& button = Find<Button>(*form_, caption);
        Click(button);
        return button;
    }
    // A timer of the window is to do it.
    static void WaitFor(const std::function<bool()>& done) {
        for (int i = 0; i < 500 && !done(); ++i) WaitForEvents(60);
    }
    void Tick(const char* caption) { Click(Find<CheckBox>(*form_, caption)); }
    StatusBar& Status() { return Find<StatusBar>(*form_, ""); }

    static Lines Shown(const VirtualList& list) {
        Lines lines;
        for (size_t i = 0; i < list.Count(); ++i) lines.push_back(ShownItem(list, i));
        return lines;
    }

    LogEdit edit_;
    std::string folder_ = Scratch(), path_;
    std::unique_ptr<frmLogEdit> form_;
};

TEST_F(LogEditTest, OpeningFiltersAndMovingPlayers) {
    Open(path_);
    EXPECT_EQ(headless::LastFileDialog().flags, 4u);
    EXPECT_EQ(headless::LastFileDialog().folder, folder_);
    EXPECT_EQ(form_->Caption(), kTitleText + " - monday.log");
    EXPECT_EQ(ShownText(Status()), "Log file has been loaded");
    EXPECT_EQ(ShownSecondText(Status()), "Log Lines = 5");
    PointAt(*form_, MenuPart::Item, mnuOptions_LineNums);
    EXPECT_EQ(ShownText(Status()), "Display line numbers on log list");
    EXPECT_EQ(Shown(Log()), (Lines{"  Bo> one", "P Cy> two", "T Ann> three", "  Welcome", "  Cy> four BO"}));
    EXPECT_EQ(Shown(List("Include")), (Lines{"Ann", "Bo", "Cy", "Dee"}));
    EXPECT_EQ(List("Include").itemData(2), 2);
    EXPECT_EQ(Log().itemData(1), 2 * 65536 + 8);

    ClickItem(List("Include"), 1);
    ClickItem(List("Include"), 2, true);
    Press(">>");
    EXPECT_EQ(Shown(List("Exclude")), (Lines{"Bo", "Cy"}));
    EXPECT_EQ(ShownText(Find<Label>(*form_, "Include")), "Include : (2)");
    EXPECT_EQ(ShownText(Find<Label>(*form_, "Exclude")), "Exclude : (2)");
    EXPECT_EQ(Log().Count(), 5u) << "nothing changes before the filter is applied";
    Press("Apply Filter");
    EXPECT_EQ(Shown(Log()), (Lines{"T Ann> three", "  Welcome"}));

    Choose(*form_, mnuOptions_Apply);
    EXPECT_TRUE(form_->MenuBar()->Find(mnuOptions_Apply)->checked);
    ClickItem(List("Exclude"), 0);
    Press("<<");
    EXPECT_EQ(Shown(Log()), (Lines{"  Bo> one", "T Ann> three", "  Welcome"}));
    Tick("System messages");
    EXPECT_EQ(Shown(Log()), (Lines{"  Bo> one", "T Ann> three"}));
    Choose(*form_, mnuOptions_Apply);
    Tick("System messages");
    EXPECT_EQ(Log().Count(), 2u);
    Choose(*form_, mnuOptions_LineNums);  // applies always
    EXPECT_EQ(Shown(Log()), (Lines{"{1}   Bo> one", "{3} T Ann> three", "{4}   Welcome"}));
    EXPECT_EQ(ShownSecondText(Status()), "Log Lines = 3");
}

TEST_F(LogEditTest, ThePopupsSelectAndDelete) {
    Open(path_);
    VirtualList& include = List("Include");
    ClickItem(include, 1);
    ChooseFromPopup(include, 1);
    EXPECT_EQ(include.Selection().SelectedCount(), 3u);
    EXPECT_FALSE(include.Selection().IsSelected(1));
    EXPECT_EQ(include.Current(), 1u);
    ChooseFromPopup(include, 0);
    EXPECT_EQ(include.Selection().SelectedCount(), 4u);
    Press(">>");
    Press("Apply Filter");
    EXPECT_EQ(Shown(Log()), Lines{"  Welcome"});
    ChooseFromPopup(List("Exclude"), 1);
    EXPECT_EQ(List("Exclude").Selection().SelectedCount(), 4u) << "the menu alone selects nothing";
    Press("<<");
    ChooseFromPopup(include, 2);  // "Only These"
    EXPECT_EQ(Shown(include), Lines{"Ann"}) << "the name at the pointer";
    EXPECT_EQ(Shown(Log()), (Lines{"T Ann> three", "  Welcome"})) << "at once";

    Open(path_);
    ClickItem(Log(), 1);
    ClickItem(Log(), 3, false, true);
    ChooseFromPopup(Log(), 0);
    EXPECT_EQ(Shown(Log()), (Lines{"  Bo> one", "T Ann> three", "  Cy> four BO"}));
    EXPECT_EQ(ShownSecondText(Status()), "Log Lines = 3");
    Press("Apply Filter");
    EXPECT_EQ(Log().Count(), 5u) << "the filter brings deleted lines back";
}

TEST_F(LogEditTest, TheKeyboardSelectsCopiesAndDeletes) {
    Open(path_);
    Log().SetFocus();
    quirn::test::Press(*form_, 'A', true);
    quirn::test::Press(*form_, 'C', true);
    EXPECT_EQ(Clipboard(), "  Bo> one\r\nP Cy> two\r\nT Ann> three\r\n  Welcome\r\n  Cy> four BO");
    ClickItem(Log(), 0);
    quirn::test::Press(*form_, kKeyDelete);
    EXPECT_EQ(Log().Count(), 4u);
    ClickItem(List("Include"), 0);
    quirn::test::Press(*form_, kKeyDelete);
    EXPECT_EQ(Log().Count(), 4u) << "deletes lines only";
    quirn::test::Press(*form_, 'A', true);
    quirn::test::Press(*form_, 'C', true);
    EXPECT_EQ(Clipboard(), "Ann\r\nBo\r\nCy\r\nDee");
    ClickItem(Log(), 0);
    List("Exclude").SetFocus();
    quirn::test::Press(*form_, 'C', true);
    EXPECT_EQ(Clipboard(), "Ann\r\nBo\r\nCy\r\nDee") << "no lines while a list of players has the keyboard";
}

TEST_F(LogEditTest, TheLineAtTheKeyboardStaysWhereItIsWhileFiltersChange) {
    std::string log;
    for (int i = 0; i < 300; ++i) log += i % 3 == 0 ? "  Ann Max> stop\r\n" : "  Ann Lee> go on\r\n";
    PutFile(path_, log);
    Open(path_);
    auto& words = Find<TextBox>(*form_, "");
    Type(words, "stop");
    WaitFor([this] { return Log().Count() == 100; });
    Log().SetTopIndex(40);
    ClickItem(Log(), 45);
    Press("Show &All");
    EXPECT_EQ(ShownTop(Log()), 130u);
    Press("Show Fil&tered");
    EXPECT_EQ(ShownTop(Log()), 40u);
    Type(words, " and no such word");
    WaitFor([this] { return Log().Count() == 0; });
    EXPECT_EQ(Log().EmptyText(), "All lines are hidden or deleted.");
    words.SetFocus();
    quirn::test::Press(*form_, kKeyEscape);
    WaitFor([this] { return Log().Count() == 300; });
    EXPECT_EQ(ShownTop(Log()), 130u);
    EXPECT_EQ(Log().Selection().SelectedBefore(136), 1u);
    List("Include").SetFocus();
    quirn::test::Type(*form_, "ann m");
    EXPECT_EQ(List("Include").Current(), 1u);
}

TEST_F(LogEditTest, FiltersByWordsDeletesAndGoesBack) {
    Open(path_);
    auto& words = Find<TextBox>(*form_, "");
    ClickItem(Log(), 4);
    Type(words, "\"C\" -two");
    WaitFor([this] { return Log().Count() == 2; });
    EXPECT_EQ(Shown(Log()), (Lines{"  Welcome", "  Cy> four BO"}));
    EXPECT_TRUE(Log().Selection().IsSelected(1)) << "the line stays selected";
    EXPECT_EQ(ShownSecondText(Status()), "Log Lines = 2");
    auto& counts = Find<Label>(*form_, "2 of 6 lines");
    EXPECT_EQ(counts.ToolTip(), "Hidden: 1 of unknown kind, 3 by text");
    Log().SetFocus();
    quirn::test::Press(*form_, kKeyDelete);
    EXPECT_EQ(Shown(Log()), Lines{"  Welcome"});
    Press("Show &All");
    EXPECT_EQ(Log().Count(), 5u) << "unknown kinds too; what is deleted stays so";
    Press("Show Fil&tered");
    Choose(*form_, mnuEdit_Undo);
    EXPECT_EQ(Shown(Log()), (Lines{"  Welcome", "  Cy> four BO"}));
    EXPECT_TRUE(Log().Selection().IsSelected(1));
    Choose(*form_, mnuEdit_Redo);
    EXPECT_EQ(Log().Count(), 1u);
    words.SetFocus();
    quirn::test::Press(*form_, kKeyEscape);
    WaitFor([this] { return Log().Count() == 4; });
    EXPECT_EQ(words.Text(), "");
    EXPECT_EQ(Log().Count(), 4u);
    Type(words, "welcome");
    Press("Show &All");
    WaitForEvents(400);
    EXPECT_EQ(Log().Count(), 5u) << "what was typed just before does not end it";
    words.UserEdits("nothing");
    Press("Show Fil&tered");
    EXPECT_EQ(Log().Count(), 0u) << "nor does it begin again";
    words.UserEdits("welcome");
    WaitFor([this] { return Log().Count() == 1; });
    EXPECT_EQ(Shown(Log()), Lines{"  Welcome"});
    Press("Apply Filter");
    words.UserEdits("");
    WaitFor([this] { return Log().Count() == 5; });
    EXPECT_EQ(Log().Count(), 5u) << "brings deleted lines back";
    EXPECT_FALSE(form_->MenuBar()->Find(mnuEdit_Undo)->IsEnabled());
    ClickItem(Log(), 3);
    quirn::test::Press(*form_, kKeyDelete);
    Choose(*form_, mnuView_Unknown);
    EXPECT_EQ(Shown(Log())[3], "Xx Dee> hidden") << "deleted lines stay deleted";
}

TEST_F(LogEditTest, FollowsALogAndKeepsWhatThePlayerChose) {
    const auto news = [this] { return Find<Label>(*form_, "Following").Text(); };
    OpenWithout(2);
    EXPECT_EQ(Shown(Log()), (Lines{"  Bo> one", "T Ann> three", "  Welcome"}));
    ClickItem(Log(), 1);
    Choose(*form_, mnuView_Follow);
    EXPECT_EQ(news(), "Following");
    PutFile(path_, std::string(kLog) + "  Bo> six\r\n  Cy> hidden too\r\n  New> hal");
    WaitFor([this] { return Log().Count() == 4; });
    EXPECT_EQ(Shown(Log()), (Lines{"  Bo> one", "T Ann> three", "  Welcome", "  Bo> six"}));
    EXPECT_TRUE(Log().Selection().IsSelected(1));
    EXPECT_EQ(Shown(List("Exclude")), Lines{"Cy"});
    PutFile(path_, std::string(kLog) + "  Bo> six\r\n  Cy> hidden too\r\n  New> half\r\n");
    WaitFor([this] { return Log().Count() == 5; });
    EXPECT_EQ(Shown(Log()).back(), "  New> half");
    EXPECT_EQ(Shown(List("Include")), (Lines{"Ann", "Bo", "Dee", "New"}));
    ClickItem(Log(), 3, true, false);
    EXPECT_EQ(Log().Selection().SelectedCount(), 3u) << "Shift goes on from where it was before the log grew";
    ClickItem(Log(), 1);
    quirn::test::Press(*form_, kKeyDelete);
    Choose(*form_, mnuView_Reload);
    EXPECT_EQ(Shown(Log()), (Lines{"  Bo> one", "  Welcome", "  Bo> six", "  New> half"})) << "deleted lines stay so";
    Choose(*form_, mnuEdit_Undo);
    EXPECT_EQ(Shown(Log())[1], "T Ann> three");
    Choose(*form_, mnuEdit_Redo);
    PutFile(path_, "  Bo> anew\r\n  Cy> hidden\r\n");
    WaitFor([this] { return Log().Count() == 1; });
    EXPECT_EQ(Shown(Log()), Lines{"  Bo> anew"}) << "a shorter file is read from its start";
    edit_.Forget();
    Choose(*form_, mnuView_Reload);
    EXPECT_EQ(Shown(Log()), Lines{"  Bo> anew"});
    RemoveFile(path_);
    WaitFor([this] { return !form_->MenuBar()->Find(mnuView_Follow)->checked; });
    EXPECT_EQ(Find<Label>(*form_, "Not followed").Text(), "Not followed: the file is gone");
    EXPECT_FALSE(form_->MenuBar()->Find(mnuView_Follow)->checked);
}

TEST_F(LogEditTest, AllStaysShownWhenTheLogIsReadAgain) {
    OpenWithout(2);
    Press("Show &All");
    Choose(*form_, mnuView_Reload);
    EXPECT_EQ(Log().Count(), 6u);
    Choose(*form_, mnuView_Unknown);
    EXPECT_EQ(Log().Count(), 6u);
    Press("Show Fil&tered");
    EXPECT_EQ(Shown(Log()), (Lines{"  Bo> one", "T Ann> three", "  Welcome", "Xx Dee> hidden"}));
}

// The game begins its log anew with an empty file, in which nobody speaks yet.
TEST_F(LogEditTest, WhoWasExcludedStaysSoWhenTheLogBeginsAnew) {
    OpenWithout(2);
    Choose(*form_, mnuView_Follow);
    const char* const texts[] = {"", "  Bo> anew\r\n", "  Bo> anew\r\n  Cy> hidden\r\n  Ann> new\r\n"};
    for (const char* text : texts) {
        PutFile(path_, text);
        const size_t players = text == texts[2] ? 3 : text == texts[1] ? 1 : 0;
        WaitFor([&] { return edit_.LogLines->Players().size() == players; });
    }
    EXPECT_EQ(Shown(Log()), (Lines{"  Bo> anew", "  Ann> new"}));
    EXPECT_EQ(Shown(List("Exclude")), Lines{"Cy"});
    EXPECT_EQ(Shown(List("Include")), (Lines{"Ann", "Bo"}));
}

// A log that is not found leaves the lists of players as they were, and applying them shows nothing.
TEST_F(LogEditTest, WhoWasExcludedStaysSoWhenTheLogIsBack) {
    OpenWithout(1);
    const Lines withoutBo = Shown(Log());
    const std::string bytes = FileBytes(path_).value();
    RemoveFile(path_);
    ExpectMessage("ERROR - Could not find log file named '" + path_ + "'", kCritical);
    Choose(*form_, mnuFileMRU);
    Press("Apply Filter");
    PutFile(path_, bytes);
    Choose(*form_, mnuView_Reload);
    EXPECT_EQ(Shown(Log()), withoutBo);
    EXPECT_EQ(Shown(List("Exclude")), Lines{"Bo"});
}

TEST_F(LogEditTest, AnExcludedPlayerAloneInALogCanBeShownAgain) {
    OpenWithout(1);
    Choose(*form_, mnuView_Follow);
    PutFile(path_, "  Bo> anew\r\n");
    WaitFor([&] { return edit_.LogLines->Players().size() == 1; });
    Press("Apply Filter");
    EXPECT_EQ(Log().Count(), 0u);
    PutFile(path_, "  Bo> anew\r\n  Ann> new\r\n  Bo> more\r\n");
    WaitFor([&] { return edit_.LogLines->Players().size() == 2; });
    EXPECT_EQ(Shown(Log()), Lines{"  Ann> new"});
    EXPECT_EQ(Shown(List("Exclude")), Lines{"Bo"});

    PutFile(path_, "  Bo> alone\r\n");
    WaitFor([&] { return edit_.LogLines->Players().size() == 1; });
    ChooseFromPopup(Log(), 5);  // "Everyone Again"
    EXPECT_EQ(Shown(Log()), Lines{"  Bo> alone"});
}

TEST_F(LogEditTest, AHeldFileIsWaitedForWhenItIsReadAgain) {
    Open(path_);
    Choose(*form_, mnuView_Follow);
    auto& strip = Find<Label>(*form_, "Following");
    {
        const HeldFile held(path_);
        Choose(*form_, mnuView_Reload);
        EXPECT_EQ(strip.Text(), "Waiting: the file is held");
    }
    WaitFor([&] { return strip.Text() == "Following"; });
    Choose(*form_, mnuView_Follow);
    {
        const HeldFile held(path_);
        Choose(*form_, mnuView_Follow);
    }
    EXPECT_EQ(strip.ToolTip(), "Not followed: no file to read: Permission denied");
    RemoveFile(path_);
    Choose(*form_, mnuView_Follow);
    EXPECT_EQ(strip.ToolTip(), "Not followed: no file to read: File not found");
}

TEST_F(LogEditTest, TheFirstLineComesThoughTheEmptyOneWasDeleted) {
    PutFile(path_, "");
    Open(path_);
    Choose(*form_, mnuView_Follow);
    ClickItem(Log(), 0);
    quirn::test::Press(*form_, kKeyDelete);
    PutFile(path_, "  Bo> half");
    WaitForEvents(1200);  // it has been seen
    Choose(*form_, mnuView_Follow);
    EXPECT_EQ(Shown(Log()), Lines{"  Bo> half"});
}

TEST_F(LogEditTest, FollowingWaitsForAFileThatIsHeldAndEndsWithAHalfLine) {
    PutFile(path_, "");
    Open(path_);
    Choose(*form_, mnuView_Follow);
    const auto& strip = Find<Label>(*form_, "Following");
    {
        const HeldFile held(path_);
        WaitFor([&] { return strip.Text().starts_with("Waiting"); });
        EXPECT_EQ(strip.Text(), "Waiting: the file is held");
    }
    PutFile(path_, "  Bo> half");
    WaitFor([&] { return strip.Text() == "Following"; });
    EXPECT_EQ(strip.Text(), "Following");
    EXPECT_EQ(Shown(Log()), Lines{""});
    Choose(*form_, mnuView_Follow);
    EXPECT_EQ(Shown(Log()), Lines{"  Bo> half"});
}

TEST_F(LogEditTest, WhatThePlayerHasNotAppliedYetWaitsForHim) {
    OpenWithout(1);
    const Lines withoutBo = Shown(Log());
    Tick("Public");
    ClickItem(List("Include"), 1);
    Press(">>");
    ClickItem(List("Exclude"), 0);
    Press("<<");
    Choose(*form_, mnuView_Reload);
    EXPECT_EQ(Shown(Log()), withoutBo);
    Choose(*form_, mnuView_Unknown);
    EXPECT_EQ(Log().Count(), withoutBo.size() + 1);
    Choose(*form_, mnuView_Unknown);
    Choose(*form_, mnuView_Follow);
    PutFile(path_, "  Ann> anew\r\n");
    WaitFor([this] { return edit_.LogLines->Players().size() == 1; });
    PutFile(path_, "  Ann> anew\r\nP Bo> was hidden\r\nP Cy> still here\r\n");
    WaitFor([this] { return edit_.LogLines->Players().size() == 3; });
    EXPECT_EQ(Shown(Log()), (Lines{"  Ann> anew", "P Cy> still here"}));
    Press("Apply Filter");
    EXPECT_EQ(Shown(Log()), Lines{"P Bo> was hidden"});
}

TEST_F(LogEditTest, FollowingLosesNoLastLineAndNoSelectedName) {
    PutFile(path_, std::string(kLog) + "  Abe> no end");
    Open(path_);
    ClickItem(Log(), 0);
    quirn::test::Press(*form_, kKeyDelete);
    Choose(*form_, mnuView_Follow);
    EXPECT_EQ(Shown(Log()).front(), "P Cy> two") << "deleted lines stay so while the last one waits";
    ClickItem(List("Include"), 1);
    PutFile(path_, std::string(kLog) + "  Abe> no end\r\n  Bo> half");
    WaitFor([this] { return List("Include").Count() == 5; });
    EXPECT_EQ(List("Include").Count(), 5u);
    EXPECT_TRUE(List("Include").Selection().IsSelected(2)) << "Bo, behind one more name";
    Choose(*form_, mnuView_Follow);
    EXPECT_EQ(Shown(Log()).back(), "  Bo> half");
    Choose(*form_, mnuView_Follow);
    EXPECT_EQ(Shown(Log()).back(), "  Abe> no end");
    RemoveFile(path_);
    Choose(*form_, mnuView_Reload);
    EXPECT_EQ(Shown(Log()).back(), "  Bo> half") << "the file is gone before its line has ended";
}

TEST_F(LogEditTest, ReloadShowsTheLogAgainAfterOneWithTooManyPlayers) {
    std::string many;
    for (int i = 0; i < 32768; ++i) many += "  p" + std::to_string(i) + "> x\r\n";
    Open(path_);
    ExpectMessage("Error # 6 was generated by QUIRN\rOverflow", kPlain, Answer::Ok, "Error");
    PutFile(Scratch() + "\\many.log", many);
    Open(Scratch() + "\\many.log");
    EXPECT_EQ(Log().Count(), 0u);
    Choose(*form_, mnuView_Reload);
    EXPECT_EQ(Log().Count(), 5u);
    EXPECT_EQ(ShownSecondText(Status()), "Log Lines = 5");
}

TEST_F(LogEditTest, TheFilterCanBeAppliedToNoLog) {
    Press("Apply Filter");
    EXPECT_EQ(Shown(Log()), Lines{""});
    for (const int command : {mnuView_Statistics, mnuView_All, mnuView_Next, mnuView_Follow, mnuView_Reload})
        Choose(*form_, command);
    EXPECT_EQ(Shown(Log()), Lines{""});
}

TEST_F(LogEditTest, SeveralLogsAreShownAsOneInTheOrderOfTheirTimes) {
    const std::string friday = Scratch() + "\\friday.log", tuesday = Scratch() + "\\tuesday.log";
    const auto strip = [this](const char* start) { return Find<Label>(*form_, start).Text(); };
    WaitForEvents(60);
    PutFile(tuesday, "  Cy> no end");
    WaitForEvents(60);
    PutFile(friday, "  Cy> last\r\n  Zed> end\r\n");
    headless::ExpectOpenFiles("Open Several", {friday, tuesday, path_, Scratch() + "\\FRIDAY.log"});
    Choose(*form_, mnuFile_Several);
    EXPECT_EQ(form_->Caption(), kTitleText + " - monday.log to friday.log");
    const Lines all{"  Bo> one",     "P Cy> two",    "T Ann> three", "  Welcome",
                    "  Cy> four BO", "  Cy> no end", "  Cy> last",   "  Zed> end"};
    EXPECT_EQ(Shown(Log()), all);
    EXPECT_EQ(Shown(List("Include")), (Lines{"Ann", "Bo", "Cy", "Dee", "Zed"}));
    EXPECT_EQ(strip("monday"), "monday.log");
    ClickItem(Log(), 5);
    EXPECT_EQ(strip("tuesday"), "tuesday.log");
    quirn::test::Press(*form_, kKeyPageDown, true);
    EXPECT_EQ(Log().Current(), 6u);
    EXPECT_EQ(strip("friday"), "friday.log");
    quirn::test::Press(*form_, kKeyPageDown, true);
    EXPECT_EQ(Log().Current(), 6u) << "there is none behind it";

    edit_.view.SetText(TextFilter("-end"));  // nothing of tuesday.log
    ClickItem(List("Include"), 0);
    Press(">>");
    Press("Apply Filter");
    Log().SetCurrent(4);
    quirn::test::Press(*form_, kKeyPageUp, true);
    EXPECT_EQ(Log().Current(), 0u) << "over a log of which nothing is shown";
    EXPECT_EQ(strip("monday"), "monday.log");

    Choose(*form_, mnuView_Follow);
    PutFile(friday, "  Cy> last\r\n  Zed> end\r\n  New> one\r\n");
    WaitFor([this] { return Log().Count() == 6; });
    EXPECT_EQ(Shown(Log()).back(), "  New> one");
    EXPECT_EQ(strip("monday"), "monday.log - Following");

    const std::string before = *FileBytes(tuesday);
    headless::ExpectSaveFile("Save As", tuesday);
    ExpectMessage("'tuesday.log' is one of the logs that are shown.\r\rReplace it by all the lines shown?",
                  kOkCancel | kExclamation, Answer::Cancel);
    Choose(*form_, mnuFile_SaveAs);
    EXPECT_EQ(FileBytes(tuesday), before);

    const std::string none = Scratch() + "\\none.log";
    ExpectMessage("ERROR - Could not find log file named '" + none + "'", kCritical);
    form_->onDropFiles({path_, none});
    EXPECT_EQ(Log().Count(), 6u) << "what is shown stays";
    EXPECT_EQ(ShownText(Status()), "ERROR loading log file");
    form_->onDropFiles({tuesday, friday, tuesday});
    EXPECT_EQ(edit_.LogLines->LineCount(), 4u) << "each file once";
    EXPECT_EQ(form_->MenuBar()->Find(mnuFileMRU)->caption, "&1 " + friday);
    Open(path_);
    EXPECT_FALSE(ShownEnabled(*form_, mnuView_Next));
}

TEST_F(LogEditTest, TheStripNamesTheLogInSightWhateverMovesTheList) {
    const std::string friday = Scratch() + "\\friday.log";
    const auto strip = [this] { return Find<Label>(*form_, "friday.log").Text(); };
    std::string many;
    for (int i = 0; i < 100; ++i) many += "  Ann> go on\r\n";
    PutFile(path_, many);
    WaitForEvents(60);
    PutFile(friday, "  Ann> new\r\n");
    form_->onDropFiles({path_, friday});
    Log().SetTopIndex(100);
    Choose(*form_, mnuView_Follow);
    PutFile(friday, "  Ann> new\r\n" + many);
    WaitFor([this] { return Log().Count() == 201; });
    EXPECT_EQ(strip(), "friday.log - Following") << "the end was in sight";
    Log().SetTopIndex(150);
    ClickItem(Log(), 155);
    quirn::test::Press(*form_, kKeyDelete);
    Choose(*form_, mnuEdit_Undo);
    EXPECT_EQ(ShownTop(Log()), 150u);
    EXPECT_EQ(strip(), "friday.log - Following");
    Log().SetTopIndex(0);
    ChooseFromPopup(Log(), 2);
    EXPECT_EQ(Find<Label>(*form_, "monday.log").Text(), "monday.log - Following") << "the line at the pointer";
    PutFile(friday, "  Ann> new\r\n" + many + "  Ann> newest\r\n");
    WaitFor([this] { return Log().Count() == 202; });
    EXPECT_EQ(Find<Label>(*form_, "monday.log").Text(), "monday.log - 1 new line");
    Log().SetTopIndex(201);
    ClickItem(Log(), 201);
    RemoveFile(friday);
    WaitFor([this] { return !form_->MenuBar()->Find(mnuView_Follow)->checked; });
    EXPECT_EQ(Find<Label>(*form_, "Not followed").Text(), "Not followed: the file is gone");
    Log().SetTopIndex(0);
    ChooseFromPopup(Log(), 2);
    EXPECT_EQ(Find<Label>(*form_, "monday.log").ToolTip(), "monday.log - Not followed: the file is gone");
}

TEST_F(LogEditTest, ThePopupTakesTheLineUnderThePointer) {
    Open(path_);
    ChooseFromPopup(Log(), 0);  // nothing is selected: the first line is at the pointer
    EXPECT_EQ(Log().Count(), 4u);
    ClickItem(Log(), 0);
    ChooseFromPopup(Log(), 3);  // "Only This Player"
    EXPECT_EQ(Shown(Log()), (Lines{"P Cy> two", "  Welcome", "  Cy> four BO"})) << "deleted lines stay deleted";
    EXPECT_EQ(Shown(List("Exclude")), (Lines{"Ann", "Bo", "Dee"}));
    ChooseFromPopup(Log(), 5);  // "Everyone Again"
    EXPECT_EQ(Log().Count(), 4u);
    edit_.lastSearch = "cy";
    Log().SetCurrent(3);
    quirn::test::Press(*form_, kKeyF3, false, true);
    EXPECT_EQ(Log().Current(), 0u);
}

TEST_F(LogEditTest, StatisticsGoOnWithTheLogAndKeepThePlayer) {
    std::string name = "monday.log";
    std::vector<PlayerStatistics> counted{{"Zed", 9}, {"\xD6land", 7}, {"Pip", 8}};
    frmLogStatistics statistics([&](bool) { return counted; }, [&] { return name; }, {});
    statistics.Open(*form_);
    EXPECT_EQ(statistics.Caption(), "Player Statistics - monday.log");
    auto& table = Find<Table>(statistics, "Players");
    const auto names = [&] {
        Lines lines;
        for (size_t row = 0; row < table.RowCount(); ++row) lines.push_back(table.cellText(row, 0));
        return lines;
    };
    EXPECT_EQ(names(), (Lines{"Zed", "Pip", "\xD6land"}));
    ClickRow(table, 1);
    ClickHead(table, 0);
    EXPECT_EQ(names(), (Lines{"\xD6land", "Pip", "Zed"})) << "as in the lists of players";
    ClickHead(table, 0);
    EXPECT_EQ(table.Current(), 1u);
    name = "friday.log";
    counted.insert(counted.begin(), {"Aa", 1});
    statistics.LinesChanged();
    statistics.LinesChanged();
    WaitFor([&] { return table.RowCount() == 4; });
    EXPECT_EQ(statistics.Caption(), "Player Statistics - friday.log");
    EXPECT_EQ(table.cellText(table.Current().value_or(0), 0), "Pip");
    counted.clear();
    quirn::test::Press(statistics, kKeyF5);
    EXPECT_FALSE(table.Current());
    EXPECT_FALSE(Find<Button>(statistics, "&Only").Enabled());
}

TEST_F(LogEditTest, SavesWhatIsShownAndOpensItAgain) {
    Open(path_);
    Choose(*form_, mnuOptions_LineNums);
    ClickItem(Log(), 2);
    ChooseFromPopup(Log(), 0);
    const Lines shown = Shown(Log());
    const std::string saved = Scratch() + "\\a.b.log";
    headless::ExpectSaveFile("Save As", saved);
    Choose(*form_, mnuFile_SaveAs);
    EXPECT_EQ(headless::LastFileDialog().flags, 6u);
    EXPECT_EQ(headless::LastFileDialog().fileName, "save.log");
    EXPECT_EQ(ShownText(Status()), "File has been saved");
    EXPECT_EQ(
        FileBytes(saved),
        "[~ Filtered by QUIRN v1.61 ~]\r\n{1}   Bo> one\r\n{2} P Cy> two\r\n{4}   Welcome\r\n{6}   Cy> four BO\r\n");
    EXPECT_EQ(form_->MenuBar()->Find(mnuFileMRU)->caption, "&1 " + saved);
    EXPECT_EQ(form_->MenuBar()->Find(mnuFileMRU + 1)->caption, "&2 " + path_);
    Choose(*form_, mnuOptions_LineNums);
    Choose(*form_, mnuFileMRU);
    EXPECT_EQ(form_->Caption(), kTitleText + " - a.b.log");
    EXPECT_EQ(Shown(Log()), (Lines{"  Bo> one", "P Cy> two", "  Welcome", "  Cy> four BO"}));
    headless::ExpectSaveFile("Save As", std::nullopt);
    Choose(*form_, mnuFile_SaveAs);
    EXPECT_EQ(ShownText(Status()), "Log file has been loaded");

    SetReadOnly(saved);
    Open(path_);
    headless::ExpectSaveFile("Save As", saved);
    ExpectMessage("Error # 75 was generated by QUIRN\rPath/File access error", kPlain, Answer::Ok, "Error");
    Choose(*form_, mnuFile_SaveAs);
    EXPECT_EQ(ShownText(Status()), "Log file has been loaded");
    EXPECT_EQ(edit_.LogMRU[0], path_) << "a file that was not written is no recent file";
}

TEST_F(LogEditTest, TheSearchGoesDownAndSaysWhenItCannotMove) {
    std::string log;
    for (int i = 0; i < 300; ++i) log += i % 100 == 95 ? "  Bob> stop\r\n" : "  Ann> go on\r\n";
    PutFile(path_, log);
    Open(path_);
    edit_.lastSearch = "BOB>";
    for (const size_t hit : {95u, 195u, 295u}) {
        quirn::test::Press(*form_, kKeyF3);
        EXPECT_EQ(ShownTop(Log()) == hit, hit < 295) << "the last lines fill the list";
        EXPECT_EQ(Log().Current(), hit);
    }
    const size_t last = ShownTop(Log());
    EXPECT_EQ(Log().Selection().SelectedCount(), 3u);
    ExpectMessage("Cannot find 'BOB>'", kInformation);
    quirn::test::Press(*form_, kKeyF3);
    EXPECT_EQ(ShownTop(Log()), last);
    Log().SetTopIndex(0);
    Log().SetCurrent(std::nullopt);
    edit_.lastSearch = "ann";  // the first line has it, but the list need not move
    ExpectMessage("Cannot find 'ann'", kInformation);
    quirn::test::Press(*form_, kKeyF3);
    EXPECT_TRUE(Log().Selection().IsSelected(0));
}

TEST_F(LogEditTest, TheLookIsKeptAndBroughtBack) {
    const Bounds screen = ScreenArea();
    EXPECT_NEAR(form_->Place().left, (screen.width - form_->Place().width) / 2, 15);
    EXPECT_NEAR(form_->Place().top, (screen.height - form_->Place().height) / 2, 15);
    Open(path_);
    ClickItem(Log(), 2);
    headless::ExpectFont(Font{.face = "Courier New", .points = 14, .bold = true, .underline = true});
    ChooseFromPopup(Log(), 1);
    EXPECT_EQ(headless::LastFontAsked(), (Font{.face = "Courier New", .points = 9}));
    EXPECT_TRUE(Log().Selection().IsSelected(2));
    headless::ExpectColor(0x123456);
    Choose(*form_, mnuOptions_Color_Foreground);
    headless::ExpectColor(std::nullopt);
    Choose(*form_, mnuOptions_Color_Background);
    EXPECT_EQ(headless::LastColorAsked(), 0xFFFFFFu);
    form_->Move({300, 450, 12300, 9300});
    Choose(*form_, mnuFile_Close);
    EXPECT_FALSE(form_->IsLoaded());
    const auto stored = [](const char* key) { return GetSetting("Settings", key, "?"); };
    EXPECT_EQ(stored("LogEditLeft"), "300");
    EXPECT_EQ(stored("LogEditTop"), "450");
    EXPECT_EQ(stored("LogEditWidth"), "12300");
    EXPECT_EQ(stored("LogEditHeight"), "9300");
    EXPECT_EQ(stored("LogEditFontName"), "Courier New");
    EXPECT_EQ(stored("LogEditFontSize"), "14");
    EXPECT_EQ(stored("LogEditFontBold"), "-1");
    EXPECT_EQ(stored("LogEditFontItalic"), "0");
    EXPECT_EQ(stored("LogEditForeColor"), "1193046");
    EXPECT_EQ(stored("LogEditBackColor"), "-2147483643");
    EXPECT_EQ(GetSetting("MRUList", "LogMRU0", "?"), path_);
    EXPECT_EQ(GetSetting("MRUList", "LogMRU4", "?"), "");

    SaveSetting("Settings", "LogEditFontItalic", "True");
    SaveSetting("Settings", "LogEditFontSize", "huge");
    SaveSetting("Settings", "LogEditBackColor", "255");
    Start();
    EXPECT_EQ(form_->Place(), (Bounds{300, 450, 12300, 9300}));
    EXPECT_EQ(Log().FontUsed(), (Font{.face = "Courier New", .points = 9, .bold = true, .italic = true}));
    EXPECT_EQ(Log().ForeColor(), 0x123456u);
    EXPECT_EQ(Log().BackColor(), 255u);
    EXPECT_EQ(form_->MenuBar()->Find(mnuFileMRU)->caption, "&1 " + path_);
    EXPECT_TRUE(form_->MenuBar()->Find(mnuFileBarMRU)->visible);
    EXPECT_FALSE(form_->MenuBar()->Find(mnuFileMRU + 1)->visible);
    EXPECT_EQ(Log().Count(), 0u);
}

TEST_F(LogEditTest, LinesCanHaveTheColorsOfTheirKinds) {
    const auto luminance = [](Color color) {
        double sum = 0;
        for (const auto& [shift, weight] : {std::pair{0, 0.2126}, {8, 0.7152}, {16, 0.0722}}) {
            const double part = (color >> shift & 255) / 255.0;
            sum += weight * (part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4));
        }
        return sum + 0.05;
    };
    Open(path_);
    EXPECT_EQ(Log().itemColor(0, 0), std::nullopt);
    Choose(*form_, mnuView_Colors);
    std::set<Color> onBlack;
    for (size_t item = 0; item < 4; ++item) onBlack.insert(Log().itemColor(item, 0).value_or(0));
    EXPECT_EQ(onBlack.size(), 4u) << "four kinds";
    EXPECT_EQ(Log().itemColor(2, 0), Rgb(230, 222, 0)) << "can be read as it is";
    for (unsigned part = 0; part < 16 * 16 * 16; ++part) {
        const Color back = Rgb((part >> 8) * 17, (part >> 4 & 15) * 17, (part & 15) * 17);
        for (uint32_t type = kPublic; type <= kChannel4; type *= 2) {
            const double line = luminance(ColorOfType(type, back).value_or(back));
            ASSERT_GE(std::max(line, luminance(back)) / std::min(line, luminance(back)), 4.5) << back << ' ' << type;
        }
    }
    EXPECT_EQ(ColorOfType(kUnknown, 0), std::nullopt);

    const std::optional<Color> stored = Log().ForeColor();
    form_->Unload();
    Start();
    EXPECT_TRUE(form_->MenuBar()->Find(mnuView_Colors)->checked) << "it is kept";
    EXPECT_EQ(Log().ForeColor(), stored);
}

// The object stays when its window goes: a routine of it may still be waiting.
TEST_F(LogEditTest, AWindowOpenedAgainStartsAnew) {
    Open(path_);
    Tick("System messages");
    Choose(*form_, mnuOptions_Apply);
    Choose(*form_, mnuOptions_LineNums);
    form_->Unload();
    edit_.Forget();
    form_->Show();
    EXPECT_EQ(form_->Caption(), kTitleText);
    EXPECT_EQ(Log().Count() + List("Include").Count(), 0u);
    EXPECT_EQ(ShownText(Find<Label>(*form_, "Include")), "Include :");
    EXPECT_EQ(ShownSecondText(Status()), "");
    EXPECT_TRUE(ShownChecked(Find<CheckBox>(*form_, "System messages")));
    EXPECT_FALSE(form_->MenuBar()->Find(mnuOptions_Apply)->checked ||
                 form_->MenuBar()->Find(mnuOptions_LineNums)->checked);
    Open(path_);
    EXPECT_EQ(Shown(Log()), (Lines{"  Bo> one", "P Cy> two", "T Ann> three", "  Welcome", "  Cy> four BO"}));
}

TEST_F(LogEditTest, TheFindDialogSearchesWithEnterAndStaysOnScreen) {
    Lines searched;
    std::string last = "old";
    frmLogFind find([&](const std::string& text) { searched.push_back(text); }, last);
    for (const int left : {0, ScreenArea().width - 12000}) {
        form_->Move({left, 0, 10950, 8100});
        find.Open(*form_);
        const int right = WorkArea(*form_).Right();
        EXPECT_EQ(find.Place().left,
                  left == 0 && 10950 + find.Place().width <= right ? 10950 : right - find.Place().width);
        TextBox& text = Find<TextBox>(find, "old");
        Button& next = Find<Button>(find, "&Find Next");
        EXPECT_TRUE(text.HasFocus() && next.Enabled());
        text.UserEdits("");
        EXPECT_FALSE(next.Enabled());
        quirn::test::Press(find, kKeyEnter);
        Type(text, "new");
        quirn::test::Press(find, kKeyEnter);
        Click(next);
        quirn::test::Press(find, kKeyEscape);
        EXPECT_FALSE(find.IsLoaded());
        EXPECT_EQ(searched, (Lines{"", "new", "new"}));
        searched.clear();
    }
}

}  // namespace
}  // namespace quirn::test
