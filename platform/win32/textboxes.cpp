#include <windows.h>

#include <commctrl.h>  // needs windows.h first

#include <cstring>

#include "platform/win32/kind.h"
#include "platform/win32/metrics.h"
#include "platform/win32/openedclipboard.h"

// Boxes of text: what is typed, copied and pasted; and the arrows beside a number.
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
    const OpenedClipboard clipboard(window);
    if (!clipboard) return text;
    if (const HANDLE data = GetClipboardData(CF_TEXT)) {
        if (const void* bytes = GlobalLock(data)) {
            text.assign(static_cast<const char*>(bytes), strnlen(static_cast<const char*>(bytes), GlobalSize(data)));
            GlobalUnlock(data);
        }
    }
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

std::optional<LRESULT> TextBoxMessage(TextBox& box, const Message& m) {
    const HWND window = WindowOf(box);
    const WPARAM wParam = m.wParam;
    switch (m.message) {
        case WM_CHAR:
            if (box.UserTypes(static_cast<char>(wParam))) return 0;
            if (wParam == kSelectAll) {
                SendMessageA(window, EM_SETSEL, 0, -1);
                return 0;
            }
            if (box.IsMasked() && (wParam == kCopy || wParam == kCut)) return 0;
            if (wParam == kPaste && box.onPaste) return SendMessageA(window, WM_PASTE, 0, 0);
            break;
        // Windows refuses all of these for hidden text itself; Wine does not, and by these keys without a message.
        case WM_KEYDOWN:
            if (box.IsMasked() &&
                ((wParam == VK_DELETE && Pressed(VK_SHIFT)) || (wParam == VK_INSERT && Pressed(VK_CONTROL))))
                return 0;
            break;
        case WM_PASTE:
            if (box.onPaste && box.UserPastes(ClipboardText(window))) return 0;
            break;
        case WM_COPY:
        case WM_CUT:
            if (box.IsMasked()) return 0;
            break;
        default: break;
    }
    return std::nullopt;
}

std::optional<LRESULT> MaskedBoxMessage(MaskedBox& box, const Message& m) {
    const WPARAM wParam = m.wParam;
    switch (m.message) {
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

Look BoxLook(const Control&) {
    return {.className = "EDIT",
            .style = WS_TABSTOP | ES_AUTOHSCROLL,
            .extendedStyle = WS_EX_CLIENTEDGE,
            .holdsLine = true};
}

Look TextBoxLook(const TextBox& box) {
    Look look = BoxLook(box);
    look.holdsLine = box.Style() == TextStyle::Line;
    if (!look.holdsLine) look.style |= WS_VSCROLL | WS_HSCROLL | ES_MULTILINE | ES_READONLY | ES_AUTOVSCROLL;
    return look;
}

void ApplyTextBox(const TextBox& box, Aspect aspect) {
    if (aspect != Aspect::Value) return;
    constexpr char kBullet = '\x95';
    const WPARAM shown = box.IsMasked() ? static_cast<unsigned char>(kBullet) : 0;
    if (static_cast<WPARAM>(SendMessageA(WindowOf(box), EM_GETPASSWORDCHAR, 0, 0)) == shown) return;
    SendMessageA(WindowOf(box), EM_SETPASSWORDCHAR, shown, 0);
    InvalidateRect(WindowOf(box), nullptr, TRUE);
}

void FillTextBox(const TextBox& box) {
    if (box.IsMasked()) ApplyTextBox(box, Aspect::Value);
}

// A text that is being set comes here too. The control has it already, and the window need not give back the same: a
// NUL ends its text, and bytes that the system's code page does not know change in it.
template <class AnyBox>
void BoxCommand(AnyBox& box, WORD code) {
    if (code == EN_CHANGE && !TextIsBeingSet(WindowOf(box))) box.UserEdits(TextOf(WindowOf(box)));
}

Look UpDownLook(const UpDown&) {
    return {.className = UPDOWN_CLASSA, .style = UDS_ARROWKEYS, .commonClass = ICC_UPDOWN_CLASS, .holdsLine = true};
}

void FillUpDown(const UpDown& arrows) {
    // The window counts nothing itself; a range around its position keeps both arrows alive.
    SendMessageA(WindowOf(arrows), UDM_SETRANGE32, static_cast<WPARAM>(-10000), 10000);
    SendMessageA(WindowOf(arrows), UDM_SETBUDDY, reinterpret_cast<WPARAM>(WindowOf(arrows.Buddy())), 0);
}

std::optional<LRESULT> UpDownNotify(UpDown& arrows, const NMHDR& header) {
    if (header.code != UDN_DELTAPOS) return std::nullopt;
    arrows.UserSpins(reinterpret_cast<const NMUPDOWN&>(header).iDelta);
    return TRUE;  // its own position stays
}

}  // namespace

}  // namespace win32

namespace native {

using namespace win32;

const Kind kTextBox{.look = For<TextBoxLook>,
                    .fill = For<FillTextBox>,
                    .apply = For<ApplyTextBox>,
                    .command = For<BoxCommand<TextBox>>,
                    .message = For<TextBoxMessage>,
                    .holdsTexts = true};
const Kind kMaskedBox{.look = For<BoxLook>,
                      .command = For<BoxCommand<MaskedBox>>,
                      .message = For<MaskedBoxMessage>,
                      .holdsTexts = true,
                      .selectsOnFocus = true};
const Kind kUpDown{.look = For<UpDownLook>, .fill = For<FillUpDown>, .notify = For<UpDownNotify>};

void SelectAll(Control& box) {
    SendMessageA(WindowOf(box), EM_SETSEL, 0, -1);
}

void PutCaretAtEnd(TextBox& box) {
    const auto end = static_cast<LPARAM>(box.Text().size());
    SendMessageA(WindowOf(box), EM_SETSEL, static_cast<WPARAM>(end), end);
    SendMessageA(WindowOf(box), EM_SCROLLCARET, 0, 0);
}

int CaretLeft(const TextBox& box) {
    POINT caret{};
    if (GetFocus() != WindowOf(box) || !GetCaretPos(&caret)) return 0;
    return ToTwips(caret.x, DpiOf(box));
}

}  // namespace native

}  // namespace quirn
