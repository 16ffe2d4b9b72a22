#include "platform/web/FormView.h"

#include "platform/Desktop.h"
#include "platform/web/Page.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>
#include <type_traits>

namespace tumble {

namespace {

// Of index.html, in the order of `AnyControl`.
constexpr std::array templates{"picture", "label", "button", "option", "frame", "slider"};

constexpr PixelSize buttonMargin{8, 4}; // at scale 1, as below
constexpr PixelSize markMargin{20, 0};  // as in style.css
constexpr PixelSize frameMargin{frameCaptionHeight, 0};
constexpr double pixelsPerPoint = 4.0 / 3;
constexpr double lineHeight = 1.25; // of the font's size, as in style.css

double pixels(const CaptionFont& font) {
    return font.points * pixelsPerPoint;
}

TextSize measure(const std::string& text, const CaptionFont& font, std::optional<int> width) {
    const auto widthOf = [&font](const std::string& piece) {
        return page_textWidth(piece.c_str(), pixels(font), font.bold) * font.stretch / 100;
    };
    return textSize(PlainCaption(text).text, widthOf, static_cast<int>(std::ceil(pixels(font) * lineHeight)), width);
}

/// The document's order is the tab order.
std::multimap<int, AnyControl> inTabOrder(const Container& container) {
    std::multimap<int, AnyControl> controls;
    for (const AnyControl& any : container.controls()) {
        controls.emplace(std::visit([](const auto* control) { return control->TabIndex(); }, any), any);
    }
    return controls;
}

void place(int element, const PixelRect& to) {
    page_place(element, to.left, to.top, to.width(), to.height());
}

} // namespace

FormView::FormView(Form& form, Modality modality, PictureCache& pictures)
    : modality_(modality),
      pictures_(pictures),
      window_(page_add(0, modality == Modality::Modal ? "dialog" : "window")),
      content_(modality == Modality::Modal ? window_ + 2 : window_),
      size_(form.Width(), form.Height()),
      shown_(form, Captions(measure)) {
    page_attribute(window_, "aria-label", form.Caption().c_str());
    if (modality == Modality::Modal) {
        page_caption(window_ + 1, form.Caption().c_str());
    }
    buildControls(form, content_);
}

void FormView::show() {
    shows_ = true;
    page_show(window_);
}

void FormView::hide() {
    shows_ = false;
    page_property(window_, "hidden", 1);
}

void FormView::pointer(Pointer pointer) const {
    page_attribute(window_, "class", pointer == Pointer::Hourglass ? "window busy" : "window");
}

void FormView::buildControls(const Container& container, int parent) {
    for (const auto& [index, any] : inTabOrder(container)) {
        const int element = page_add(parent, templates.at(any.index()));
        const auto add = [&, any = any](auto* control) {
            page_attribute(element, "data-name", control->Name().c_str());
            elements_.emplace(control, element);
            if constexpr (std::is_same_v<decltype(control), OptionButton*>) {
                page_attribute(element + 1, "name", std::to_string(parent).c_str()); // one choice for each container
            }
            shown_.add(
                any, [element](const PixelRect& to) { place(element, to); }, build(*control, element));
        };
        std::visit(add, any);
    }
}

std::function<void()> FormView::build(PictureBox& box, int element) {
    surfaces_.push_back(std::make_unique<Surface>(box, element, element + 1, pictures_));
    if (box.listens()) {
        page_property(element, "tabIndex", 0);
    }
    return [&box, element] { page_attribute(element, "aria-label", box.Caption().c_str()); };
}

std::function<void()> FormView::build(Label& label, int element) {
    page_attribute(element, "class", label.align == TextAlign::Centre ? "centred" : "");
    fit(label, {}, element + 1);
    if (label.describes == nullptr) {
        return [&label, element] { page_caption(element + 1, label.Caption().c_str()); };
    }
    // Spoken when it becomes another, and when the player comes to what it tells of.
    page_attribute(element, "aria-live", "polite");
    const std::string id = "label" + std::to_string(element);
    page_attribute(element, "id", id.c_str());
    return [this, &label, element, id] {
        page_caption(element + 1, label.Caption().c_str());
        page_attribute(elements_.at(label.describes), "aria-describedby", id.c_str());
    };
}

std::function<void()> FormView::build(CommandButton& button, int element) {
    page_attribute(element, "class", button.pressedBy(Key::Enter) ? "default" : "");
    if (button.face == ButtonFace::IconAboveCaption) {
        icon_ = std::make_unique<WebCanvas>(element + 1);
    }
    fit(button, buttonMargin, element + 2);
    inputs_.emplace(element, &button);
    return [&button, element] { page_caption(element + 2, button.Caption().c_str()); };
}

std::function<void()> FormView::build(OptionButton& option, int element) {
    fit(option, markMargin, element + 2);
    inputs_.emplace(element + 1, &option);
    return [&option, element] {
        page_caption(element + 2, option.Caption().c_str());
        page_property(element + 1, "checked", option.Value());
    };
}

std::function<void()> FormView::build(Frame& frame, int element) {
    fit(frame, frameMargin, element + 2);
    buildControls(frame, element);
    return [&frame, element] { page_caption(element + 2, frame.Caption().c_str()); };
}

std::function<void()> FormView::build(Slider& slider, int element) {
    inputs_.emplace(element + 1, &slider);
    return [&slider, input = element + 1] {
        page_attribute(input, "aria-label", slider.Caption().c_str());
        page_property(input, "min", slider.Min());
        page_property(input, "max", slider.Max());
        page_property(input, "value", slider.Value());
    };
}

template<class Captioned>
void FormView::fit(const Captioned& control, PixelSize margin, int element) {
    const CaptionStyle style = captionStyle(control);
    page_attribute(element, "data-wrap", style.wrap == Wrap::No ? "no" : "yes");
    const auto room = [this, &control, margin]() -> PixelSize {
        const auto [width, height] = shown_.roomFor(control);
        return {width - static_cast<int>(margin.width * scale()), height - static_cast<int>(margin.height * scale())};
    };
    shown_.captions().add(control, style, room, [element](const CaptionFont& font) {
        page_font(element, pixels(font), font.bold, font.stretch);
    });
}

void FormView::layOut(PixelSize page, double scaleInFront) {
    shown_.layOut(modality_ == Modality::Modal ? layoutOver(size_, page, scaleInFront) : layoutOf(size_, page, 1));
    page_length(window_, "--unit", scale());
    place(content_, shown_.layout().content);
    for (const auto& surface : surfaces_) {
        surface->layOut(shown_.layout());
    }
    if (icon_ != nullptr) {
        const int width = static_cast<int>(std::lround(buttonIconSize * scale()));
        icon_->resize({width, width});
        paint(*icon_, desktop().App().Icon, icon_->bounds(), icon_->bounds(), pictures_);
    }
}

// A browser lets the player choose before anybody is asked: where nothing came of it, what holds shows again.
void FormView::input(int element, int value) const {
    const auto input = inputs_.find(element);
    if (input == inputs_.end()) {
        return;
    }
    const AnyControl control = input->second;
    if (auto* const* button = std::get_if<CommandButton*>(&control)) {
        (*button)->Click();
    } else if (auto* const* option = std::get_if<OptionButton*>(&control)) {
        (*option)->Select();
        if (!(*option)->Value()) {
            shown_.changed();
        }
    } else if (auto* const* slider = std::get_if<Slider*>(&control)) {
        (*slider)->Slide(value);
        shown_.changed(**slider);
    }
}

bool FormView::key(int focus, const KeyPress& press) const {
    if (press.key >= Key::Enter) {
        if (!press.repeated) {
            form()->press(press.key);
        }
        return true;
    }
    for (const auto& surface : surfaces_) {
        if (surface->canvas() == focus) {
            return surface->key(press);
        }
    }
    const auto input = inputs_.find(focus);
    const auto now = input != inputs_.end() ? tumble::press(input->second, press.key) : std::nullopt;
    if (now) {
        const auto hasFocus = [now](const auto& each) { return each.second == now; };
        page_focus(std::find_if(inputs_.begin(), inputs_.end(), hasFocus)->first);
    }
    return now.has_value();
}

void FormView::retire() {
    shown_.retire();
    shows_ = false;
    inputs_.clear();
    for (const auto& surface : surfaces_) {
        surface->retire();
    }
    page_remove(window_);
}

} // namespace tumble
