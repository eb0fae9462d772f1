#pragma once

#include <windows.h>

#include <optional>

#include "platform/native.h"
#include "platform/win32/window.h"

// What makes one kind of control different from the others on Windows: a row of functions, in the file of the kind.
namespace quirn {

namespace win32 {

// What a control's window is made with.
struct Look {
    const char* className;
    DWORD style = 0;
    DWORD extendedStyle = 0;
    DWORD commonClass = 0;      // to be registered before the first use
    bool seesMouse = false;     // its messages come through here though it takes no focus
    bool liesOver = false;      // when it appears it lies over whatever is there
    bool framesOthers = false;  // it lies above what is in it
    bool holdsLine = false;     // one line of text, at the top of its window
};

struct Message {
    HWND window;
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
};

// What the window would do with the message by itself.
LRESULT Pass(const Message& m);
WNDPROC OwnProcedure(HWND window);  // that does it

}  // namespace win32

// A function that a kind has no use for is null.
struct native::Kind {
    win32::Look (*look)(Control&);
    void (*fill)(Control&) = nullptr;                // brings a new window up to the control's state
    void (*apply)(Control&, Aspect) = nullptr;       // beside what is done for all kinds
    void (*setFont)(Control&, HFONT) = nullptr;      // instead of what is done for all
    void (*command)(Control&, WORD code) = nullptr;  // WM_COMMAND
    std::optional<LRESULT> (*notify)(Control&, const NMHDR&) = nullptr;  // nothing is the default handling
    void (*draw)(Control&, const DRAWITEMSTRUCT&) = nullptr;
    std::optional<LRESULT> (*message)(Control&, const win32::Message&) = nullptr;  // before the window sees it
    void (*formResized)(Control&) = nullptr;
    bool holdsTexts = false;      // its background is that of texts and lists
    bool selectsOnFocus = false;  // as the Tab key does it
    int linesDropped = 0;         // so many times its height lies below its place
};

namespace win32 {

template <auto function>
struct ForKind;

template <class OfKind, class Answer, class... Rest, Answer (*function)(OfKind&, Rest...)>
struct ForKind<function> {
    static Answer Call(Control& control, Rest... rest) { return function(static_cast<OfKind&>(control), rest...); }
};

// A function for one kind of control as a row takes it; rows belong to their kinds, so that the cast is right.
template <auto function>
constexpr auto For = &ForKind<function>::Call;

}  // namespace win32

}  // namespace quirn
