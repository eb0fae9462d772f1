#pragma once

#include <array>
#include <functional>
#include <string>

#include "mainwin/notice.h"
#include "platform/controls.h"

namespace quirn {

// The two labels beside the Run button: at its left the notice with its link, at its right what Save will do.
class NoticeBar {
public:
    // onLink: the player follows the link of a notice.
    NoticeBar(Parent parent, std::function<void(Notice::Action)> onLink);

    void Show(const Notice& notice);
    void ShowSave(const std::string& text);

    std::array<Control*, 4> Controls() { return {&lblNotice, &lblLinked, &lnkNotice, &lblSave}; }

private:
    Label lblNotice;  // without a link a notice has both lines
    Label lblLinked;
    LinkButton lnkNotice;
    Label lblSave;
    Notice::Action action_ = Notice::Action::None;
};

}  // namespace quirn
