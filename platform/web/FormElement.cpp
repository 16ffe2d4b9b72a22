#include "platform/web/FormElement.h"

#include "platform/web/ControlKeys.h"
#include "platform/web/TextLayout.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <memory>
#include <vector>

namespace tumble {

namespace {

constexpr std::array templates{"picture", "label", "button",
                               "option",  "frame", "slider"}; // as `AnyControl`, index.html
constexpr double lineHeight = 1.25;                           // of the font's size, as in style.css
constexpr double mostOfPage = 0.9;                            // for a dialog and its frame

void place(const Control& /*control*/, int element, const PixelRect& to) {
    page_place(element, to.left, to.top, to.width(), to.height());
}

// The slider lies, turned about its upper left corner.
void place(const Slider& /*slider*/, int element, const PixelRect& to) {
    page_place(element, to.right + 1, to.top, to.height(), to.width());
}

void showValue(const Control& /*control*/, int /*element*/) {}

void showValue(const OptionButton& option, int element) {
    page_property(element, "checked", option.Value());
}

void showValue(const Slider& slider, int element) {
    page_property(element, "min", slider.Min());
    page_property(element, "max", slider.Max());
    page_property(element, "value", slider.Value());
}

std::vector<AnyControl> inTabOrder(const Container& container) {
    std::vector<AnyControl> controls = container.controls();
    std::stable_sort(controls.begin(), controls.end(), [](const AnyControl& one, const AnyControl& other) {
        return asControl(one).TabIndex() < asControl(other).TabIndex();
    });
    return controls;
}

/// A dialog at the scale of the program's largest form on the page, or at one at which it fits.
Layout layoutOfDialog(const FormSize& dialog, PixelSize page) {
    const Application& App = desktop().App();
    const double scale = std::min(layoutOf({App.Width, App.Height}, page, 1).scale,
                                  mostOfPage * dialog.scaleToFit(page.width, page.height));
    return {.scale = scale, .content = dialog.at(scale).at({})};
}

} // namespace

TextSize measure(const std::string& text, const CaptionFont& font, std::optional<int> width) {
    const auto widthOf = [&font](const std::string& piece) {
        return page_textWidth(piece.c_str(), font.pixels(), font.bold) * font.stretch / 100;
    };
    return textSize(PlainCaption(text).text, widthOf, static_cast<int>(std::ceil(font.pixels() * lineHeight)), width);
}

template<class ControlType>
class FormElement::ElementView : public ControlView {
public:
    ElementView(const FormElement& form, const ControlType& control, int element)
        : form_(form), control_(control), element_(element) {}

    void place(const PixelRect& pixels) override { tumble::place(control_, element_, pixels); }
    void update(double /*scale*/) override {
        page_caption(element_, control_.Caption().c_str());
        showValue(control_, element_);
        form_.relate(control_, element_);
    }
    void setFont(const CaptionFont& font) override { page_font(element_, font.pixels(), font.bold, font.stretch); }

private:
    const FormElement& form_;
    const ControlType& control_;
    int element_;
};

FormElement::FormElement(Form& form, Modality modality, PictureCache& pictures)
    : FormView(form, measure),
      modality_(modality),
      pictures_(pictures),
      window_(page_add(0, modality == Modality::Modal ? "dialog" : "window")),
      content_(page_add(window_, "content")) {
    page_caption(window_, form.Caption().c_str());
    if (form.kind == FormKind::Alert) {
        page_attribute(window_, "role", "alertdialog");
    }
    build(form, content_);
}

void FormElement::build(const Container& container, int parent) {
    for (const AnyControl& any : inTabOrder(container)) {
        const int element = page_add(parent, templates.at(any.index()));
        page_attribute(element, "data-name", asControl(any).Name().c_str());
        controls_.emplace(element, any);
        std::visit(
            [&](auto* control) {
                complete(*control, element);
                FormView::add(any, std::make_unique<ElementView<std::remove_pointer_t<decltype(control)>>>(
                                       *this, *control, element));
            },
            any);
    }
}

void FormElement::complete(const Label& label, int element) {
    const std::string wraps = label.wraps() ? "wraps " : "";
    page_attribute(element, "class", (wraps + (label.align == TextAlign::Centre ? "centred" : "")).c_str());
}

void FormElement::complete(const CommandButton& button, int element) {
    if (button.face == ButtonFace::IconAboveCaption) {
        page_add(element, "icon");
    }
    page_attribute(element, "class", button.pressedBy(Key::Enter) ? "default" : "");
}

void FormElement::relate(const Label& label, int element) const {
    if (form()->kind == FormKind::Alert) {
        page_attribute(window_, "aria-describedby", std::to_string(element).c_str());
    }
    if (label.describes != nullptr) {
        // Spoken when it changes, and when the player comes to the control that it describes.
        page_attribute(element, "aria-live", "polite");
        page_attribute(elementOf(*label.describes), "aria-describedby", std::to_string(element).c_str());
    }
}

int FormElement::elementOf(const Control& control) const {
    return std::find_if(controls_.begin(), controls_.end(),
                        [&](const auto& each) { return &asControl(each.second) == &control; })
        ->first;
}

void FormElement::Show() {
    shows_ = true;
    page_show(window_);
}

void FormElement::Hide() {
    shows_ = false;
    page_property(window_, "hidden", 1);
}

void FormElement::MousePointer(Pointer pointer) {
    page_attribute(window_, "class", pointer == Pointer::Hourglass ? "window busy" : "window");
}

void FormElement::detach() {
    controls_.clear();
    FormView::detach();
    shows_ = false;
    page_remove(window_);
}

void FormElement::fit(PixelSize page) {
    const FormSize size(form()->Width(), form()->Height());
    const bool isModal = modality_ == Modality::Modal;
    layOut(isModal ? layoutOfDialog(size, page) : layoutOf(size, page, 1));
    page_unit(window_, scale());
    const PixelRect& content = formLayout().content;
    page_place(content_, content.left, content.top, content.width(), content.height());
    for (SurfaceElement& surface : surfaces_) {
        surface.layOut(formLayout().pixels(surface.box()->place()).size(), PixelScale(scale()));
    }
}

SurfaceElement* FormElement::surface(int element) {
    const auto found = std::find_if(surfaces_.begin(), surfaces_.end(),
                                    [&](const SurfaceElement& each) { return each.element() == element; });
    return found != surfaces_.end() && found->box() != nullptr ? &*found : nullptr;
}

void FormElement::input(int element, int value) const {
    if (const auto found = controls_.find(element); found != controls_.end()) {
        const AnyControl control = found->second;
        FormView::input(control, value);
    }
}

bool FormElement::key(int focused, const KeyPress& press) {
    if (press.letter != 0) {
        return press.repeated || form()->pressAccessKey(press.letter);
    }
    if (press.key >= Key::Enter && press.key != Key::Other) {
        if (!press.repeated) {
            form()->press(press.key);
        }
        return true;
    }
    const auto found = controls_.find(focused);
    if (found == controls_.end() || press.key == Key::Other) {
        return false;
    }
    if (SurfaceElement* focusedSurface = surface(focused)) {
        return focusedSurface->key(press);
    }
    const auto now = tumble::press(found->second, press.key);
    if (now && form() != nullptr) {
        page_focus(elementOf(asControl(*now)));
    }
    return now.has_value();
}

} // namespace tumble
