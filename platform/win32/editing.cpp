#include <windows.h>

#include <cstring>

#include "platform/native.h"
#include "platform/win32/metrics.h"
#include "platform/win32/window.h"

// Boxes of text: what is typed, copied and pasted.
namespace quirn {

namespace win32 {

namespace {

// The characters that Ctrl makes of A, C, V and X.
constexpr WPARAM kSelectAll = 1, kCopy = 3, kPaste = 22, kCut = 24;

struct Selection {
    DWORD from = 0;
    DWORD to = 0;
};

Selection SelectionIn(HWND window) {
    Selection selection;
    SendMessageA(window, EM_GETSEL, reinterpret_cast<WPARAM>(&selection.from), reinterpret_cast<LPARAM>(&selection.to));
    return selection;
}

std::string ClipboardText(HWND window) {
    std::string text;
    if (!OpenClipboard(window)) return text;
    if (const HANDLE data = GetClipboardData(CF_TEXT)) {
        if (const void* bytes = GlobalLock(data)) {
            text.assign(static_cast<const char*>(bytes), strnlen(static_cast<const char*>(bytes), GlobalSize(data)));
            GlobalUnlock(data);
        }
    }
    CloseClipboard();
    return text;
}

void PutCaret(const MaskedBox& box, size_t caret) {
    SendMessageA(WindowOf(box), EM_SETSEL, caret, static_cast<LPARAM>(caret));
    SendMessageA(WindowOf(box), EM_SCROLLCARET, 0, 0);
}

// Each leaves the caret where the edit ends.
void Clear(MaskedBox& box) {
    const Selection selection = SelectionIn(WindowOf(box));
    if (selection.from != selection.to) PutCaret(box, box.UserClears(selection.from, selection.to));
}

void Cut(MaskedBox& box) {
    SendMessageA(WindowOf(box), WM_COPY, 0, 0);
    Clear(box);
}

// An edit that may lead to another box; it leaves this one's selection alone then.
template <class Edit>
void EditAtCaret(MaskedBox& box, Edit edit) {
    const Selection selection = SelectionIn(WindowOf(box));
    const Control* const active = box.Holder().Owner().ActiveControl();
    const size_t caret = edit(selection);
    if (box.Holder().Owner().ActiveControl() == active) PutCaret(box, caret);
}

void Paste(MaskedBox& box) {
    const std::string text = ClipboardText(WindowOf(box));
    if (text.empty()) return;
    EditAtCaret(box, [&](const Selection& at) { return box.UserPastes(text, at.from, at.to); });
}

void Type(MaskedBox& box, char character) {
    EditAtCaret(box, [&](const Selection& at) { return box.UserTypes(character, at.from, at.to); });
}

}  // namespace

std::string TextOf(HWND window) {
    std::string text(static_cast<size_t>(GetWindowTextLengthA(window)) + 1, '\0');
    text.resize(static_cast<size_t>(GetWindowTextA(window, text.data(), static_cast<int>(text.size()))));
    return text;
}

std::optional<LRESULT> TextBoxMessage(TextBox& box, UINT message, WPARAM wParam) {
    const HWND window = WindowOf(box);
    switch (message) {
        case WM_CHAR:
            if (box.UserTypes(static_cast<char>(wParam))) return 0;
            if (wParam == kSelectAll) {
                SendMessageA(window, EM_SETSEL, 0, -1);
                return 0;
            }
            if (box.IsMasked() && (wParam == kCopy || wParam == kCut)) return 0;
            break;
        // Windows refuses all of these for hidden text itself; Wine does not, and by these keys without a message.
        case WM_KEYDOWN:
            if (box.IsMasked() &&
                ((wParam == VK_DELETE && Pressed(VK_SHIFT)) || (wParam == VK_INSERT && Pressed(VK_CONTROL))))
                return 0;
            break;
        case WM_COPY:
        case WM_CUT:
            if (box.IsMasked()) return 0;
            break;
        default: break;
    }
    return std::nullopt;
}

std::optional<LRESULT> MaskedBoxMessage(MaskedBox& box, UINT message, WPARAM wParam) {
    switch (message) {
        case WM_CHAR:
            if (wParam == kSelectAll) SendMessageA(WindowOf(box), EM_SETSEL, 0, -1);
            else if (wParam == kCopy) return std::nullopt;
            else if (wParam == kPaste) Paste(box);
            else if (wParam == kCut) Cut(box);
            else if (wParam == MaskedBox::kBackspace || wParam >= ' ') Type(box, static_cast<char>(wParam));
            return 0;
        case WM_KEYDOWN:
            if (wParam == VK_DELETE && Pressed(VK_SHIFT)) Cut(box);
            else if (wParam == VK_DELETE) Type(box, MaskedBox::kDelete);
            else if (wParam == VK_INSERT && Pressed(VK_SHIFT)) Paste(box);
            else return std::nullopt;
            return 0;
        case WM_PASTE: Paste(box); return 0;
        case WM_CUT: Cut(box); return 0;
        case WM_CLEAR: Clear(box); return 0;
        case WM_UNDO:
        case EM_UNDO: return 0;  // the window's memory of what was there does not know the mask
        default: return std::nullopt;
    }
}

}  // namespace win32

namespace native {

using namespace win32;

int CaretLeft(const TextBox& box) {
    POINT caret{};
    if (GetFocus() != WindowOf(box) || !GetCaretPos(&caret)) return 0;
    return ToTwips(caret.x, DpiOf(box));
}

}  // namespace native

}  // namespace quirn
