#pragma once

#include "platform/ShownForm.h"
#include "platform/web/Surface.h"

#include <list>
#include <map>

namespace tumble {

/// Shows a form by elements of the page. A modeless form fills the page, a modal one is a dialog over it.
class FormView : public ShownForm {
public:
    FormView(Form& form, Modality modality, PictureCache& pictures);

    void Show() override;
    void Hide() override;
    void MousePointer(Pointer pointer) override;
    bool shows() const override { return shows_; }
    void retire() override;

    /// For a page of that size; a modal form at the scale of the one in front, if it fits.
    void fit(PixelSize page, double scaleInFront);

    // What the page reports of its elements; nothing of those that it does not know.
    void input(int element, int value) const;
    /// False for a key that means nothing here.
    bool key(int focus, const KeyPress& press);

private:
    void build(const Container& container, int parent);
    // What a control has besides its place, its caption and its value.
    void complete(PictureBox& box, int element);
    static void complete(const Label& label, int element);
    static void complete(const CommandButton& button, int element);
    void complete(const Frame& frame, int element) { build(frame, element); }
    void focus(const AnyControl& control) override;
    const AnyControl* control(int element) const;
    int elementOf(const Control& control) const;

    Modality modality_;
    PictureCache& pictures_;
    int window_;  // what is added to the page
    int content_; // where the controls are
    bool shows_ = false;
    std::map<int, AnyControl> controls_; // by their elements
    std::list<Surface> canvases_;
};

} // namespace tumble
