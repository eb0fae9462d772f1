#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

// Forms and controls. What a control shows is kept here, in portable code; the back end makes a window for it when it
// is first shown and keeps the two in step. So a control can be filled and asked long before (and without) a window,
// which costs nothing until a player sees it.
//
// One rule for all setters: a setter changes what is shown and calls no handler. What the user does goes through the
// routines named User..., which change the state and then call the handler. The exceptions say so at their place.
//
// All lengths are twips (1/1440 inch).
namespace quirn {

struct Bounds {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;

    bool operator==(const Bounds&) const = default;
};

// 0xBBGGRR, as the system's COLORREF.
using Color = uint32_t;

constexpr Color Rgb(unsigned red, unsigned green, unsigned blue) { return red | green << 8 | blue << 16; }

// A font by face and size; an empty face is the system's message font, 0 points its size in this program (8).
struct Font {
    std::string face;
    int points = 0;
    bool bold = false;
    bool italic = false;

    bool operator==(const Font&) const = default;
};

enum class Alignment { Left, Center, Right };

class Control;
class Form;

// The parts of a control's state that a window has to be told about.
enum class Aspect { Text, Enabled, Visible, Place, Colors, Font };

enum class ControlKind { Label, Picture };

// Something that holds controls, in creation order, which is the tab order.
class Container {
public:
    const std::vector<Control*>& Controls() const { return controls_; }

protected:
    Container() = default;
    ~Container() = default;
    Container(const Container&) = delete;
    Container& operator=(const Container&) = delete;

private:
    friend class Control;
    std::vector<Control*> controls_;
};

class Control {
public:
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    ControlKind Kind() const { return kind_; }
    const std::string& Text() const { return text_; }
    bool Enabled() const { return enabled_; }
    bool Visible() const { return visible_; }
    const Bounds& Place() const { return place_; }  // relative to the container's inner area
    const Font& FontUsed() const { return font_; }
    std::optional<Color> ForeColor() const { return foreColor_; }

    void SetText(const std::string& text);
    void SetEnabled(bool enabled);
    void SetVisible(bool visible);
    void Move(const Bounds& place);
    void SetFont(const Font& font);
    void SetForeColor(Color color);

    // The back end's window for this control; null while there is none.
    void* window = nullptr;

protected:
    Control(Container& container, ControlKind kind, const Bounds& place, const std::string& text);
    ~Control();  // with its window, when it has one

    void Changed(Aspect aspect);

private:
    Container& container_;
    ControlKind kind_;
    Bounds place_;
    std::string text_;
    bool enabled_ = true;
    bool visible_ = true;
    Font font_;
    std::optional<Color> foreColor_;
};

// A line or a block of text; "&" marks nothing in it.
class Label : public Control {
public:
    Label(Container& container, const Bounds& place, const std::string& text, Alignment alignment = Alignment::Left)
        : Control(container, ControlKind::Label, place, text), alignment_(alignment) {}

    Alignment AlignmentUsed() const { return alignment_; }

private:
    Alignment alignment_;
};

// A picture from the program's resources, by number, stretched over its place.
class Picture : public Control {
public:
    Picture(Container& container, const Bounds& place, int resource)
        : Control(container, ControlKind::Picture, place, {}), resource_(resource) {}

    int Resource() const { return resource_; }

private:
    int resource_;
};

}  // namespace quirn
