#include "platform/web/FormView.h"

#include "platform/Desktop.h"
#include "platform/web/Page.h"

#include <algorithm>
#include <cmath>

namespace tumble {

namespace {

constexpr PixelSize buttonMargin{8, 4}; // at scale 1, as below
constexpr PixelSize markMargin{20, 0};  // as in style.css
constexpr PixelSize frameMargin{frameCaptionHeight, 0};
constexpr double pixelsPerPoint = 4.0 / 3;
constexpr double lineHeight = 1.25; // of the font's size, as in style.css
constexpr double mostOfPage = 0.9;

double pixels(const CaptionFont& font) {
    return font.points * pixelsPerPoint;
}

TextSize measure(const std::string& text, const CaptionFont& font, std::optional<int> width) {
    const auto widthOf = [&font](const std::string& piece) {
        return page_textWidth(piece.c_str(), pixels(font), font.bold) * font.stretch / 100;
    };
    return textSize(PlainCaption(text).text, widthOf, static_cast<int>(std::ceil(pixels(font) * lineHeight)), width);
}

/// Where a key leads along a row of choices or of values, which has so many; 0 for other keys.
int step(PointerKey key, int count) {
    switch (key) {
    case PointerKey::Left:
    case PointerKey::Up:
    case PointerKey::PageUp:
        return -1;
    case PointerKey::Right:
    case PointerKey::Down:
    case PointerKey::PageDown:
        return 1;
    case PointerKey::Home:
        return -count;
    case PointerKey::End:
        return count;
    default:
        return 0;
    }
}

} // namespace

FormView::FormView(Form& form, Modality modality, PictureCache& pictures)
    : form_(&form),
      modality_(modality),
      pictures_(pictures),
      window_(page_add(0, modality == Modality::Modal ? "dialog" : "section", "window")),
      content_(window_),
      size_(form.Width(), form.Height()),
      captions_(measure) {
    page_attribute(window_, "aria-label", form.Caption().c_str());
    if (modality == Modality::Modal) {
        page_caption(page_add(window_, "h1", ""), form.Caption().c_str());
        content_ = page_add(window_, "div", "");
    }
    buildControls(form, content_);
}

void FormView::show() {
    shows_ = true;
    if (modality_ == Modality::Modeless) {
        page_title(form_->Caption().c_str());
    }
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
    const auto add = [&](auto* control) {
        const int element = build(*control, parent);
        page_attribute(element, "data-name", control->Name().c_str());
        placed_.push_back({element, roomOf(*control)});
    };
    for (const AnyControl& control : container.controls()) {
        std::visit(add, control);
    }
}

int FormView::build(PictureBox& box, int parent) {
    const int canvas = page_add(parent, "canvas", "surface");
    page_attribute(canvas, "role", "img");
    page_attribute(canvas, "aria-label", box.Caption().c_str());
    takeInput(box, &box, canvas);
    surfaces_.push_back(std::make_unique<Surface>(box, canvas, page_add(parent, "canvas", "ring"), pictures_));
    return canvas;
}

int FormView::build(Label& label, int parent) {
    const int element = page_add(parent, "div", label.align == TextAlign::Centre ? "centred" : "");
    addCaption(label, captionStyle(label), roomOf(label), {}, element);
    return element;
}

int FormView::build(CommandButton& button, int parent) {
    const int element = page_add(parent, "button", button.pressedBy(Key::Enter) ? "default" : "");
    page_attribute(element, "type", "button");
    if (button.face == ButtonFace::IconAboveCaption) {
        icon_ = std::make_unique<WebCanvas>(page_add(element, "canvas", "icon"));
    }
    addCaption(button, captionStyle(button), roomOf(button), buttonMargin, element);
    takeInput(button, &button, element);
    return element;
}

int FormView::build(OptionButton& option, int parent) {
    const int element = page_add(parent, "label", "option");
    const int input = page_add(element, "input", "");
    page_attribute(input, "type", "radio");
    page_attribute(input, "name", std::to_string(parent).c_str());
    addCaption(option, captionStyle(option), roomOf(option), markMargin, element);
    takeInput(option, &option, input);
    updates_.emplace(&option, [&option, input] { page_property(input, "checked", option.Value()); });
    return element;
}

int FormView::build(Frame& frame, int parent) {
    const int element = page_add(parent, "fieldset", "");
    Place room = roomOf(frame);
    room.Height = frameCaptionHeight * twipsPerPixel;
    addCaption(frame, captionStyle(frame), room, frameMargin, page_add(element, "legend", ""));
    buildControls(frame, element);
    return element;
}

int FormView::build(Slider& slider, int parent) {
    const int element = page_add(parent, "input", "");
    page_attribute(element, "type", "range");
    page_attribute(element, "aria-orientation", "vertical");
    page_attribute(element, "aria-label", slider.Caption().c_str());
    takeInput(slider, &slider, element);
    updates_.emplace(&slider, [&slider, element] {
        page_property(element, "min", slider.Min());
        page_property(element, "max", slider.Max());
        page_property(element, "value", slider.Value());
    });
    return element;
}

void FormView::addCaption(Control& control, const CaptionStyle& style, Place room, PixelSize margin, int element) {
    const int caption = page_add(element, "span", style.font.bold ? "bold" : "");
    page_attribute(caption, "data-wrap", style.wrap == Wrap::No ? "no" : "yes");
    const auto space = [this, room, margin]() -> PixelSize {
        const auto [width, height] = layout_.pixels(room).size();
        return {width - static_cast<int>(margin.width * scale()), height - static_cast<int>(margin.height * scale())};
    };
    captions_.add(control, style, space,
                  [caption](const CaptionFont& font) { page_font(caption, pixels(font), font.stretch); });
    updates_.emplace(&control, [&control, caption] { page_caption(caption, control.Caption().c_str()); });
}

void FormView::takeInput(Control& control, AnyControl any, int element) {
    page_property(element, "tabIndex", control.TabIndex() + 1);
    inputs_.emplace(element, any);
}

void FormView::layOut(PixelSize page, double scaleInFront) {
    layout_ = layoutOf(size_, page, 1);
    if (modality_ == Modality::Modal) {
        const double fits = size_.scaleToFit(page.width * mostOfPage, page.height * mostOfPage);
        layout_.scale = std::min(scaleInFront, fits);
        layout_.content = size_.at(scale()).at({});
    }
    const auto place = [](int element, const PixelRect& to) {
        page_place(element, to.left, to.top, to.width(), to.height());
    };
    page_length(window_, "--unit", scale());
    place(content_, layout_.content);
    for (const auto& [element, room] : placed_) {
        place(element, layout_.pixels(room));
    }
    for (const auto& [control, update] : updates_) {
        update();
    }
    captions_.fit(scale());
    for (const auto& surface : surfaces_) {
        surface->layOut(layout_);
    }
    if (icon_ != nullptr) {
        const int width = static_cast<int>(std::lround(buttonIconSize * scale()));
        icon_->resize({width, width});
        paint(*icon_, desktop().App().Icon, icon_->bounds(), icon_->bounds(), pictures_);
    }
}

void FormView::changed(const Control& control) {
    const auto [first, last] = updates_.equal_range(&control);
    std::for_each(first, last, [](const auto& update) { update.second(); });
    captions_.fit(control, scale());
}

// A browser lets the player choose before anybody is asked.
void FormView::pressed(int element) const {
    const auto input = inputs_.find(element);
    if (input == inputs_.end()) {
        return;
    }
    if (auto* const* button = std::get_if<CommandButton*>(&input->second)) {
        (*button)->Click();
    } else if (auto* const* option = std::get_if<OptionButton*>(&input->second)) {
        (*option)->Select();
        if (!(*option)->Value()) {
            std::for_each(updates_.begin(), updates_.end(), [](const auto& update) { update.second(); });
        }
    }
}

void FormView::slid(int element, int value) const {
    const auto input = inputs_.find(element);
    if (auto* const* slider = input != inputs_.end() ? std::get_if<Slider*>(&input->second) : nullptr) {
        (*slider)->takesInput() ? (*slider)->Value(value) : updates_.find(*slider)->second();
    }
}

bool FormView::key(int focus, const KeyReport& report) const {
    const auto& [key, letter, shiftKeys, repeated] = report;
    if (letter != 0) {
        return repeated || form_->pressAccessKey(letter);
    }
    if (key >= firstFormKey) {
        if (!repeated) {
            form_->press(static_cast<Key>(key - firstFormKey));
        }
        return true;
    }
    for (const auto& surface : surfaces_) {
        if (surface->canvas() == focus && key >= 0) {
            return surface->key({static_cast<PointerKey>(key), (shiftKeys & 1) != 0, (shiftKeys & 2) != 0,
                                 (shiftKeys & 4) != 0, (shiftKeys & 8) != 0, repeated});
        }
    }
    const auto input = inputs_.find(focus);
    if (input == inputs_.end() || key < 0) {
        return false;
    }
    if (auto* const* slider = std::get_if<Slider*>(&input->second)) {
        const int by = step(static_cast<PointerKey>(key), (*slider)->Max() - (*slider)->Min());
        slid(focus, (*slider)->Value() + by);
        return by != 0;
    }
    auto* const* option = std::get_if<OptionButton*>(&input->second);
    const int by = option != nullptr ? step(static_cast<PointerKey>(key), 0) : 0;
    if (OptionButton* next = by != 0 ? (*option)->beside(by) : nullptr) {
        next->Select();
        page_focus(std::find_if(inputs_.begin(), inputs_.end(), [next](const auto& each) {
                       return each.second == AnyControl(next);
                   })->first);
    }
    return by != 0;
}

void FormView::retire() {
    form_ = nullptr;
    shows_ = false;
    inputs_.clear();
    updates_.clear();
    captions_.clear();
    for (const auto& surface : surfaces_) {
        surface->retire();
    }
    page_remove(window_);
}

} // namespace tumble
