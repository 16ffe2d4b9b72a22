#include "platform/web/FormElement.h"

#include "platform/forms/Desktop.h"

#include <array>
#include <cmath>
#include <string>

namespace tumble {

namespace {

// In the order of `AnyControl`: a template of index.html, and what a caption leaves free at scale 1, as in style.css.
constexpr std::array templates{"picture", "label", "button", "option", "frame", "slider"};
constexpr std::array<PixelSize, templates.size()> margins{{{}, {}, {8, 4}, {20, 0}, {frameCaptionHeight, 0}, {}}};

constexpr double lineHeight = 1.25; // of the font's size, as in style.css

TextSize measure(const std::string& text, const CaptionFont& font, std::optional<int> width) {
    const auto widthOf = [&font](const std::string& piece) {
        return page_textWidth(piece.c_str(), font.pixels(), font.bold) * font.stretch / 100;
    };
    return textSize(PlainCaption(text).text, widthOf, static_cast<int>(std::ceil(font.pixels() * lineHeight)), width);
}

void place(const Control& /*control*/, int element, const PixelRect& to) {
    page_place(element, to.left, to.top, to.width(), to.height());
}

// Lies, turned about its upper left corner.
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

} // namespace

FormElement::FormElement(Form& form, Modality modality, PictureCache& pictures)
    : FormView(form, measure),
      modality_(modality),
      pictures_(pictures),
      window_(page_add(0, modality == Modality::Modal ? "dialog" : "window")),
      content_(page_add(window_, "content")) {
    page_caption(window_, form.Caption().c_str());
    build(form, content_);
}

void FormElement::build(const Container& container, int parent) {
    for (const AnyControl& any : inTabOrder(container)) {
        const int element = page_add(parent, templates.at(any.index()));
        page_attribute(element, "data-name", asControl(any).Name().c_str());
        const auto build = [&, margin = margins.at(any.index())](auto* control) {
            complete(*control, element);
            const auto update = [this, control, element] {
                page_caption(element, control->Caption().c_str());
                showValue(*control, element);
                relate(*control, element);
            };
            const auto captionArea = [this, control, margin] { return availableSize(*control, margin); };
            const auto setFont = [element](const CaptionFont& font) {
                page_font(element, font.pixels(), font.bold, font.stretch);
            };
            const auto placed = [control, element](const PixelRect& to) { place(*control, element, to); };
            add(any, {placed, update, captionArea, setFont, element});
        };
        std::visit(build, any);
    }
}

void FormElement::complete(const Label& label, int element) {
    const std::string wraps = captionStyle(label).wrap == Wrap::No ? "" : "wraps ";
    page_attribute(element, "class", (wraps + (label.align == TextAlign::Centre ? "centred" : "")).c_str());
}

void FormElement::complete(const CommandButton& button, int element) {
    if (button.face == ButtonFace::IconAboveCaption) {
        page_add(element, "icon");
    }
    page_attribute(element, "class", button.pressedBy(Key::Enter) ? "default" : "");
}

void FormElement::relate(const Label& label, int element) const {
    if (label.describes != nullptr) {
        // Spoken when it becomes another, and when the player comes to what it tells of.
        page_attribute(element, "aria-live", "polite");
        page_attribute(elementOf(*label.describes), "aria-describedby", std::to_string(element).c_str());
    }
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
    FormView::detach();
    shows_ = false;
    page_remove(window_);
}

void FormElement::fit(PixelSize page) {
    const Application& App = desktop().App();
    const FormSize size(form()->Width(), form()->Height());
    const bool isModal = modality_ == Modality::Modal;
    layOut(isModal ? layoutOver({App.Width, App.Height}, size, page) : layoutOf(size, page, 1));
    page_unit(isModal ? window_ : 0, scale()); // message boxes have the page's
    page_place(content_, content().left, content().top, content().width(), content().height());
    for (SurfaceElement& canvas : canvases_) {
        canvas.layOut(availableSize(*canvas.box()), PixelScale(scale()));
    }
}

} // namespace tumble
