#pragma once

#include "platform/base/NonMovable.h"
#include "platform/forms/Keys.h"
#include "platform/paint/DrawingSurface.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace tumble {

class Form;
class PictureBox;
class Label;
class CommandButton;
class OptionButton;
class Frame;
class Slider;

using AnyControl = std::variant<PictureBox*, Label*, CommandButton*, OptionButton*, Frame*, Slider*>;
using Handler = std::function<void()>;

/// Where a control lies in its container, in twips.
struct Place {
    float Left;
    float Top;
    float Width;
    float Height;
    friend bool operator==(const Place&, const Place&) = default;
};

struct Font {
    float points = 8.25F;
    bool bold = false;
    friend bool operator==(const Font&, const Font&) = default;
};

/// A form or a frame. It lists its controls in their order and does not own them: they are members of the form.
class Container : private NonMovable {
public:
    virtual ~Container() = default;

    virtual Form& form() = 0;
    /// Whether what the player does reaches the controls.
    virtual bool takesInput() const = 0;
    /// In twips.
    virtual float Width() const = 0;
    const std::vector<AnyControl>& controls() const { return controls_; }
    void add(AnyControl control) { controls_.push_back(control); }

private:
    std::vector<AnyControl> controls_;
};

/// A control holds its state. The desktop shows the state and calls the operations and handlers for what the player
/// does; a test calls the same. An ampersand marks a caption's access key. The caption of a picture box or a slider
/// does not show; it is the control's name for screen readers.
class Control : private NonMovable {
public:
    Control(Container& container, std::string name, std::string caption, const Place& place, int tabIndex);

    const std::string& Name() const { return name_; }
    const Place& place() const { return place_; }
    int TabIndex() const { return tabIndex_; }
    Container& container() const { return container_; }
    const std::string& Caption() const { return caption_; }
    void Caption(std::string caption);
    /// Whether what the player does reaches the control.
    bool takesInput() const { return container_.takesInput(); }

protected:
    ~Control() = default;
    /// Lets the desktop show the control's new state.
    void changed();

private:
    Container& container_;
    std::string name_;
    std::string caption_;
    Place place_;
    int tabIndex_;
};

/// A caption without the ampersand, and the letter that it marks as a capital; 0 for none.
struct PlainCaption {
    explicit PlainCaption(std::string caption);

    std::string text;
    char accessKey = 0;
};

/// A drawing surface that receives the mouse: the button, for a move the sum of those held (see Mouse.h); the sum of
/// the modifiers (see Keys.h); the place in whole twips.
class PictureBox : public Control, public DrawingSurface {
public:
    using MouseEvent = std::function<void(std::int16_t Button, std::int16_t Shift, float X, float Y)>;

    PictureBox(Container& container, std::string name, std::string caption, const Place& place, int tabIndex,
               Colour backColor);

    /// Whether it receives the mouse, and so keys and touches, which become the mouse.
    bool listens() const { return MouseDown != nullptr; }

    MouseEvent MouseDown;
    MouseEvent MouseMove;
    MouseEvent MouseUp;
    /// Where a held button drags, in whole twips; at first, everywhere.
    Rect dragBounds{.left = -1e6F, .top = -1e6F, .right = 1e6F, .bottom = 1e6F};

protected:
    void painted(const DisplayItem& item) override;
};

enum class TextAlign { Left, Centre };

class Label : public Control {
public:
    Label(Container& container, std::string name, std::string caption, const Place& place, int tabIndex, Font font = {},
          TextAlign align = TextAlign::Left);

    /// Whether its text is broken into as many lines as fit; the text of a low label stays in one.
    bool wraps() const { return place().Height >= leastWrappingHeight; }
    static constexpr float leastWrappingHeight = 600; // twips

    const Font font;
    const TextAlign align;

    // For screen readers: the controls of its form that it names and describes; for a frame, the choice in it.
    const Control* names = nullptr;
    const Control* describes = nullptr;
};

enum class ButtonFace { Caption, IconAboveCaption };

class CommandButton : public Control {
public:
    CommandButton(Container& container, std::string name, std::string caption, const Place& place, int tabIndex,
                  Handler click, std::vector<Key> pressedBy = {}, ButtonFace look = ButtonFace::Caption);

    void Click() const;
    /// Whether the key presses it wherever the focus is.
    bool pressedBy(Key key) const;

    const ButtonFace face;

private:
    Handler click_;
    std::vector<Key> keys_;
};

enum class Choice { Open, Selected };

/// One of the choices of its container, of which exactly one is selected.
class OptionButton : public Control {
public:
    OptionButton(Container& container, std::string name, std::string caption, const Place& place, int tabIndex,
                 Handler click, std::string tag = {}, Choice choice = Choice::Open);

    bool Value() const { return value_; }
    /// Deselects the other choices and raises the click; does nothing if it is selected already.
    void Select();
    const std::string& Tag() const { return tag_; }

private:
    Handler click_;
    std::string tag_;
    bool value_;
};

/// A titled box around the controls in it.
class Frame : public Control, public Container {
public:
    Frame(Container& container, std::string name, std::string caption, const Place& place, int tabIndex, Font font);

    Form& form() override { return Control::container().form(); }
    bool takesInput() const override { return Control::takesInput(); }
    float Width() const override { return place().Width; }

    const Font font;
};

/// An upright slider over whole numbers, its minimum at the top.
class Slider : public Control {
public:
    Slider(Container& container, std::string name, std::string caption, const Place& place, int tabIndex, int min,
           int max, Handler change);

    int Min() const { return min_; }
    void Min(int min);
    int Max() const { return max_; }
    void Max(int max);
    int Value() const { return value_; }
    /// Clamps the value to the range; raises the change if it differs.
    void Value(int value);
    /// The same for the player: does nothing while the form takes no input.
    void Slide(int value);

private:
    int min_;
    int max_;
    int value_;
    Handler change_;
};

inline const Control& asControl(const AnyControl& control) {
    return *std::visit([](const Control* each) { return each; }, control);
}

} // namespace tumble
