#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

// Menus as rows of data. Command numbers are the caller's own and say nothing of a row's place; 0 is none.
namespace quirn {

// All that there is to say of a command.
struct MenuRow {
    int command;                         // unique in its menu bar; headings and separators have one too
    int level;                           // 0 heading in the bar, 1 item, 2 item of a submenu
    const char* caption;                 // with "&"; "-" is a separator
    const char* shortcut = "";           // shown right of the caption, as "Ctrl+N"; in a form's bar it is the key too
    const char* help = "";               // what a status bar says while the player moves over it
    std::function<void()> onClick = {};  // the player has chosen it
    std::function<bool()> enabled = {};  // asked whenever its menu opens; none: always. Not for items of the bar itself
};

// A key with what is held down with it.
struct KeyStroke {
    int key;  // virtual code; letters and digits are their upper-case characters
    bool control = false;
    bool shift = false;

    bool operator==(const KeyStroke&) const = default;
};

// The key that a shortcut's text names: "Ctrl+Shift+Z", "F5", "Del". Key 0 when it names none.
KeyStroke KeyOf(std::string_view shortcut);

// The menu bar of a form or a pop-up menu: rows and what has been changed of them since.
class Menu {
public:
    explicit Menu(std::vector<MenuRow> rows);

    struct Item {
        MenuRow row;
        std::string caption;
        bool visible = true;
        bool checked = false;

        bool IsSeparator() const { return std::string_view(row.caption) == "-"; }
        bool IsEnabled() const { return !row.enabled || row.enabled(); }
    };

    const std::vector<Item>& Items() const { return items_; }
    const Item* Find(int command) const;         // null when no row has the command
    const Item* FindByKey(KeyStroke key) const;  // the same for a shortcut

    // A command that is in no row changes nothing.
    void SetCaption(int command, const std::string& caption);
    void SetVisible(int command, bool visible);
    void SetChecked(int command, bool checked);

    std::function<void(const char* help)> onHighlight;  // the player moves over an item; "" over anything else

    void UserPointsAt(int command);
    void UserChooses(int command);

    // For the back end: called when a shown menu has to be made anew.
    std::function<void()> onChanged;

private:
    Item* ItemOf(int command);
    void Changed();

    std::vector<Item> items_;
};

}  // namespace quirn
