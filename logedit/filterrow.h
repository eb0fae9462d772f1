#pragma once

#include <functional>
#include <string>

#include "logedit/logview.h"
#include "platform/anchors.h"
#include "platform/form.h"
#include "platform/timer.h"

namespace quirn {

// The row above the status bar: a text that lines must have, all lines at once, and how many are shown.
class FilterRow {
public:
    // Its controls follow the form's lower edge by these anchors.
    FilterRow(Form& form, Anchors& anchors);

    std::function<void(const std::string& text)> onText;  // 200 ms after the last change
    std::function<void()> onShowAll;
    std::function<void()> onDown;  // the keyboard goes on to the lines

    void ShowAll();         // what was typed just now counts as what the filters leave
    void Reset();           // the box is empty, no news
    void FocusText();       // what stands there is selected
    bool KeyDown(int key);  // of the form; true swallows it
    void ShowCounts(const LogView& view);
    void ShowNews(const std::string& text);  // of a log that is followed
    // News that leave no room for the file's name until that is another one; why: for who points at them.
    void ShowTrouble(const std::string& text, const std::string& why);
    void ShowFile(const std::string& name);  // that the line in sight comes from

private:
    void ApplyText();  // unless it has been already
    void ShowStrip();

    Timer pause_;
    bool showsAll_ = false;
    std::string news_, file_;
    std::string trouble_;  // in full; empty: none

    Label lblOnly;
    TextBox txtFilter;
    Button cmdShowAll;
    Label lblCounts, lblStrip;
};

}  // namespace quirn
