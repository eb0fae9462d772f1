#include "auxiliary/menuhelp.h"

namespace quirn {

std::string SystemMenuHelp(int command, const char* closeHelp) {
    switch (command) {
        case 61440: return "Size the window using the keyboard";
        case 61456: return "Move the window using the keyboard";
        case 61472: return "Minimize the window";
        case 61488: return "Maximize the window";
        case 61536: return closeHelp;
        case 61728: return "Restore window to normal position and size";
        default: return {};
    }
}

void ShowMenuHelp(Form& form, StatusBar& bar, const std::vector<Menu*>& menus, const char* closeHelp) {
    for (Menu* menu : menus) menu->onHighlight = [&bar](const char* help) { bar.SetText(help); };
    form.onSystemMenuHighlight = [&bar, closeHelp](int command) { bar.SetText(SystemMenuHelp(command, closeHelp)); };
}

}  // namespace quirn
