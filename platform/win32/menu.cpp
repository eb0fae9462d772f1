#include "platform/menu.h"

#include <windows.h>

#include <algorithm>
#include <utility>

#include "platform/native.h"
#include "platform/win32/window.h"

namespace quirn {

namespace win32 {

namespace {

using Items = std::vector<Menu::Item>;

Menu* poppedUp = nullptr;  // while its pop-up window is open

// The menu that the player is in; null when the form has none.
Menu* OpenMenuOf(const Form& form) {
    return poppedUp != nullptr ? poppedUp : form.MenuBar();
}

bool HasChildren(const Items& items, size_t at) {
    return at + 1 < items.size() && items[at + 1].row.level > items[at].row.level;
}

// Puts the items of one level into a menu, with their submenus, from an index on; returns the index behind them.
// Hidden items are left out, and what is below them.
size_t Fill(HMENU menu, const Items& items, size_t at, int level) {
    while (at < items.size() && items[at].row.level >= level) {
        const Menu::Item& item = items[at];
        HMENU submenu = nullptr;
        size_t next = at + 1;
        if (HasChildren(items, at)) {
            submenu = CreatePopupMenu();
            next = Fill(submenu, items, at + 1, item.row.level + 1);
        }
        at = next;
        if (!item.visible) {
            if (submenu != nullptr) DestroyMenu(submenu);
            continue;
        }
        std::string text = item.caption;
        std::replace(text.begin(), text.end(), '\t', ' ');  // what follows a tab would be shown as the shortcut
        if (*item.row.shortcut != '\0') text += std::string("\t") + item.row.shortcut;
        MENUITEMINFOA info{};
        info.cbSize = sizeof(info);
        info.fMask = MIIM_ID | MIIM_FTYPE | MIIM_STATE | MIIM_SUBMENU;
        info.wID = static_cast<UINT>(item.row.command);
        info.fState = item.checked ? MFS_CHECKED : MFS_UNCHECKED;
        info.hSubMenu = submenu;
        if (item.IsSeparator()) {
            info.fType = MFT_SEPARATOR;
        } else {
            info.fMask |= MIIM_STRING;
            info.dwTypeData = text.data();
        }
        InsertMenuItemA(menu, static_cast<UINT>(GetMenuItemCount(menu)), TRUE, &info);
    }
    return at;
}

bool IsInMenu(HWND window) {
    GUITHREADINFO thread{};
    thread.cbSize = sizeof(thread);
    return GetGUIThreadInfo(GetCurrentThreadId(), &thread) && thread.hwndMenuOwner == window;
}

void RefillMenuBar(const Form& form) {
    const HMENU bar = GetMenu(WindowOf(form));
    while (DeleteMenu(bar, 0, MF_BYPOSITION)) {
    }
    Fill(bar, form.MenuBar()->Items(), 0, 0);
    if (form.Visible()) DrawMenuBar(WindowOf(form));
}

}  // namespace

HMENU MakeMenuBar(const Menu& menu) {
    const HMENU bar = CreateMenu();
    Fill(bar, menu.Items(), 0, 0);
    return bar;
}

// A heading comes with its position instead of its number, a separator with its number; neither is a command.
void MenuHighlighted(Form& form, WPARAM wParam, LPARAM lParam) {
    const UINT flags = HIWORD(wParam);
    const bool closed = flags == 0xFFFF && lParam == 0;
    const bool command = !closed && (flags & (MF_POPUP | MF_SEPARATOR)) == 0;
    if (command && (flags & MF_SYSMENU) != 0) {
        if (form.onSystemMenuHighlight)
            CallHandler([&] { form.onSystemMenuHighlight(static_cast<int>(LOWORD(wParam))); });
        return;
    }
    if (Menu* const menu = OpenMenuOf(form)) menu->UserPointsAt(command ? static_cast<int>(LOWORD(wParam)) : 0);
}

void MenuOpens(Form& form, HMENU popup) {
    const Menu* const menu = OpenMenuOf(form);
    if (menu == nullptr) return;
    CallHandler([&] {
        for (int i = 0; i < GetMenuItemCount(popup); ++i) {
            const Menu::Item* const item = menu->Find(static_cast<int>(GetMenuItemID(popup, i)));
            if (item == nullptr) continue;
            EnableMenuItem(popup, static_cast<UINT>(i), MF_BYPOSITION | (item->IsEnabled() ? MF_ENABLED : MF_GRAYED));
        }
    });
}

void MenuClosed(Form& form) {
    if (std::exchange(StateOf(form).menuIsStale, false)) RefillMenuBar(form);
}

}  // namespace win32

namespace native {

using namespace win32;

// A menu must not be deleted while the player is in it. It closes, since what it shows is no longer so, and is filled
// anew then.
void MenuChanged(Form& form) {
    if (!IsInMenu(WindowOf(form))) return RefillMenuBar(form);
    StateOf(form).menuIsStale = true;
    EndMenu();
}

void PopUpMenu(Form& form, Menu& menu, int defaultCommand, const Control* above) {
    const HWND window = WindowOf(form);
    // The items stand below an invisible heading, or at the top when there is none.
    const bool headed = HasChildren(menu.Items(), 0);
    const HMENU popup = CreatePopupMenu();
    Fill(popup, menu.Items(), headed ? 1 : 0, headed ? 1 : 0);
    if (defaultCommand != 0) SetMenuDefaultItem(popup, static_cast<UINT>(defaultCommand), FALSE);
    POINT place{};
    GetCursorPos(&place);
    TPMPARAMS covered{sizeof(TPMPARAMS), {}};  // where there is no room below, the menu opens above it
    if (above != nullptr) {
        GetWindowRect(WindowOf(*above), &covered.rcExclude);
        place = {covered.rcExclude.left, covered.rcExclude.bottom};
    }
    // Without the foreground the menu would stay open when the player clicks elsewhere; the message after it lets the
    // next one open at the first click. Both are documented with TrackPopupMenu.
    SetForegroundWindow(window);
    Menu* const before = poppedUp;
    poppedUp = &menu;
    const BOOL chosen = TrackPopupMenuEx(popup, TPM_RETURNCMD | TPM_RIGHTBUTTON | TPM_VERTICAL, place.x, place.y,
                                         window, above != nullptr ? &covered : nullptr);
    poppedUp = before;
    PostMessageA(window, WM_NULL, 0, 0);
    DestroyMenu(popup);
    if (chosen != 0) menu.UserChooses(chosen);
}

}  // namespace native

}  // namespace quirn
