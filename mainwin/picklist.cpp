#include "mainwin/picklist.h"

#include <string_view>

#include "platform/text.h"

namespace quirn {

namespace {

constexpr size_t kLongestSearch = 100;
constexpr int kPixel = 15;  // twips at 96 dpi; so the gaps grow with the display, as all else does

}  // namespace

int PickSearch::Type(char character) {
    text_ += character;
    if (text_.size() > kLongestSearch) Reset();
    for (size_t i = 0; i < kMacroVariables.size(); ++i) {
        const std::string_view name = kMacroVariables[i];
        if (EqualNoCase(name.substr(0, text_.size()), text_)) return static_cast<int>(i);
    }
    return -1;
}

std::string PickedText(int index) {
    if (index < 0 || static_cast<size_t>(index) >= kMacroVariables.size()) return {};
    return std::string(kMacroVariables[static_cast<size_t>(index)] + 1) + " ";
}

Bounds PlacePickList(const PickListPlace& at, int listWidth, int listHeight) {
    Bounds list{at.target.left + at.caretLeft + 18 * kPixel, at.tabTop + at.target.top + 5 * kPixel, listWidth,
                listHeight};
    if (list.Right() > at.windowWidth) list.left = at.windowWidth - listWidth - 10 * kPixel;
    if (list.Bottom() > at.windowHeight) list.top = at.windowHeight - listHeight;
    return list;
}

}  // namespace quirn
