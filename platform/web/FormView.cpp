#include "platform/web/FormView.h"

#include "platform/Desktop.h"
#include "platform/web/Page.h"

#include <array>
#include <cmath>
#include <string>

namespace tumble {

namespace {

// In the order of `AnyControl`: a template of index.html, and what a caption leaves free at scale 1, as in style.css.
constexpr std::array templates{"picture", "label", "button", "option", "frame", "slider"};
constexpr std::array<PixelSize, templates.size()> margins{{{}, {}, {8, 4}, {20, 0}, {frameCaptionHeight, 0}, {}}};

constexpr double pixelsPerPoint = 4.0 / 3;
constexpr double lineHeight = 1.25; // of the font's size, as in style.css

TextSize measure(const std::string& text, const CaptionFont& font, std::optional<int> width) {
    const double pixels = font.points * pixelsPerPoint;
    const auto widthOf = [&font, pixels](const std::string& piece) {
        return page_textWidth(piece.c_str(), pixels, font.bold) * font.stretch / 100;
    };
    return textSize(PlainCaption(text).text, widthOf, static_cast<int>(std::ceil(pixels * lineHeight)), width);
}

void place(int element, const PixelRect& to) {
    page_place(element, to.left, to.top, to.width(), to.height());
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

FormView::FormView(Form& form, Modality modality, PictureCache& pictures)
    : ShownForm(form, measure),
      modality_(modality),
      pictures_(pictures),
      window_(page_add(0, modality == Modality::Modal ? "dialog" : "window")),
      content_(page_add(window_, "content")) {
    page_caption(window_, form.Caption().c_str());
    build(form, content_);
}

void FormView::build(const Container& container, int parent) {
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
            const auto captionRoom = [this, control, margin]() -> PixelSize {
                const auto [width, height] = roomFor(*control);
                return {width - static_cast<int>(margin.width * scale()),
                        height - static_cast<int>(margin.height * scale())};
            };
            const auto setFont = [element](const CaptionFont& font) {
                page_font(element, font.points * pixelsPerPoint, font.bold, font.stretch);
            };
            add(any, {[element](const PixelRect& to) { place(element, to); }, update, captionRoom, setFont, element});
        };
        std::visit(build, any);
    }
}

void FormView::complete(const Label& label, int element) {
    const std::string wraps = captionStyle(label).wrap == Wrap::No ? "" : "wraps ";
    page_attribute(element, "class", (wraps + (label.align == TextAlign::Centre ? "centred" : "")).c_str());
}

void FormView::complete(const CommandButton& button, int element) {
    const std::string face = button.face == ButtonFace::IconAboveCaption ? "icon " : "";
    page_attribute(element, "class", (face + (button.pressedBy(Key::Enter) ? "default" : "")).c_str());
}

void FormView::relate(const Label& label, int element) const {
    if (label.describes != nullptr) {
        // Spoken when it becomes another, and when the player comes to what it tells of.
        page_attribute(element, "aria-live", "polite");
        page_attribute(elementOf(*label.describes), "aria-describedby", std::to_string(element).c_str());
    }
}

void FormView::Show() {
    shows_ = true;
    page_show(window_);
}

void FormView::Hide() {
    shows_ = false;
    page_property(window_, "hidden", 1);
}

void FormView::MousePointer(Pointer pointer) {
    page_attribute(window_, "class", pointer == Pointer::Hourglass ? "window busy" : "window");
}

void FormView::focus(int element) {
    page_focus(element);
}

void FormView::retire() {
    ShownForm::retire();
    shows_ = false;
    page_remove(window_);
}

void FormView::fit(PixelSize page) {
    const Application& App = desktop().App();
    const FormSize size(form()->Width(), form()->Height());
    const double largest = layoutOf({App.Width, App.Height}, page, 1).scale;
    layOut(modality_ == Modality::Modal ? layoutOver(size, page, largest) : layoutOf(size, page, 1));
    page_unit(window_, scale());
    place(content_, content());
    for (Surface& canvas : canvases_) {
        canvas.layOut(roomFor(*canvas.box()), PixelScale(scale()));
    }
}

} // namespace tumble
