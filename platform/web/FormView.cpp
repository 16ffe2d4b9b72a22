#include "platform/web/FormView.h"

#include "platform/web/Page.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>

namespace tumble {

namespace {

/// A template of index.html, and what its caption leaves free at scale 1, as in style.css.
struct Template {
    const char* name;
    PixelSize margin{};
};

// In the order of `AnyControl`.
constexpr std::array<Template, 6> templates{
    {{"picture"}, {"label"}, {"button", {8, 4}}, {"option", {20, 0}}, {"frame", {frameCaptionHeight, 0}}, {"slider"}}};

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
    for (const auto& [element, any] : controls_) {
        auto* const* label = std::get_if<Label*>(&any);
        if (label != nullptr && (*label)->describes != nullptr) {
            // Spoken when it becomes another, and when the player comes to what it tells of.
            page_attribute(element, "aria-live", "polite");
            page_attribute(elementOf(*(*label)->describes), "aria-describedby", std::to_string(element).c_str());
        }
    }
}

void FormView::build(const Container& container, int parent) {
    for (const AnyControl& any : inTabOrder(container)) {
        const auto& [name, margin] = templates.at(any.index());
        const int element = page_add(parent, name);
        page_attribute(element, "data-name", asControl(any).Name().c_str());
        controls_.emplace(element, any);
        const auto build = [&, free = margin](auto* control) {
            if constexpr (requires { complete(*control, element); }) {
                complete(*control, element);
            }
            const auto update = [control, element] {
                page_caption(element, control->Caption().c_str());
                showValue(*control, element);
            };
            const auto captionRoom = [this, control, free]() -> PixelSize {
                const auto [width, height] = roomFor(*control);
                return {width - static_cast<int>(free.width * scale()),
                        height - static_cast<int>(free.height * scale())};
            };
            const auto setFont = [element](const CaptionFont& font) {
                page_font(element, font.points * pixelsPerPoint, font.bold, font.stretch);
            };
            add(any, {[element](const PixelRect& to) { place(element, to); }, update, captionRoom, setFont});
        };
        std::visit(build, any);
    }
}

void FormView::complete(PictureBox& box, int element) {
    add(canvases_.emplace_back(box, element, pictures_));
}

void FormView::complete(const Label& label, int element) {
    const std::string wraps = captionStyle(label).wrap == Wrap::No ? "" : "wraps ";
    page_attribute(element, "class", (wraps + (label.align == TextAlign::Centre ? "centred" : "")).c_str());
}

void FormView::complete(const CommandButton& button, int element) {
    const std::string face = button.face == ButtonFace::IconAboveCaption ? "icon " : "";
    page_attribute(element, "class", (face + (button.pressedBy(Key::Enter) ? "default" : "")).c_str());
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

void FormView::retire() {
    ShownForm::retire();
    shows_ = false;
    controls_.clear();
    page_remove(window_);
}

void FormView::fit(PixelSize page, double scaleInFront) {
    const FormSize size(form()->Width(), form()->Height());
    layOut(modality_ == Modality::Modal ? layoutOver(size, page, scaleInFront) : layoutOf(size, page, 1));
    page_unit(window_, scale());
    place(content_, content());
    for (Surface& canvas : canvases_) {
        canvas.layOut(roomFor(*canvas.box()), PixelScale(scale()));
    }
}

void FormView::input(int element, int value) const {
    if (const AnyControl* any = control(element)) {
        ShownForm::input(*any, value);
    }
}

bool FormView::key(int focus, const KeyPress& press) {
    return ShownForm::key(control(focus), press);
}

void FormView::focus(const AnyControl& control) {
    page_focus(elementOf(asControl(control)));
}

const AnyControl* FormView::control(int element) const {
    const auto found = controls_.find(element);
    return found != controls_.end() ? &found->second : nullptr;
}

int FormView::elementOf(const Control& control) const {
    return std::find_if(controls_.begin(), controls_.end(),
                        [&](const auto& each) { return &asControl(each.second) == &control; })
        ->first;
}

} // namespace tumble
