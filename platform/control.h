#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

// What all controls have in common. What a control shows is kept here, in portable code; the back end makes a window
// for it when it is first shown and keeps the two in step. So a control can be filled and asked long before (and
// without) a window, which costs nothing until a player sees it.
//
// One rule for all setters: a setter changes what is shown and calls no handler. What the user does goes through the
// routines named User..., which change the state and then call the handler.
//
// All lengths are twips (1/1440 inch).
namespace quirn {

struct Bounds {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;

    constexpr int Right() const { return left + width; }
    constexpr int Bottom() const { return top + height; }
    constexpr Bounds MovedBy(int right, int down) const { return {left + right, top + down, width, height}; }
    constexpr bool Holds(const Bounds& other) const {
        return left <= other.left && top <= other.top && other.Right() <= Right() && other.Bottom() <= Bottom();
    }
    constexpr bool Crosses(const Bounds& other) const {
        return left < other.Right() && other.left < Right() && top < other.Bottom() && other.top < Bottom();
    }
    bool operator==(const Bounds&) const = default;
};

// 0xBBGGRR, as the system's COLORREF.
using Color = uint32_t;

constexpr Color Rgb(unsigned red, unsigned green, unsigned blue) {
    return red | green << 8 | blue << 16;
}

// A font by face and size; an empty face is the system's message font, 0 points its size in this program (8).
struct Font {
    std::string face;
    int points = 0;
    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool strikeout = false;

    bool operator==(const Font&) const = default;
};

class Control;
class Form;
class TabPage;

// The parts of a control's (or form's) state that its window has to be told about.
enum class Aspect { Text, Enabled, Visible, Place, Colors, Font, Value, Items, Selection, ToolTip };

namespace native {
struct Kind;  // how the back end makes and serves the windows of one kind of control
}

// A window that holds the windows of controls: a form or a page of a tab strip. Creation order is tab order.
class Container {
public:
    const std::vector<Control*>& Controls() const { return controls_; }

    // The form that this container is or belongs to.
    Form& Owner() const { return *owner_; }

    // The back end's window; null while there is none.
    void* window = nullptr;

protected:
    explicit Container(Form& owner) : owner_(&owner) {}
    ~Container() = default;
    Container(const Container&) = delete;
    Container& operator=(const Container&) = delete;

private:
    friend class Control;
    Form* owner_;
    std::vector<Control*> controls_;
};

// Where a new control goes: into a form, a page or a frame. What is in a frame is placed from its corner and moves with
// it, but lives beside it in its container.
struct Parent {
    Parent(Container& inContainer, const Control* inFrame = nullptr) : container(&inContainer), frame(inFrame) {}

    Container* container;
    const Control* frame;
};

class Control {
public:
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    const native::Kind& Kind() const { return kind_; }
    Container& Holder() const { return *container_; }
    const std::string& Text() const { return text_; }
    bool Enabled() const { return enabled_; }
    bool Visible() const { return visible_; }
    const Bounds& Place() const { return place_; }              // in its container's inner area
    const Control* SurroundingFrame() const { return frame_; }  // null when it is in none
    const Font& FontUsed() const { return font_; }
    std::optional<Color> ForeColor() const { return foreColor_; }  // nothing is the system's
    std::optional<Color> BackColor() const { return backColor_; }
    const std::string& ToolTip() const { return toolTip_; }
    bool HasFocus() const;  // the keyboard goes to it, or will when its form is in front again
    bool CanFocus() const;  // of a kind that takes the keyboard, enabled, visible, and on a page that is in front

    void SetText(const std::string& text);
    void SetEnabled(bool enabled);
    void SetVisible(bool visible);
    void Move(const Bounds& place);
    void SetFont(const Font& font);
    void SetForeColor(std::optional<Color> color);
    void SetBackColor(std::optional<Color> color);
    void SetToolTip(const std::string& text);
    // What a screen reader calls a control that has neither a caption of its own nor a label just before it.
    void SetAccessibleName(const std::string& name) { accessibleName_ = name; }
    const std::string& AccessibleName() const { return accessibleName_; }
    void Repaint();  // paints it now, without waiting for events
    // Does nothing while it cannot have the focus. Calls onLostFocus of the old one, then onGotFocus. Before its form
    // is shown it says where the focus will be, and calls nobody. A form behind another one stays there.
    void SetFocus();

    std::string Tag;  // free for the form's use

    std::function<void()> onContextMenu;  // the right button, or the keyboard's key for the same; not for lists
    std::function<void()> onGotFocus;
    std::function<void()> onLostFocus;

    // The back end's window for this control; null while there is none.
    void* window = nullptr;

    // For the back end.
    void UserFocuses(bool focused);

    // What the kinds do differently for their form.
    virtual bool TakesFocus() const { return true; }
    virtual bool KeepsKey(int, bool) const { return false; }  // by its virtual code, and with Ctrl: not the form's
    virtual bool UserPressesEnter() { return false; }         // false: the key is the default button's
    virtual bool UserPressesAccessKey() { return false; }     // false: the "&" in its text marks none
    virtual bool UserTurns(int) { return false; }             // to another page; false: it has none
    virtual const std::vector<TabPage*>& Pages() const;       // none, but those of a tab strip

protected:
    Control(Parent parent, const native::Kind& kind, const Bounds& place, const std::string& text);
    virtual ~Control();  // with its window, when it has one

    void Changed(Aspect aspect);
    std::string text_;

private:
    Container* container_;
    const Control* frame_;
    const native::Kind& kind_;
    Bounds place_;
    bool enabled_ = true;
    bool visible_ = true;
    Font font_;
    std::optional<Color> foreColor_;
    std::optional<Color> backColor_;
    std::string toolTip_;
    std::string accessibleName_;
};

}  // namespace quirn
