#include <gtest/gtest.h>

#include <algorithm>
#include <typeinfo>

#include "auxiliary/frmabout.h"
#include "auxiliary/frmrelnotes.h"
#include "auxiliary/frmsplash.h"
#include "logedit/frmlogedit.h"
#include "mainwin/frmcompare.h"
#include "mainwin/frmconfig.h"
#include "mainwin/frmfriendcopy.h"
#include "mainwin/frmhistory.h"
#include "mainwin/frmlibrary.h"
#include "mainwin/frmmain.h"
#include "mainwin/frmoptions.h"
#include "mainwin/frmrename.h"
#include "mainwin/frmrunbox.h"
#include "mainwin/frmundo.h"
#include "mainwin/frmversions.h"
#include "platform/measures.h"
#include "tests/testing/profiles.h"
#include "tests/testing/userinput.h"

// No window shows a control outside of what it stands in, nor one across another.
namespace quirn {
namespace {

using namespace test;

std::string Name(const Control& control) {
    const Bounds& p = control.Place();
    return std::string(typeid(control).name()) + " \"" + control.Text() + "\" at " + std::to_string(p.left) + "," +
           std::to_string(p.top) + " size " + std::to_string(p.width) + "x" + std::to_string(p.height);
}

// Lies over what it covers, by intent, and takes along what is in it.
bool IsPanel(const Control* control) {
    const auto* frame = dynamic_cast<const Frame*>(control);
    return frame != nullptr && frame->Style() == FrameStyle::Panel;
}

bool MayCross(const Control& a, const Control& b) {
    if (a.SurroundingFrame() == &b || b.SurroundingFrame() == &a) return true;
    const auto inPanel = [](const Control& control) {
        return IsPanel(&control) || IsPanel(control.SurroundingFrame());
    };
    return inPanel(a) != inPanel(b);
}

void CheckControls(const Container& container, const Bounds& area, const std::string& where) {
    constexpr int kFrameBorder = 30;
    const auto& all = container.Controls();
    for (size_t i = 0; i < all.size(); ++i) {
        const Control& control = *all[i];
        if (!control.Visible() || dynamic_cast<const StatusBar*>(&control) != nullptr) continue;
        Bounds room = area;
        if (const Control* frame = control.SurroundingFrame()) {
            room = frame->Place();
            room = {room.left + kFrameBorder, room.top + kLabelHeight, room.width - 2 * kFrameBorder,
                    room.height - kLabelHeight - kFrameBorder};
        }
        EXPECT_TRUE(room.Holds(control.Place())) << where << ": outside: " << Name(control);
        for (size_t j = 0; j < i; ++j)
            EXPECT_TRUE(!all[j]->Visible() || MayCross(control, *all[j]) || !control.Place().Crosses(all[j]->Place()))
                << where << ": " << Name(control) << " crosses " << Name(*all[j]);
        for (const TabPage* page : control.Pages()) {
            const Bounds inside = page->Strip().PageArea();
            CheckControls(*page, {0, 0, inside.width, inside.height}, where + ", " + page->Caption());
        }
    }
}

// What a screen reader calls a control: its caption, its own name, or the label just before it.
void CheckNames(const Container& container, const std::string& where) {
    const Control* before = nullptr;
    for (const Control* control : container.Controls()) {
        const bool showsTyped =
            dynamic_cast<const TextBox*>(control) != nullptr || dynamic_cast<const MaskedBox*>(control) != nullptr;
        const bool named = !control->AccessibleName().empty() || (!control->Text().empty() && !showsTyped) ||
                           (dynamic_cast<const Label*>(before) != nullptr && !before->Text().empty());
        EXPECT_TRUE(named || !control->TakesFocus() || !control->Pages().empty()) << where << ": " << Name(*control);
        for (const TabPage* page : control->Pages()) CheckNames(*page, where + ", " + page->Caption());
        before = control;
    }
}

// A dialog ends as far to the right of what is in it, and below it, as that begins from its left edge.
void CheckMargins(const Form& form, const std::string& where) {
    int left = form.InnerWidth(), right = 0, bottom = 0;
    for (const Control* control : form.Controls()) {
        if (!control->Visible()) continue;
        const Bounds& place = control->Place();
        left = std::min(left, place.left);
        right = std::max(right, place.Right());
        bottom = std::max(bottom, place.Bottom());
    }
    constexpr int kPixel = 15;
    EXPECT_NEAR(form.InnerWidth() - right, left, kPixel) << where;
    EXPECT_NEAR(form.InnerHeight() - bottom, left, kPixel) << where;
}

void Check(const Form& form, const std::string& where) {
    CheckNames(form, where);
    Bounds area{0, 0, form.InnerWidth(), form.InnerHeight()};
    for (const Control* control : form.Controls())
        if (dynamic_cast<const StatusBar*>(control) != nullptr) area.height -= StatusBar::kHeight;
    CheckControls(form, area, where);
    if (form.Border() == FormBorder::Dialog) CheckMargins(form, where);
}

class LayoutsTest : public WorldTest {
protected:
    LayoutsTest() {
        program_.gameFolder = Scratch();
        PutFile(Scratch() + "\\favorite.lst", "Alpha Reach,a.example,5000\r\n-First\r\n");
        InitCatalogue(program_.profile);
    }

    // As it opens, and as small and as large as it can be made.
    template <class Window>
    static void CheckSizes(Window& form, const std::string& where) {
        Check(form, where);
        for (const Bounds& place : {Bounds{0, 0, form.MinimumWidth(), form.MinimumHeight()}, Bounds{0, 0, 15360, 11100},
                                    Bounds{0, 0, form.MinimumWidth(), 11100}}) {
            form.Move(place);
            Check(form, where + " " + std::to_string(place.width) + "x" + std::to_string(place.height));
        }
    }

    Program program_;
};

TEST_F(LayoutsTest, NothingStandsOutsideOrAcrossAnother) {
    frmMain main(program_);
    main.Load();
    Check(main, "main window");
    frmOptions options(program_, [] {});
    options.Load();
    Check(options, "options");
    TransferEntry entry;
    entry.gameFolder = "C:\\A rather long folder\\of the game that was there before";
    entry.note.profile = "C:\\a profile with a long name.qrn";
    frmUndo undo(entry, {{}, {}}, program_.gameFolder);
    undo.Load();
    Check(undo, "undo");
    const TransferLog log(Scratch());
    frmHistory history(log, {});
    history.Load();
    CheckSizes(history, "history");
    const ProfileVersions kept(Scratch(), entry.note.profile);
    frmVersions versions(entry.note.profile, kept, {});
    versions.Load();
    CheckSizes(versions, "earlier versions");
    frmFriendCopy copy;
    copy.Load();
    Check(copy, "copy for a friend");
    frmRename rename("DUEL.QRN");
    rename.Load();
    Check(rename, "rename");
    frmLibrary library({});
    library.Load();
    CheckSizes(library, "library");
    frmCompare compare({"Profile", "Game now", "Saved file"},
                       [&] {
                           return CompareSides{{"", program_.profile, {}}};
                       },
                       {{"Take Into &Profile", {}, {}}, {"Write Into &Game", {}, {}}});
    compare.Load();
    CheckSizes(compare, "compare");
    frmConfig config({});
    config.Load();
    Check(config, "config code");
    frmRunBox runBox;
    runBox.Load();
    Check(runBox, "run box");
    frmSplash splash;
    splash.Load();
    Check(splash, "splash");
    frmAbout about;
    about.Load();
    Check(about, "about");
    for (const char key : std::string("zantek")) about.UserTypes(key);
    Check(about, "about, with the hidden quote");
    frmRelNotes notes;
    notes.Load();
    CheckSizes(notes, "notes");
    LogEdit edit;
    frmLogEdit logEditor(program_.gameFolder, edit);
    logEditor.Load();
    CheckSizes(logEditor, "log editor");
    frmLogFind find([](const std::string&) {}, edit.lastSearch);
    find.Open(logEditor);
    Check(find, "find");
    find.Unload();
    frmLogStatistics statistics([](bool) { return std::vector<PlayerStatistics>(); }, [] { return std::string(); }, {});
    statistics.Load();
    CheckSizes(statistics, "player statistics");
}

TEST_F(LayoutsTest, WhatIsInAFrameMovesWithIt) {
    Form form(FormBorder::Sizable, 9000, 6000);
    VirtualList list(form, {150, 120, 8000, 4000}, "List");
    ProgressFrame progress(form, list);
    for (const int top : {120, 600}) {
        list.Move({150, top, 8000, 4000});
        progress.Show("Working", 1);
        Check(form, "progress");
        EXPECT_EQ(form.Controls()[1]->Place().top, top + (4000 - 900) / 2);
    }
}

}  // namespace
}  // namespace quirn
