#pragma once

#include "platform/Captions.h"
#include "platform/Form.h"
#include "platform/web/Surface.h"

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
    ~FormView();

    const Form* form() const { return form_; }
    double scale() const { return layout_.scale; }
    bool shows() const { return shows_; }
    void shows(bool shows);
    void pointer(Pointer pointer);

    /// For a page of that size; a modal form at the scale of the one in front, if it fits.
    void layOut(PixelSize page, double scaleInFront);
    void changed(const Control& control);
    void showPaintings();
    void recolour();
    void letGo();

    // What the page reports of its elements; nothing of those that it does not know.
    void pressed(int element);
    void slid(int element, int value);
    /// False for a key that means nothing here.
    bool key(int focus, const KeyReport& report);
    Surface* surface(int element);

    /// The elements go at once, and the form, which may be gone, hears no more.
    void retire();

private:
    struct Shown {
        AnyControl control;
        int element; // that has its place
        int input;   // that the player acts on; 0: none
        int caption; // 0: none
        Place room;
        std::unique_ptr<Surface> surface{};
        std::unique_ptr<WebCanvas> icon{};
    };

    void build(const Container& container, int parent);
    Shown made(PictureBox& box, int parent);
    Shown made(Label& label, int parent);
    Shown made(CommandButton& button, int parent);
    Shown made(OptionButton& option, int parent);
    Shown made(Frame& frame, int parent);
    Shown made(Slider& slider, int parent);
    void captioned(const Control& control, const CaptionStyle& style, int caption, Place room, PixelSize margin);
    void update(const Shown& shown) const;
    const Shown* shownAs(int input) const;
    void focusFirst() const;
    bool key(OptionButton& option, PointerKey key);
    bool key(Slider& slider, PointerKey key);

    Form* form_; // null once retired
    Modality modality_;
    PictureCache& pictures_;
    int window_;  // what is added to the page
    int content_; // where the controls are
    FormSize size_;
    Layout layout_;
    bool shows_ = true;
    std::vector<Shown> shown_;
    Captions captions_;
};

} // namespace tumble
