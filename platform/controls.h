#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/control.h"

// The kinds of controls. Captions mark their access key with "&" ("&&" is a plain "&"), except those of labels that
// show data. Indexes of items and pages count from 0; -1 is none.
namespace quirn {

enum class Alignment { Left, Center, Right };

// A line or a block of text. With an access key it sends the focus to the control created after it.
class Label : public Control {
public:
    Label(Parent parent, const Bounds& place, const std::string& text, Alignment alignment = Alignment::Left);

    // A label that shows data: "&" marks nothing in it. Text that is too long for its place ends in "...".
    static constexpr bool kShowsData = true;
    Label(Parent parent, const Bounds& place, const std::string& text, Alignment alignment, bool showsData);

    Alignment AlignmentUsed() const { return alignment_; }
    bool ShowsData() const { return showsData_; }

    std::function<void()> onClick;  // the left mouse button; set before the label has a window, which shows a hand then
    std::function<void()> onDoubleClick;  // the second of two quick clicks; without a handler that is a click as well

    void UserClicks();
    void UserDoubleClicks();
    bool TakesFocus() const override { return false; }
    bool UserPressesAccessKey() override;

private:
    Alignment alignment_;
    bool showsData_ = false;
};

// A picture from the program's resources, by number, stretched over its place.
class Picture : public Control {
public:
    Picture(Parent parent, const Bounds& place, int resource);

    int Resource() const { return resource_; }

    std::function<void()> onClick;  // the left mouse button; set before the picture has a window

    void UserClicks();
    bool TakesFocus() const override { return false; }

private:
    int resource_;
};

class Button : public Control {
public:
    Button(Parent parent, const Bounds& place, const std::string& caption);

    std::function<void()> onClick;

    void UserClicks();
    bool UserPressesEnter() override;
    bool UserPressesAccessKey() override;

protected:
    Button(Parent parent, const native::Kind& kind, const Bounds& place, const std::string& caption);
};

inline constexpr Color kLinkColor = Rgb(0, 72, 192);

// A button that looks like a link: underlined text. Readers and the keyboard know it as a button.
class LinkButton : public Button {
public:
    LinkButton(Parent parent, const Bounds& place, const std::string& caption);
};

class CheckBox : public Control {
public:
    CheckBox(Parent parent, const Bounds& place, const std::string& caption);

    int Value() const { return value_; }  // 0 unchecked, 1 checked
    void SetValue(int value);

    std::function<void()> onClick;    // after the value has changed
    std::function<void()> onMouseUp;  // after onClick, when it was the mouse or a key that changed the value

    void UserClicks();  // changes the value
    bool UserPressesAccessKey() override;

private:
    int value_ = 0;
};

class OptionGroup;

// One of a group of which at most one is selected; its group knows which.
class OptionButton : public Control {
public:
    OptionButton(Parent parent, OptionGroup& group, const Bounds& place, const std::string& caption);

    OptionGroup& Group() const { return *group_; }
    int Index() const { return index_; }  // in its group

    void UserClicks();
    bool UserPressesAccessKey() override;

private:
    friend class OptionGroup;
    OptionGroup* group_;
    int index_;
};

// The buttons of one group, in creation order. Created before its buttons.
class OptionGroup {
public:
    const std::vector<OptionButton*>& Buttons() const { return buttons_; }
    int Selected() const { return selected_; }
    void Select(int index);  // an index without a button selects nothing

    std::function<void()> onClick;  // the player has selected a button

private:
    friend class OptionButton;
    std::vector<OptionButton*> buttons_;
    int selected_ = -1;
};

enum class TextStyle {
    Line,      // one line of text to edit
    ReadPage,  // many lines (CR LF between them) to read, with scroll bars
};

// Text to edit or to read.
class TextBox : public Control {
public:
    TextBox(Parent parent, const Bounds& place, const std::string& text = {}, TextStyle style = TextStyle::Line);

    TextStyle Style() const { return style_; }

    bool IsMasked() const { return masked_; }
    void SetMasked(bool masked);  // shows dots; copying is refused meanwhile
    void SelectAll();
    void PutCaretAtEnd();

    // The caret's distance from the left edge of the box, in twips; 0 without a window.
    int CaretLeft() const;

    std::function<void()> onChange;                   // the text has been edited
    std::function<bool(char)> onKeyPress;             // a character typed; true swallows it
    std::function<bool(const std::string&)> onPaste;  // true: the handler has put the text where it belongs

    bool UserPastes(const std::string& text);  // false: the window's own handling goes on
    void UserEdits(const std::string& text);
    bool UserTypes(char character);  // false: the window's own handling goes on
    bool UserPressesEnter() override;
    bool KeepsKey(int key, bool control) const override;

private:
    TextStyle style_;
    bool masked_ = false;
};

// One line of text that follows a mask: "9" is a digit or nothing, "&" any character, everything else stands as it is.
// A mask of "9" only shows no prompts and holds up to so many digits. Any other mask shows "_" for an empty place.
// SetText takes any text, mask or not: what a profile holds is never lost by showing it.
class MaskedBox : public Control {
public:
    MaskedBox(Parent parent, const Bounds& place, const std::string& mask);

    const std::string& Mask() const { return mask_; }
    bool IsDigitsOnly() const;
    void Clear();  // back to the empty mask
    void SelectAll();

    std::function<void()> onChange;
    std::function<bool(char)> onKeyPress;             // true swallows the character
    std::function<bool(const std::string&)> onPaste;  // true: the handler has put the text where it belongs

    // What typing does: a character goes into the first place (no fixed character) at or after the caret, over what
    // stands there, and the caret moves on over the fixed characters; one that is the fixed character under the caret
    // or before it goes nowhere; kBackspace and kDelete empty a place. Returns the new caret (0-based). With a
    // digits-only mask digits are inserted and removed; nothing else changes anything. What is selected goes first.
    static constexpr char kBackspace = 8;
    static constexpr char kDelete = 127;
    size_t UserTypes(char character, size_t caret, size_t selectionEnd = 0);
    size_t UserPastes(std::string_view text, size_t caret, size_t selectionEnd = 0);  // without spaces and line ends
    size_t UserClears(size_t from, size_t to);                                        // removes a selection
    void UserEdits(const std::string& text);  // the window's text after any other edit
    bool KeepsKey(int key, bool control) const override;

private:
    std::string EmptyText() const;
    bool IsFixed(size_t at) const;
    size_t NextPlace(size_t at) const;
    bool Empty(size_t from, size_t to);
    bool Put(char character, size_t& caret);
    std::string mask_;
};

// A list that drops down, without an edit field.
class ComboBox : public Control {
public:
    ComboBox(Parent parent, const Bounds& place);  // place: the closed box

    const std::vector<std::string>& Items() const { return items_; }
    void SetItems(std::vector<std::string> items);  // selects nothing
    int ListIndex() const { return listIndex_; }
    void SetListIndex(int index);  // an index outside the list selects nothing
    std::string SelectedText() const;

    std::function<void()> onClick;         // the player has selected another item
    std::function<void(int)> onHighlight;  // the player moves through the open list, over this item
    std::function<void(bool)> onOpen;      // the list has been opened, or closed

    void UserSelects(int index);
    void UserHighlights(int index);
    void UserOpens(bool open);
    bool KeepsKey(int key, bool control) const override;

private:
    std::vector<std::string> items_;
    int listIndex_ = -1;
};

enum class ListStyle { Single, Extended };  // extended: many selected items, with Shift and Ctrl

class ListBox : public Control {
public:
    ListBox(Parent parent, const Bounds& place, ListStyle style);

    ListStyle Style() const { return style_; }
    const std::vector<std::string>& Items() const { return items_; }
    void SetItems(std::vector<std::string> items);  // selects nothing
    void AddItem(const std::string& text);
    void SetItem(int index, const std::string& text);
    void RemoveSelected();

    bool IsSelected(int index) const;
    std::vector<int> SelectedItems() const;
    void Select(int index, bool selected);
    int ListIndex() const;         // style Single: the selected item
    void SetListIndex(int index);  // style Single: selects it and scrolls to it

    std::function<void()> onClick;  // the selection has changed
    std::function<void()> onMouseUp;
    std::function<void(int index)> onDoubleClick;
    std::function<bool(int)> onKeyDown;    // a key by its virtual code; true swallows it
    std::function<bool(char)> onKeyPress;  // a character, Enter, Escape, Backspace and space included

    void UserSelects(const std::vector<int>& indexes);
    void UserReleasesMouse();
    void UserDoubleClicks(int index);
    bool UserPressesKey(int virtualKey);
    bool UserTypes(char character);
    bool KeepsKey(int key, bool control) const override;

private:
    ListStyle style_;
    std::vector<std::string> items_;
    std::vector<char> selected_;
};

enum class FrameStyle {
    Box,    // a line around what is in it
    Panel,  // a filled area that lies over other controls while it is visible, the caption at its top
};

// A box with a caption around other controls.
class Frame : public Control {
public:
    Frame(Parent parent, const Bounds& place, const std::string& caption, FrameStyle style = FrameStyle::Box);

    FrameStyle Style() const { return style_; }

    operator Parent() const;  // so that controls can be put into it

    bool TakesFocus() const override { return false; }
    bool UserPressesAccessKey() override;

private:
    FrameStyle style_;
};

// How far some work is. Its window is told only when the picture changes, so it may be told of every step.
class ProgressBar : public Control {
public:
    static constexpr int kSteps = 100;

    ProgressBar(Parent parent, const Bounds& place);

    uint64_t Value() const { return value_; }
    int Step() const;                 // of kSteps: what the picture shows
    void SetRange(uint64_t maximum);  // from 0; 0 counts as 1. The value is 0 then
    void SetValue(uint64_t value);

    bool TakesFocus() const override { return false; }

private:
    uint64_t maximum_ = 1;
    uint64_t value_ = 0;
};

class TabStrip;

// One page of a tab strip. Its controls get their windows when it is first brought to the front.
class TabPage : public Container {
public:
    TabPage(TabStrip& strip, const std::string& caption);

    const std::string& Caption() const { return caption_; }
    TabStrip& Strip() const { return *strip_; }
    bool IsInFront() const;

private:
    TabStrip* strip_;
    std::string caption_;
};

// A container as the page that it is; null when it is a form.
TabPage* PageOf(Container& container);

class TabStrip : public Control {
public:
    static constexpr int kTabHeight = 300;

    TabStrip(Parent parent, const Bounds& place);

    const std::vector<TabPage*>& Pages() const override { return pages_; }
    int Tab() const { return tab_; }
    void SetTab(int index);
    Bounds PageArea() const;  // inside the strip, in its container's coordinates

    std::function<void()> onClick;  // the player has turned to another page

    void UserTurnsTo(int index);
    bool UserTurns(int steps) override;  // Ctrl+Tab 1, Ctrl+Shift+Tab -1; round the end

private:
    friend class TabPage;
    std::vector<TabPage*> pages_;
    int tab_ = 0;
};

// The pair of arrows beside a text box that holds a number. They stop at the bounds; a typed number outside of them is
// kept as typed until an arrow is pressed.
class UpDown : public Control {
public:
    UpDown(Parent parent, TextBox& buddy, int minimum, int maximum);

    TextBox& Buddy() const { return *buddy_; }

    void UserSpins(int steps);  // edits the text box as the player would
    bool TakesFocus() const override { return false; }

private:
    TextBox* buddy_;
    int minimum_;
    int maximum_;
};

// The bar at the lower edge of a form; its text is the first panel's. It may have a second panel at its right end.
class StatusBar : public Control {
public:
    explicit StatusBar(Form& form, int secondPanelWidth = 0);

    static constexpr int kHeight = 330;  // about; the system's font decides

    int SecondPanelWidth() const { return secondPanelWidth_; }
    const std::string& SecondText() const { return secondText_; }
    void SetSecondText(const std::string& text);

    bool TakesFocus() const override { return false; }

private:
    int secondPanelWidth_;
    std::string secondText_;
};

}  // namespace quirn
