#pragma once

#include <array>
#include <string>

#include "platform/control.h"

// The list of macro variables that opens when "%" is typed in a macro: its logic without its window.
namespace quirn {

inline constexpr std::array<const char*, 17> kMacroVariables{
    "%area",   "%coord", "%selfname", "%tickname",  "%squad",    "%freq",    "%bounty", "%flags", "%energy",
    "%shield", "%super", "%red",      "%redbounty", "%redflags", "%redname", "%killer", "%killed"};

// What has been typed in the open list.
class PickSearch {
public:
    void Reset() { text_ = "%"; }

    // Adds a character. The index of the first variable that begins with the text now, in any case; -1 when none does
    // (the selection then stays). A text of more than 100 characters starts anew.
    int Type(char character);

private:
    std::string text_ = "%";
};

// What picking a variable adds to the end of the macro, which has the "%" already: its name and a space.
std::string PickedText(int index);

// Where the list opens. Its size is the list's; the text box is given in the tab strip's coordinates, the caret's
// distance from its left edge; the list is pulled back inside the window.
struct PickListPlace {
    int tabTop;     // of the tab strip, in the window
    Bounds target;  // the text box
    int caretLeft;
    int windowWidth;
    int windowHeight;
};
Bounds PlacePickList(const PickListPlace& at, int listWidth, int listHeight);

}  // namespace quirn
