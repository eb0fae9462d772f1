#include <windows.h>

#include <shellapi.h>  // these need windows.h first
#include <shlobj.h>

#include <array>
#include <atomic>
#include <cstring>
#include <thread>

#include "platform/form.h"
#include "platform/tray.h"
#include "platform/win32/metrics.h"
#include "platform/win32/window.h"
#include "tests/testing/world.h"

// What other programs send to the windows, and keys that only the system's own dialog keys know.
namespace quirn::test {
namespace {

using Paths = std::vector<std::string>;

class EventsTest : public WorldTest {
protected:
    EventsTest() {
        form_.SetMenu(menu_);
        form_.onDropFiles = [this](const Paths& paths) { dropped_ = paths; };
        form_.Show();
        DoEvents();
    }

    HWND Window() const { return win32::WindowOf(form_); }

    // As another program's thread sends it; returns when it has been answered.
    template <class Wait>
    void Sent(UINT message, WPARAM wParam, LPARAM lParam, Wait wait) {
        std::atomic<bool> answered = false;
        std::thread other([&answered, message, wParam, lParam, window = Window()] {
            SendMessageTimeoutA(window, message, wParam, lParam, SMTO_NORMAL, 5000, nullptr);
            answered = true;
            PostMessageA(window, WM_NULL, 0, 0);
        });
        while (!answered) {
            MsgWaitForMultipleObjects(0, nullptr, FALSE, 100, QS_SENDMESSAGE);
            wait();
        }
        other.join();
    }

    Form form_{FormBorder::Fixed, 6000, 4000};
    Menu menu_{{{1, 0, "&File"}, {2, 1, "&New", "", "", [this] { ++news_; }}}};
    TextBox box_{form_, {0, 0, 1500, 315}};
    int news_ = 0;
    Paths dropped_;
};

// The DPI itself cannot be changed from in here: what is seen is that the window follows, and every control with it.
TEST_F(EventsTest, AChangeOfDpiPlacesTheWindowAndItsControlsAnew) {
    const HWND box = win32::WindowOf(box_);
    RECT before{};
    GetWindowRect(box, &before);
    MoveWindow(box, 77, 55, 33, 11, FALSE);
    RECT place{40, 50, 540, 400};
    SendMessageA(Window(), WM_DPICHANGED, MAKEWPARAM(96, 96), reinterpret_cast<LPARAM>(&place));
    RECT after{};
    GetWindowRect(box, &after);
    EXPECT_EQ(after.right - after.left, before.right - before.left);
    GetWindowRect(Window(), &after);
    EXPECT_TRUE(EqualRect(&after, &place)) << after.left << ' ' << after.right;
    EXPECT_EQ(form_.Place().width, 500 * 1440 / win32::DpiOf(Window()));
}

// A notice that goes while another window is in front, say.
TEST_F(EventsTest, AFocusThatMovesInAFormBehindLeavesItThere) {
    TextBox other(form_, {0, 600, 1500, 315});
    other.SetFocus();
    Form front(FormBorder::Fixed, 3000, 2000);
    const TextBox inFront(front, {0, 0, 1500, 315});
    front.Show();
    SetActiveWindow(win32::WindowOf(front));  // and no events: the display may have its own wish in them
    other.SetVisible(false);
    EXPECT_EQ(GetActiveWindow(), win32::WindowOf(front));
    EXPECT_EQ(GetFocus(), win32::WindowOf(inFront));
    EXPECT_TRUE(box_.HasFocus());
    SetActiveWindow(Window());
    EXPECT_EQ(GetFocus(), win32::WindowOf(box_));
}

Menu* changing;

void CALLBACK ChangeMenu(HWND, UINT, UINT_PTR, DWORD) {
    changing->SetCaption(2, "Newer");
}

// A file that is dropped while the File menu is open changes the recent files in it.
TEST_F(EventsTest, AMenuThatChangesWhileItIsOpenClosesAndShowsTheChange) {
    changing = &menu_;
    const UINT_PTR timer = SetTimer(nullptr, 0, 200, ChangeMenu);
    SendMessageA(Window(), WM_SYSCOMMAND, SC_KEYMENU, 'f');  // returns when the menu has closed
    KillTimer(nullptr, timer);
    std::array<char, 20> caption{};
    GetMenuStringA(GetSubMenu(GetMenu(Window()), 0), 0, caption.data(), static_cast<int>(caption.size()),
                   MF_BYPOSITION);
    EXPECT_STREQ(caption.data(), "Newer");
}

TEST_F(EventsTest, WhatIsSentWaitsUntilNothingElseIsUnderWay) {
    TrayIcon icon(form_, "Tip");
    icon.Add();
    int pointed = 0;
    bool inTheMiddle = false;
    icon.onMouse = [&](unsigned) {
        ++pointed;
        inTheMiddle |= InSendMessage() != FALSE;
    };
    Sent(win32::kTrayMessage, 100, kMouseLeftDoubleClick, DoPaintEvents);
    EXPECT_EQ(pointed, 0) << "in the middle of painting";
    DoEvents();
    EXPECT_EQ(pointed, 1);
    Sent(win32::kTrayMessage, 100, kMouseLeftDoubleClick, DoEvents);
    DoEvents();
    EXPECT_EQ(pointed, 2);
    EXPECT_FALSE(inTheMiddle);

    Sent(WM_COMMAND, 2, 0, DoPaintEvents);
    EXPECT_EQ(news_, 0);
    DoEvents();
    EXPECT_EQ(news_, 1);
    Sent(WM_QUERYENDSESSION, 0, 0, DoPaintEvents);
    EXPECT_TRUE(form_.IsLoaded());
    DoEvents();
    EXPECT_FALSE(form_.IsLoaded());
}

TEST_F(EventsTest, ADropActivatesItsFormForWhatThatMayAsk) {
    Form other(FormBorder::Fixed, 3000, 2000);
    other.Show();
    DoEvents();
    const char paths[] = "C:\\x.qrn\0C:\\y.qrn\0";
    const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE | GMEM_ZEROINIT, sizeof(DROPFILES) + sizeof(paths));
    auto* files = static_cast<DROPFILES*>(GlobalLock(memory));
    files->pFiles = sizeof(DROPFILES);
    std::memcpy(files + 1, paths, sizeof(paths));
    GlobalUnlock(memory);
    HWND active = nullptr;
    form_.onDropFiles = [&](const Paths& dropped) {
        dropped_ = dropped;
        active = GetActiveWindow();
    };
    PostMessageA(Window(), WM_DROPFILES, reinterpret_cast<WPARAM>(memory), 0);
    DoEvents();
    EXPECT_EQ(dropped_, (Paths{"C:\\x.qrn", "C:\\y.qrn"}));
    EXPECT_EQ(active, Window());
}

TEST_F(EventsTest, EscapeIsNoCommandWhateverIsHeldWithIt) {
    std::array<BYTE, 256> keys{};
    keys[VK_CONTROL] = keys[VK_MENU] = 0x80;
    SetKeyboardState(keys.data());
    for (const WPARAM key : {VK_ESCAPE, VK_RETURN, VK_CANCEL, VK_EXECUTE})
        PostMessageA(win32::WindowOf(box_), WM_KEYDOWN, key, 0);
    DoEvents();
    keys.fill(0);
    SetKeyboardState(keys.data());
    EXPECT_EQ(news_, 0);
}

TEST_F(EventsTest, AMaximisedWindowThatIsShownAgainStaysSo) {
    Form sizable(FormBorder::Sizable, 6000, 4000);
    sizable.Show();
    ShowWindow(win32::WindowOf(sizable), SW_MAXIMIZE);
    sizable.Show();
    EXPECT_TRUE(IsZoomed(win32::WindowOf(sizable)));
}

}  // namespace
}  // namespace quirn::test
