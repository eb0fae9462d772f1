#include "mainwin/noticebar.h"

#include "platform/measures.h"

namespace quirn {

namespace {

// clang-format off
//                          left   top  width  height
constexpr Bounds kNotice{     90, 4770, 2400, 2 * kLabelHeight};
constexpr Bounds kLinked{     90, 4770, 2400, kLabelHeight};
constexpr Bounds kLink{       90, 4980, 2400, kLabelHeight + 15};
constexpr Bounds kSave{     6030, 4860, 2385, kLabelHeight};
// clang-format on

}  // namespace

NoticeBar::NoticeBar(Parent parent, std::function<void(Notice::Action)> onLink)
    : lblNotice(parent, kNotice, ""),
      lblLinked(parent, kLinked, "", Alignment::Left, Label::kShowsData),
      lnkNotice(parent, kLink, ""),
      lblSave(parent, kSave, "", Alignment::Right, Label::kShowsData) {
    lnkNotice.onClick = [this, onLink = std::move(onLink)] { onLink(action_); };
    Show({});
}

void NoticeBar::Show(const Notice& notice) {
    const bool linked = !notice.link.empty();
    action_ = notice.action;
    lblNotice.SetText(notice.text);
    lblLinked.SetText(notice.brief.empty() ? notice.text : notice.brief);
    lblLinked.SetToolTip(notice.text);
    lnkNotice.SetText(notice.link);
    lblNotice.SetVisible(!linked);
    lblLinked.SetVisible(linked);
    lnkNotice.SetVisible(linked);
}

void NoticeBar::ShowSave(const std::string& text) {
    lblSave.SetText(text);
    lblSave.SetToolTip(text);
}

}  // namespace quirn
