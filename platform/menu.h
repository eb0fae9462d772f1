#pragma once

#include <functional>
#include <span>
#include <string>
#include <vector>

// Menus as rows of data. Command numbers are the caller's own; 0 is none.
namespace quirn {

struct MenuRow {
    int command;          // unique in its menu bar; headings and separators have one too
    int level;            // 0 heading in the bar, 1 item, 2 item of a submenu
    const char* caption;  // with "&"; "-" is a separator
    const char* shortcut = "";  // what is shown right of the caption, as "Ctrl+N"; "" none
};

// The menu bar of a form or a pop-up menu: rows and what has been changed of them since.
class Menu {
public:
    explicit Menu(std::span<const MenuRow> rows);

    struct Item {
        MenuRow row;
        std::string caption;
        bool visible = true;
        bool enabled = true;
        bool checked = false;
    };

    const std::vector<Item>& Items() const { return items_; }
    const Item& At(int command) const;

    void SetCaption(int command, const std::string& caption);
    void SetVisible(int command, bool visible);
    void SetChecked(int command, bool checked);

    std::function<void(int)> onCommand;    // the player has chosen an item
    std::function<void(int)> onHighlight;  // the player moves over an item; 0: over none, or over a heading

    void UserChooses(int command);

    // For the back end: called when a shown menu has to be made anew.
    std::function<void()> onChanged;

private:
    Item& Find(int command);
    std::vector<Item> items_;
};

}  // namespace quirn
