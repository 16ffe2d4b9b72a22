#pragma once

#include "platform/window/Captions.h"
#include "platform/window/Layout.h"
#include "platform/window/SurfaceView.h"

#include <functional>
#include <optional>
#include <utility>
#include <vector>

namespace tumble {

/// What a window has made of a control.
struct ControlView {
    /// Places it among the pixels of its container,
    std::function<void(const PixelRect&)> place;
    /// and makes it show the control's state.
    std::function<void()> update;
    // Of a control that shows its caption:
    Captions::AvailableSize captionArea{};
    Captions::SetFont setFont{};
    /// The toolkit's number of what shows it, if there are such.
    int element = 0;
};

/// A form as a window shows it: the role that a desktop's window fills, and what does not depend on what the window is
/// made of: where its controls lie, what they say and what the player does to them.
class FormView : private NonMovable {
public:
    FormView(Form& form, TextMeasure measure) : form_(&form), captions_(std::move(measure)) {}
    virtual ~FormView() = default;

    virtual void Show() = 0;
    virtual void Hide() = 0;
    virtual void MousePointer(Pointer pointer) = 0;
    virtual bool shows() const = 0;

    /// Null once retired.
    Form* form() const { return form_; }
    double scale() const { return layout_.scale; }
    const std::vector<SurfaceView*>& surfaces() const { return surfaces_; }
    // Null for a box that is not the form's, and for an element that shows no box of it.
    SurfaceView* surface(const PictureBox& box) const;
    SurfaceView* surface(int element) const;

    /// What the player does to the control that an element shows, as below; nothing for other elements.
    void input(int element, int value) const;
    /// What a key does where the toolkit leaves it to the form; false for a key that means nothing. The focus may be
    /// elsewhere than at an element of the form.
    bool key(int focused, const KeyPress& press);

    /// Shows a control's new state.
    void changed(const Control& control) const;
    /// Comes off the screen for good. The form may be gone from now on, and hears no more; the window itself goes when
    /// no handler runs any more.
    virtual void detach();
    /// Called by `detach`, where somebody waits for it.
    Handler onClosed;

protected:
    /// Adds a control of the form.
    void add(const AnyControl& control, ControlView shown);
    /// Of a picture box; the window has it for as long as it lasts.
    void add(SurfaceView& surface) { surfaces_.push_back(&surface); }
    /// Places all controls and brings them up to date.
    void layOut(const Layout& layout);
    void scale(double scale) { layout_.scale = scale; }
    const PixelRect& content() const { return layout_.content; }
    // Of a control that was added: the pixels that it has, less a margin given for scale 1; and what shows it.
    PixelSize availableSize(const Control& control, PixelSize margin = {}) const;
    int elementOf(const Control& control) const;

    /// The player clicks the button, chooses the option or moves the slider to a value. A toolkit shows that before
    /// anybody is asked: where nothing came of it, what holds shows again.
    void input(const AnyControl& control, int value = 0) const;
    /// Gives the focus to an element, to which a key has led.
    virtual void focus(int /*element*/) {}

private:
    struct Each {
        AnyControl control;
        Place room;
        ControlView shown;
    };

    void updateAll() const;
    const Each& each(const Control& control) const;
    /// None for an element that shows none.
    std::optional<AnyControl> control(int element) const;

    Form* form_;
    Layout layout_;
    std::vector<Each> controls_;
    std::vector<SurfaceView*> surfaces_;
    Captions captions_;
};

/// The controls of a container in the order in which a window makes them: that of their tab indexes.
std::vector<AnyControl> inTabOrder(const Container& container);

} // namespace tumble
