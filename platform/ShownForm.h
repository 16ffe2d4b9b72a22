#pragma once

#include "platform/Captions.h"
#include "platform/Layout.h"
#include "platform/Pinned.h"

#include <functional>
#include <utility>
#include <vector>

namespace tumble {

/// A form as a window shows it, whatever the window is made of: where its controls lie and what they say.
class ShownForm : private Pinned {
public:
    ShownForm(Form& form, Captions captions) : form_(&form), captions_(std::move(captions)) {}

    /// Null once retired.
    Form* form() const { return form_; }
    double scale() const { return layout_.scale; }
    const Layout& layout() const { return layout_; }
    /// The pixels that the control has.
    PixelSize roomFor(const Control& control) const;

    /// Adds a control of the form, by what places what shows it, among the pixels of its container, and what makes that
    /// show the control's state.
    void add(AnyControl control, std::function<void(const PixelRect&)> place, std::function<void()> update);
    Captions& captions() { return captions_; }

    /// Places all controls and brings them up to date.
    void layOut(const Layout& layout);
    /// A control is to be brought up to date.
    void changed(const Control& control) const;
    /// All are.
    void changed() const;
    /// The form may be gone from now on.
    void retire();

private:
    struct Shown {
        const Control* control;
        Place room;
        std::function<void(const PixelRect&)> place;
        std::function<void()> update;
    };

    Form* form_;
    Layout layout_;
    std::vector<Shown> controls_;
    Captions captions_;
};

} // namespace tumble
