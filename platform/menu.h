#pragma once

#include <functional>
#include <span>
#include <string>
#include <vector>

// Menus as rows of data. Command numbers are the caller's own; 0 is none.
namespace quirn {

struct MenuRow {
    int command;                // unique in its menu bar; headings and separators have one too
    int level;                  // 0 heading in the bar, 1 item, 2 item of a submenu
    const char* caption;        // with "&"; "-" is a separator
    const char* shortcut = "";  // what is shown right of the caption, as "Ctrl+N"; "" none
};

// What a status bar says while the player moves over a command.
struct MenuHelpRow {
    int command;
    const char* text;
};

// Empty when no row has the command.
std::string FindMenuHelp(std::span<const MenuHelpRow> rows, int command);

// The same for a window's system menu, by the system's numbers (0xF000 and the like). Closing means something else in
// every window.
std::string SystemMenuHelp(int command, const char* closeText);

// The menu bar of a form or a pop-up menu: rows and what has been changed of them since.
class Menu {
public:
    explicit Menu(std::span<const MenuRow> rows);

    struct Item {
        MenuRow row;
        std::string caption;
        bool visible = true;
        bool checked = false;
    };

    const std::vector<Item>& Items() const { return items_; }
    const Item& At(int command) const;  // of a row that is there

    // A number that no row has changes nothing.
    void SetCaption(int command, const std::string& caption);
    void SetVisible(int command, bool visible);
    void SetChecked(int command, bool checked);

    std::function<void(int)> onCommand;    // the player has chosen an item
    std::function<void(int)> onHighlight;  // the player moves over an item; 0: over none, or over a heading

    void UserChooses(int command);

    // For the back end: called when a shown menu has to be made anew.
    std::function<void()> onChanged;

private:
    Item* Find(int command);  // null when no row has it
    std::vector<Item> items_;
};

}  // namespace quirn
