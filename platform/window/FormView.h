#pragma once

#include "platform/window/Captions.h"
#include "platform/window/SurfaceView.h"

#include <memory>
#include <utility>
#include <vector>

namespace tumble {

/// A form as a window shows it, whatever the window is made of: where its controls lie, which font their captions
/// have, and what the player does to them.
class FormView : private NonMovable {
public:
    FormView(Form& form, TextMeasure measure) : form_(&form), captions_(std::move(measure)) {}
    virtual ~FormView() = default;

    virtual void Show() = 0;
    virtual void Hide() = 0;
    virtual void MousePointer(Pointer pointer) = 0;
    virtual bool shows() const = 0;

    /// Null once detached.
    Form* form() const { return form_; }
    double scale() const { return layout_.scale; }
    const std::vector<SurfaceView*>& surfaces() const { return surfaces_; }
    /// Null for a box that is not the form's.
    SurfaceView* surface(const PictureBox& box) const;

    /// Clicks a button, selects an option button or moves a slider to a value, as the player did. The native widget
    /// has changed already; if the control refuses, the widget is reset.
    void input(const AnyControl& control, int value = 0) const;
    /// Shows a control's new state.
    void changed(const Control& control) const;

    /// Closes the window for good. The form receives nothing from now on and may be destroyed; the view itself is
    /// destroyed when no handler runs any more.
    virtual void detach();
    /// Called by `detach`, if somebody waits for it.
    Handler onClosed;

protected:
    void add(const AnyControl& control, std::unique_ptr<ControlView> view);
    /// The view is that of a picture box and lasts as long as the window.
    void add(SurfaceView& surface) { surfaces_.push_back(&surface); }
    /// Places all controls and brings them up to date. Those of the form itself, not of a frame, lie `origin` further
    /// to the right and down than the form states.
    void layOut(const Layout& layout, PixelPoint origin = {});
    void scale(double scale) { layout_.scale = scale; }
    const Layout& formLayout() const { return layout_; }

private:
    struct Each {
        AnyControl control;
        Place place;
        std::unique_ptr<ControlView> view;
    };

    void updateAll() const;

    Form* form_;
    Layout layout_;
    std::vector<Each> controls_;
    std::vector<SurfaceView*> surfaces_;
    Captions captions_;
};

} // namespace tumble
