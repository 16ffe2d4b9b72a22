#pragma once

#include "platform/web/Page.h"
#include "platform/web/SurfaceElement.h"
#include "platform/window/FormView.h"

#include <list>

namespace tumble {

/// Shows a form by elements of the page. A modeless form fills the page, a modal one is a dialog over it.
class FormElement : public FormView {
public:
    FormElement(Form& form, Modality modality, PictureCache& pictures);

    void Show() override;
    void Hide() override;
    void MousePointer(Pointer pointer) override;
    bool shows() const override { return shows_; }
    void detach() override;

    /// For a page of that size. A modal form has the scale of the program's largest one, if it fits.
    void fit(PixelSize page);

private:
    void build(const Container& container, int parent);
    // What a control has besides its place, its caption and its value.
    static void complete(const Control& /*control*/, int /*element*/) {}
    void complete(PictureBox& box, int element) { add(canvases_.emplace_back(box, element, pictures_)); }
    static void complete(const Label& label, int element);
    static void complete(const CommandButton& button, int element);
    void complete(const Frame& frame, int element) { build(frame, element); }
    void relate(const Control& /*control*/, int /*element*/) const {}
    void relate(const Label& label, int element) const;
    void focus(int element) override { page_focus(element); }

    Modality modality_;
    PictureCache& pictures_;
    int window_;  // what is added to the page
    int content_; // where the controls are
    bool shows_ = false;
    std::list<SurfaceElement> canvases_;
};

} // namespace tumble
