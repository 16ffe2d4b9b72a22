#pragma once

#include "platform/web/Page.h"
#include "platform/web/SurfaceElement.h"
#include "platform/window/FormView.h"

#include <list>
#include <map>
#include <optional>
#include <string>

namespace tumble {

/// The size of a text in pixels of the screen; a `TextMeasure`.
TextSize measure(const std::string& text, const CaptionFont& font, std::optional<int> width);

/// Shows a form by elements of the page. A modeless form fills the page, a modal one is a dialog over it.
class FormElement : public FormView {
public:
    FormElement(Form& form, Modality modality, PictureCache& pictures);

    void Show() override;
    void Hide() override;
    void MousePointer(Pointer pointer) override;
    bool shows() const override { return shows_; }
    void detach() override;

    /// For a page of that size. A modal form has the scale of the program's largest form, if it fits.
    void fit(PixelSize page);

    /// Null for an element that shows no picture box of the form.
    SurfaceElement* surface(int element);
    /// What the player does to the control that an element shows; nothing for other elements.
    void input(int element, int value) const;
    /// Whether the key means something where the focus is, which may be elsewhere than at an element of the form.
    bool key(int focused, const KeyPress& press);

private:
    template<class ControlType>
    class ElementView;

    void build(const Container& container, int parent);
    // What a control has besides its place, its caption and its value.
    static void complete(const Control& /*control*/, int /*element*/) {}
    void complete(PictureBox& box, int element) { FormView::add(surfaces_.emplace_back(box, element, pictures_)); }
    static void complete(const Label& label, int element);
    static void complete(const CommandButton& button, int element);
    void complete(const Frame& frame, int element) { build(frame, element); }
    void relate(const Control& /*control*/, int /*element*/) const {}
    void relate(const Label& label, int element) const;
    int elementOf(const Control& control) const;

    Modality modality_;
    PictureCache& pictures_;
    int window_;  // what is added to the page
    int content_; // where the controls are
    bool shows_ = false;
    std::map<int, AnyControl> controls_; // by element
    std::list<SurfaceElement> surfaces_;
};

} // namespace tumble
