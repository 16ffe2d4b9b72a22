#pragma once

#include "platform/ShownForm.h"
#include "platform/web/Surface.h"

#include <map>
#include <memory>
#include <vector>

namespace tumble {

/// Shows a form by elements of the page and reports to the form's controls what the player does. A modeless form fills
/// the page, a modal one is a dialog over it.
class FormView : private Pinned {
public:
    FormView(Form& form, Modality modality, PictureCache& pictures);
    ~FormView() { retire(); }

    const Form* form() const { return shown_.form(); }
    double scale() const { return shown_.scale(); }
    bool shows() const { return shows_; }
    void show();
    void hide();
    void pointer(Pointer pointer) const;

    /// For a page of that size; a modal form at the scale of the one in front, if it fits.
    void layOut(PixelSize page, double scaleInFront);
    void changed(const Control& control) const { shown_.changed(control); }

    // What the page reports of its elements; nothing of those that it does not know.
    void input(int element, int value) const;
    /// False for a key that means nothing here.
    bool key(int focus, const KeyPress& press) const;

    const std::vector<std::unique_ptr<Surface>>& surfaces() const { return surfaces_; }
    /// The elements go at once, and the form, which may be gone, hears no more.
    void retire();

private:
    void buildControls(const Container& container, int parent);
    // Each returns what brings the element up to date.
    std::function<void()> build(PictureBox& box, int element);
    std::function<void()> build(Label& label, int element);
    std::function<void()> build(CommandButton& button, int element);
    std::function<void()> build(OptionButton& option, int element);
    std::function<void()> build(Frame& frame, int element);
    std::function<void()> build(Slider& slider, int element);
    /// The caption, which another element shows, has all of the control's room but a margin.
    template<class Captioned>
    void fit(const Captioned& control, PixelSize margin, int element);

    Modality modality_;
    PictureCache& pictures_;
    int window_;  // what is added to the page
    int content_; // where the controls are
    FormSize size_;
    ShownForm shown_;
    bool shows_ = false;
    std::vector<std::unique_ptr<Surface>> surfaces_;
    std::unique_ptr<WebCanvas> icon_;
    std::map<int, AnyControl> inputs_; // by the elements that the player acts on
    std::map<const Control*, int> elements_;
};

} // namespace tumble
