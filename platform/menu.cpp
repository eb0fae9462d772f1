#include "platform/menu.h"

#include <algorithm>

#include "platform/form.h"
#include "platform/text.h"

namespace quirn {

KeyStroke KeyOf(std::string_view shortcut) {
    KeyStroke stroke{0};
    const auto taken = [&](std::string_view prefix) {
        const bool there = shortcut.starts_with(prefix);
        if (there) shortcut.remove_prefix(prefix.size());
        return there;
    };
    stroke.control = taken("Ctrl+");
    stroke.shift = taken("Shift+");
    if (shortcut == "Del") stroke.key = kKeyDelete;
    else if (shortcut == "PgUp") stroke.key = kKeyPageUp;
    else if (shortcut == "PgDn") stroke.key = kKeyPageDown;
    else if (shortcut.size() == 1) stroke.key = static_cast<unsigned char>(shortcut[0]);
    else if (taken("F")) stroke.key = kKeyF1 - 1 + static_cast<int>(Val(shortcut));
    return stroke;
}

Menu::Menu(std::vector<MenuRow> rows) {
    for (MenuRow& row : rows) {
        const char* const caption = row.caption;
        items_.push_back({std::move(row), caption});
    }
}

const Menu::Item* Menu::Find(int command) const {
    const auto found =
        std::find_if(items_.begin(), items_.end(), [&](const Item& item) { return item.row.command == command; });
    return found == items_.end() ? nullptr : &*found;
}

Menu::Item* Menu::ItemOf(int command) {
    return const_cast<Item*>(Find(command));
}

const Menu::Item* Menu::FindByKey(KeyStroke key) const {
    const auto found =
        std::find_if(items_.begin(), items_.end(), [&](const Item& item) { return KeyOf(item.row.shortcut) == key; });
    return found == items_.end() || key.key == 0 ? nullptr : &*found;
}

void Menu::Changed() {
    if (onChanged) onChanged();
}

void Menu::SetCaption(int command, const std::string& caption) {
    Item* const item = ItemOf(command);
    if (item == nullptr || item->caption == caption) return;
    item->caption = caption;
    Changed();
}

void Menu::SetVisible(int command, bool visible) {
    Item* const item = ItemOf(command);
    if (item == nullptr || item->visible == visible) return;
    item->visible = visible;
    Changed();
}

void Menu::SetChecked(int command, bool checked) {
    Item* const item = ItemOf(command);
    if (item == nullptr || item->checked == checked) return;
    item->checked = checked;
    Changed();
}

void Menu::UserPointsAt(int command) {
    const Item* const item = Find(command);
    if (onHighlight) CallHandler([&] { onHighlight(item == nullptr ? "" : item->row.help); });
}

void Menu::UserChooses(int command) {
    const Item* const item = Find(command);
    if (item == nullptr || !item->visible || !item->row.onClick) return;
    CallHandler([&] {
        if (item->IsEnabled()) item->row.onClick();
    });
}

}  // namespace quirn
