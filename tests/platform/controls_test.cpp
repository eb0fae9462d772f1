#include <new>
#include <string>
#include <utility>
#include <vector>

#include "tests/testing/userinput.h"
#include "tests/testing/world.h"

// Forms and controls as a form's code and the player see them, with and without real windows.
namespace quirn::test {
namespace {

using Log = std::vector<std::string>;

// One control of every kind that the player can change; what their handlers are told goes into a log.
struct TestForm : Form {
    Log log;
    bool canUndo = true;
    Menu menu{
        {{1, 0, "&File"},
         {2, 1, "&New", "Ctrl+N", "Begins anew", [this] { log.push_back("new"); }},
         {40, 1, "&Undo", "Ctrl+Shift+N", "Goes back", [this] { log.push_back("undo"); }, [this] { return canUndo; }},
         {3, 1, "-"},
         {4, 1, "Recent", "", "", [this] { log.push_back("recent"); }},
         {5, 0, "&Help"},
         {6, 1, "&About...", "F1", "", [this] { log.push_back("about"); }}}};
    TabStrip strip{*this, {0, 0, 6000, 4000}};
    TabPage front{strip, "Front"}, back{strip, "Back"};
    TextBox name{front, {0, 0, 1500, 315}, "Bo"};
    CheckBox check{front, {0, 400, 1500, 255}, "&Check"};
    Frame frame{front, {2000, 0, 2000, 1500}, "Group"};
    OptionGroup group;
    OptionButton small{frame, group, {120, 300, 1500, 255}, "Small"},
        large{frame, group, {120, 600, 1500, 255}, "Large"};
    ComboBox combo{front, {0, 800, 1500, 315}};
    ListBox list{front, {0, 1200, 1500, 900}, ListStyle::Extended};
    TextBox number{front, {0, 2200, 600, 315}, "5"};
    UpDown arrows{front, number, 1, 10};
    TextBox later{back, {0, 0, 1500, 315}, "first"};
    CheckBox laterCheck{back, {0, 400, 1500, 255}, "Later"};
    ComboBox laterCombo{back, {0, 800, 1500, 315}};
    MaskedBox part{back, {0, 1200, 600, 315}, "999"}, code{back, {0, 1600, 1800, 315}, "&&&&-&&&&-&&&&"};
    Button ok{*this, {0, 4100, 900, 375}, "OK"}, cancel{*this, {1000, 4100, 900, 375}, "Cancel"};

    TestForm() : Form(FormBorder::Fixed, 6300, 5600) {
        SetMenu(menu);
        menu.onHighlight = [this](const char* help) { log.push_back(std::string("over ") + help); };
        combo.SetItems({"Alpha", "Beta", "Gamma"});
        laterCombo.SetItems({"Alpha", "Beta"});
        list.SetItems({"one", "two", "three"});
        for (TextBox* box : {&name, &number, &later}) box->onChange = [this, box] { log.push_back(box->Text()); };
        for (MaskedBox* box : {&part, &code}) box->onChange = [this, box] { log.push_back(box->Text()); };
        check.onClick = [this] { Tell("check", check.Value()); };
        check.onMouseUp = [this] { log.push_back("up"); };
        group.onClick = [this] { Tell("group", group.Selected()); };
        combo.onClick = [this] { Tell("combo", combo.ListIndex()); };
        list.onClick = [this] { Tell("list", static_cast<int>(list.SelectedItems().size())); };
        strip.onClick = [this] { Tell("page", strip.Tab()); };
        ok.onClick = [this] { log.push_back("ok"); };
        cancel.onClick = [this] { log.push_back("cancel"); };
    }

    void Tell(const std::string& what, int number_) { log.push_back(what + " " + std::to_string(number_)); }
    Log Take() { return std::exchange(log, {}); }
};

class ControlsTest : public WorldTest {};

TEST_F(ControlsTest, AFormIsBlockedUntilItIsLoaded) {
    TestForm form;
    form.onLoad = [&] { EXPECT_TRUE(form.IsBlocked()); };
    form.Load();
    EXPECT_FALSE(form.IsBlocked());
}

TEST_F(ControlsTest, SettersTellNobodyAndEditsTellOnce) {
    TestForm form;
    for (const bool shown : {false, true}) {
        if (shown) form.Show();
        form.name.SetText(shown ? "Cy" : "Al");
        form.check.SetValue(1);
        form.group.Select(shown ? 1 : 0);
        form.combo.SetListIndex(shown ? 2 : 1);
        form.list.Select(1, true);
        form.list.AddItem("four");
        form.strip.SetTab(shown ? 0 : 1);
        form.strip.SetTab(0);
        form.part.SetText("not digits");
        EXPECT_EQ(form.Take(), Log{}) << shown;
    }
    EXPECT_EQ(ShownText(form.name), "Cy");
    EXPECT_TRUE(ShownChecked(form.check) && ShownChecked(form.large) && !ShownChecked(form.small));
    EXPECT_EQ(ShownIndex(form.combo), 2);

    Type(form.name, "!");
    Click(form.check);
    Click(form.small);
    Click(form.small);
    Choose(form.combo, 0);
    Choose(form.combo, 0);
    Choose(form.list, {0, 2});
    EXPECT_EQ(form.Take(), (Log{"Cy!", "check 0", "up", "group 0", "combo 0", "list 2"}));
    EXPECT_FALSE(ShownChecked(form.check));
    EXPECT_EQ(form.list.SelectedItems(), (std::vector<int>{0, 2}));
    form.list.RemoveSelected();
    EXPECT_EQ(form.list.Items(), (std::vector<std::string>{"two", "four", "four"}));
}

TEST_F(ControlsTest, NoSelectionStaysNoneUntilThePlayerClicks) {
    TestForm form;
    form.group.Select(7);
    form.combo.SetListIndex(7);
    form.Show();
    EXPECT_EQ(form.group.Selected(), -1);
    EXPECT_EQ(ShownIndex(form.combo), -1);
    form.small.SetFocus();  // getting the keyboard selects nothing
    EXPECT_EQ(form.group.Selected(), -1);
    EXPECT_FALSE(ShownChecked(form.small));
    EXPECT_EQ(form.Take(), Log{});
    Click(form.small);
    EXPECT_EQ(form.Take(), Log{"group 0"});
}

TEST_F(ControlsTest, AHandlerThatGetsNoMemoryEndsNothing) {
    TestForm form;
    form.check.onClick = [] { throw std::bad_alloc(); };
    form.Show();
    ExpectMessage("Error # 7 was generated by QUIRN\rOut of memory", kPlain, Answer::Ok, "Error");
    Click(form.check);
    EXPECT_TRUE(form.IsLoaded() && ShownChecked(form.check));
}

TEST_F(ControlsTest, ATypedTextCanBeSwallowed) {
    TestForm form;
    form.name.onKeyPress = [](char c) { return c == '%'; };
    form.Show();
    Type(form.name, "%x");
    EXPECT_EQ(form.name.Text(), "Box");
    EXPECT_EQ(form.Take(), Log{"Box"});
}

TEST_F(ControlsTest, ArrowsStopAtTheirBoundsAndKeepTypedNumbers) {
    TestForm form;
    form.Show();
    Spin(form.arrows, 6);
    EXPECT_EQ(form.number.Text(), "10");
    EXPECT_EQ(form.Take().size(), 5u);
    Type(form.number, "0");
    EXPECT_EQ(form.number.Text(), "100");
    Spin(form.arrows, -1);
    EXPECT_EQ(form.number.Text(), "10");
    form.number.SetText("-99999999999999");
    Spin(form.arrows, -1);
    EXPECT_EQ(form.number.Text(), "1");
    EXPECT_EQ(ShownText(form.number), "1");
}

TEST_F(ControlsTest, AMaskKeepsItsFixedCharacters) {
    TestForm form;
    form.strip.SetTab(1);
    form.Show();
    const std::string empty = "____-____-____";
    EXPECT_EQ(ShownText(form.code), empty);
    struct Case {
        std::string before, typed;
        size_t caret, caretAfter;
        std::string after;
    };
    const std::string back(1, MaskedBox::kBackspace), erase(1, MaskedBox::kDelete);
    for (const Case& c :
         {Case{empty, "abcde", 0, 6, "abcd-e___-____"}, Case{empty, "x", 4, 6, "____-x___-____"},
          Case{empty, "GZZZ-ZZZZ-ZZZ0", 0, 14, "GZZZ-ZZZZ-ZZZ0"}, Case{empty, "-x", 4, 6, "____-x___-____"},
          Case{"abcd-efgh-ijkl", "z", 14, 14, "abcd-efgh-ijkl"}, Case{"abcd-efgh-ijkl", "z", 1, 2, "azcd-efgh-ijkl"},
          Case{"abcd-e___-____", back + back, 6, 3, "abc_-____-____"},
          Case{"abcd-efgh-ijkl", erase, 4, 4, "abcd-_fgh-ijkl"}, Case{empty, back, 0, 0, empty},
          Case{"ab", "z", 2, 3, "abz_-____-____"}}) {
        form.code.SetText(c.before);
        EXPECT_EQ(Type(form.code, c.typed, c.caret), c.caretAfter) << c.before << " + " << c.typed;
        EXPECT_EQ(form.code.Text(), c.after);
        EXPECT_EQ(ShownText(form.code), c.after);
    }
    form.Take();
    for (const char* text : {"abcd-efgh-ijkl", "abcdefghijkl", " abcd efgh\r\n-ijkl\r\n", "abcd-efghijklmnop"}) {
        form.code.Clear();
        Paste(form.code, text, 0);
        EXPECT_EQ(form.code.Text(), "abcd-efgh-ijkl") << text;
    }
    EXPECT_EQ(form.Take(), Log(4, "abcd-efgh-ijkl"));

    EXPECT_EQ(Type(form.part, "1a23456", 0), 3u);
    EXPECT_EQ(form.Take(), (Log{"1", "12", "123"}));
    Type(form.part, back, 2);
    EXPECT_EQ(form.part.Text(), "13");
    form.part.Clear();
    EXPECT_EQ(Paste(form.part, "x1.92.168", 0), 3u);
    EXPECT_EQ(form.part.Text(), "192");
}

TEST_F(ControlsTest, APageThatWasNeverSeenHasNoWindowsButKeepsState) {
    TestForm form;
    form.Show();
    form.later.SetText("second");
    form.laterCheck.SetValue(1);
    form.laterCombo.SetListIndex(1);
    EXPECT_EQ(form.later.window, nullptr);
    form.later.SetFocus();
    EXPECT_FALSE(form.later.HasFocus());
    TurnTo(form.strip, 1);
    ASSERT_NE(form.later.window, nullptr);
    EXPECT_EQ(ShownText(form.later), "second");
    EXPECT_TRUE(ShownChecked(form.laterCheck));
    EXPECT_EQ(ShownIndex(form.laterCombo), 1);
    Type(form.later, "!");
    TurnTo(form.strip, 0);
    form.laterCheck.SetValue(0);
    EXPECT_TRUE(form.Unload());
    EXPECT_EQ(form.Take(), (Log{"page 1", "second!", "page 0"}));
    EXPECT_EQ(form.later.window, nullptr);
    form.Show();  // loaded anew, it shows what it showed
    TurnTo(form.strip, 1);
    EXPECT_EQ(ShownText(form.later), "second!");
    EXPECT_FALSE(ShownChecked(form.laterCheck));
}

TEST_F(ControlsTest, TheFocusGoesWhereItIsSeen) {
    TestForm form;
    form.name.onLostFocus = [&] { form.log.push_back("lost"); };
    form.check.onGotFocus = [&] { form.log.push_back("got"); };
    form.Show();
    EXPECT_TRUE(form.name.HasFocus());
    form.check.SetFocus();
    EXPECT_EQ(form.Take(), (Log{"lost", "got"}));
    form.check.SetVisible(false);
    EXPECT_TRUE(form.small.HasFocus());
    form.small.SetEnabled(false);
    EXPECT_TRUE(form.large.HasFocus());
    Press(form, kKeyTab, true);
    EXPECT_TRUE(form.later.HasFocus());
    Press(form, kKeyTab, true);
    EXPECT_TRUE(form.name.HasFocus());
    EXPECT_EQ(form.Take(), (Log{"page 1", "page 0"}));
}

TEST_F(ControlsTest, AMinimisedFormTurnsNoPageAndKeepsNoFocusInAHiddenOne) {
    TestForm form;
    form.Show();
    form.name.SetFocus();
    form.WindowMinimized(true);
    EXPECT_FALSE(form.UserTurnsPage(1));
    form.strip.SetTab(1);
    EXPECT_TRUE(form.later.HasFocus());
}

TEST_F(ControlsTest, AGreyCommandIsReachedByNoWay) {
    TestForm form;
    form.Show();
    form.name.SetFocus();
    EXPECT_TRUE(ShownEnabled(form, 40));
    Press(form, 'N', true, true);
    EXPECT_EQ(form.Take(), Log{"undo"});
    form.canUndo = false;
    EXPECT_FALSE(ShownEnabled(form, 40));
    EXPECT_TRUE(ShownEnabled(form, 2));
    Press(form, 'N', true, true);
    Choose(form, 40);
    EXPECT_EQ(form.Take(), Log{});
    form.canUndo = true;
    EXPECT_TRUE(ShownEnabled(form, 40));

    EXPECT_EQ(KeyOf("Ctrl+Shift+Z"), (KeyStroke{'Z', true, true}));
    EXPECT_EQ(KeyOf("F9"), KeyStroke{kKeyF1 + 8});
    EXPECT_EQ(KeyOf("Del"), KeyStroke{kKeyDelete});
    EXPECT_EQ(KeyOf("Ctrl+F"), (KeyStroke{'F', true}));
}

TEST_F(ControlsTest, MenusTellOfItemsOnlyAndEnterAndEscapeAreNoCommands) {
    TestForm form;
    form.menu.SetVisible(4, false);
    form.Show();
    PointAt(form, MenuPart::Item, 2);
    PointAt(form, MenuPart::Heading, 2);
    PointAt(form, MenuPart::Separator, 3);
    PointAt(form, MenuPart::Nothing, 0);
    EXPECT_EQ(form.Take(), (Log{"over Begins anew", "over ", "over ", "over "}));
    Choose(form, 2);
    Choose(form, 3);
    Choose(form, 4);
    EXPECT_EQ(form.Take(), Log{"new"});
    form.name.SetFocus();
    Press(form, kKeyEnter);
    Press(form, kKeyEscape);
    EXPECT_EQ(form.Take(), Log{});
    Press(form, 'N', true);
    Press(form, kKeyF1);
    EXPECT_EQ(form.Take(), (Log{"new", "about"}));
    form.SetButtons(&form.ok, &form.cancel);
    Press(form, kKeyEnter);
    Press(form, kKeyEscape);
    form.cancel.SetFocus();
    Press(form, kKeyEnter);
    EXPECT_EQ(form.Take(), (Log{"ok", "cancel", "cancel"}));
    form.list.onKeyPress = [&](char key) {
        form.Tell("key", key);
        return true;
    };
    form.list.SetFocus();
    Press(form, kKeyEnter);
    Press(form, kKeyEscape);
    EXPECT_EQ(form.Take(), (Log{"key 13", "key 27"}));
}

TEST_F(ControlsTest, AModalFormWaitsForItsAnswer) {
    TestForm owner;
    owner.Show();
    owner.check.SetFocus();
    std::string answer;
    TestForm dialog;
    dialog.SetButtons(&dialog.ok, &dialog.cancel);
    dialog.ok.onClick = [&] {
        answer = dialog.name.Text();
        dialog.Unload();
    };
    dialog.onQueryUnload = [&](UnloadMode mode) { return mode != UnloadMode::CloseBox; };
    Later([&] {
        Close(dialog);
        EXPECT_TRUE(dialog.Visible());
        Type(dialog.name, "x");
        Press(dialog, kKeyEnter);
    });
    dialog.ShowModal(owner);
    EXPECT_EQ(answer, "Box");
    EXPECT_FALSE(dialog.IsLoaded());
    Later([&] { dialog.Hide(); });
    dialog.ShowModal(owner);
    EXPECT_TRUE(dialog.IsLoaded() && !dialog.Visible());
    EXPECT_TRUE(owner.check.HasFocus());
    Click(owner.check);
    EXPECT_EQ(owner.Take(), (Log{"check 1", "up"}));
}

}  // namespace
}  // namespace quirn::test
