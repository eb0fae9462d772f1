#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

#include "platform/form.h"

// The controls of a form whose members are its own business, as the player finds them: by kind, order and text.
namespace quirn::test {

template <class Kind>
Kind& ControlOf(Form& form, std::string_view text, int nth = 0) {
    for (Control* control : form.Controls())
        if (auto* found = dynamic_cast<Kind*>(control))
            if (found->Text().find(text) != std::string::npos && nth-- == 0) return *found;
    throw std::runtime_error("no control \"" + std::string(text) + "\"");
}

inline Button& ButtonOf(Form& form, std::string_view text) {
    return ControlOf<Button>(form, text);
}
inline Label& LabelOf(Form& form, std::string_view text) {
    return ControlOf<Label>(form, text);
}

}  // namespace quirn::test
