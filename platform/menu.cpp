#include "platform/menu.h"

#include <algorithm>
#include <string_view>

#include "platform/form.h"

namespace quirn {

namespace {

constexpr int kSystemClose = 61536;

constexpr MenuHelpRow kSystemMenuHelp[] = {
    {61440, "Size the window using the keyboard"},
    {61456, "Move the window using the keyboard"},
    {61472, "Minimize the window"},
    {61488, "Maximize the window"},
    {61728, "Restore window to normal position and size"},
};

}  // namespace

std::string FindMenuHelp(std::span<const MenuHelpRow> rows, int command) {
    for (const MenuHelpRow& row : rows)
        if (row.command == command) return row.text;
    return {};
}

std::string SystemMenuHelp(int command, const char* closeText) {
    return command == kSystemClose ? closeText : FindMenuHelp(kSystemMenuHelp, command);
}

Menu::Menu(std::span<const MenuRow> rows) {
    for (const MenuRow& row : rows) items_.push_back({row, row.caption});
}

const Menu::Item& Menu::At(int command) const {
    return *const_cast<Menu*>(this)->Find(command);
}

Menu::Item* Menu::Find(int command) {
    const auto found =
        std::find_if(items_.begin(), items_.end(), [&](const Item& item) { return item.row.command == command; });
    return found == items_.end() ? nullptr : &*found;
}

void Menu::SetCaption(int command, const std::string& caption) {
    Item* const item = Find(command);
    if (item == nullptr || item->caption == caption) return;
    item->caption = caption;
    if (onChanged) onChanged();
}

void Menu::SetVisible(int command, bool visible) {
    Item* const item = Find(command);
    if (item == nullptr || item->visible == visible) return;
    item->visible = visible;
    if (onChanged) onChanged();
}

void Menu::SetChecked(int command, bool checked) {
    Item* const item = Find(command);
    if (item == nullptr || item->checked == checked) return;
    item->checked = checked;
    if (onChanged) onChanged();
}

void Menu::UserChooses(int command) {
    const bool choosable = std::any_of(items_.begin(), items_.end(), [&](const Item& item) {
        return item.row.command == command && item.visible && std::string_view(item.row.caption) != "-";
    });
    if (choosable && onCommand) CallHandler([&] { onCommand(command); });
}

}  // namespace quirn
