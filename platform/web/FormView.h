#pragma once

#include "platform/Captions.h"
#include "platform/Form.h"
#include "platform/web/Surface.h"

#include <functional>
#include <map>
#include <memory>
#include <vector>

namespace tumble {

/// What the keyboard reports. The pointer's keys have the numbers of `PointerKey`, those of the form come after them in
/// the order of `Key`.
struct KeyReport {
    int key;       // -1: none of these
    char letter;   // of an access key, a capital, or 0
    int shiftKeys; // 1 Shift, 2 Ctrl, 4 Alt, 8 Meta
    bool repeated;
};
inline constexpr int firstFormKey = 12;

/// Shows a form by elements of the page and reports to the form's controls what the player does. A modeless form fills
/// the page, a modal one is a dialog over it.
class FormView : private Pinned {
public:
    FormView(Form& form, Modality modality, PictureCache& pictures);
    ~FormView() { retire(); }

    const Form* form() const { return form_; }
    double scale() const { return layout_.scale; }
    bool shows() const { return shows_; }
    void show();
    void hide();
    void pointer(Pointer pointer) const;

    /// For a page of that size; a modal form at the scale of the one in front, if it fits.
    void layOut(PixelSize page, double scaleInFront);
    void changed(const Control& control);

    // What the page reports of its elements; nothing of those that it does not know.
    void pressed(int element) const;
    void slid(int element, int value) const;
    /// False for a key that means nothing here.
    bool key(int focus, const KeyReport& report) const;

    const std::vector<std::unique_ptr<Surface>>& surfaces() const { return surfaces_; }
    /// The elements go at once, and the form, which may be gone, hears no more.
    void retire();

private:
    struct Placed {
        int element;
        Place room;
    };

    void buildControls(const Container& container, int parent);
    int build(PictureBox& box, int parent);
    int build(Label& label, int parent);
    int build(CommandButton& button, int parent);
    int build(OptionButton& option, int parent);
    int build(Frame& frame, int parent);
    int build(Slider& slider, int parent);
    /// Adds the caption that an element shows to it, less wide and high than the control's room by a margin.
    void addCaption(Control& control, const CaptionStyle& style, Place room, PixelSize margin, int element);
    void takeInput(Control& control, AnyControl any, int element);

    Form* form_; // null once retired
    Modality modality_;
    PictureCache& pictures_;
    int window_;  // what is added to the page
    int content_; // where the controls are
    FormSize size_;
    Layout layout_;
    bool shows_ = false;
    std::vector<Placed> placed_;
    std::vector<std::unique_ptr<Surface>> surfaces_;
    std::unique_ptr<WebCanvas> icon_;
    std::map<int, AnyControl> inputs_; // by the elements that the player acts on
    std::multimap<const Control*, std::function<void()>> updates_;
    Captions captions_;
};

} // namespace tumble
