#include <windows.h>

#include "platform/win32/window.h"

// While the list is open, moving in it only highlights; a choice is what the list is closed with.
namespace quirn::win32 {

namespace {

// What the player was last told of.
struct Highlight {
    const ComboBox* box = nullptr;
    int index = -1;
};
Highlight highlight;

void Report(ComboBox& box, int index) {
    if (highlight.box != &box || highlight.index == index) return;
    highlight.index = index;
    box.UserHighlights(index);
}

int Current(const ComboBox& box) {
    return static_cast<int>(SendMessageA(WindowOf(box), CB_GETCURSEL, 0, 0));
}

bool IsOpen(const ComboBox& box) {
    return SendMessageA(WindowOf(box), CB_GETDROPPEDSTATE, 0, 0) != FALSE;
}

}  // namespace

void ComboBoxCommand(ComboBox& box, WORD code) {
    switch (code) {
        case CBN_DROPDOWN: highlight = {&box, box.ListIndex()}; break;
        case CBN_SELENDOK:
            Report(box, Current(box));
            highlight = {};
            box.UserSelects(Current(box));
            break;
        case CBN_SELCHANGE:
            if (!IsOpen(box)) box.UserSelects(Current(box));
            break;
        case CBN_SELENDCANCEL:
            if (Current(box) != box.ListIndex())
                SendMessageA(WindowOf(box), CB_SETCURSEL, static_cast<WPARAM>(box.ListIndex()), 0);
            Report(box, box.ListIndex());
            highlight = {};
            break;
        default: break;
    }
}

void OpenListMoved(ComboBox& box, HWND list) {
    if (IsOpen(box)) Report(box, static_cast<int>(SendMessageA(list, LB_GETCURSEL, 0, 0)));
}

}  // namespace quirn::win32
