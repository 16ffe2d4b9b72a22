#include "platform/web/FormView.h"

#include "platform/Desktop.h"
#include "platform/web/Page.h"

#include <algorithm>
#include <cmath>
#include <string_view>
#include <utility>

namespace tumble {

namespace {

constexpr int markWidth = 20; // at scale 1: that of an option button with the space behind it, as in style.css
constexpr PixelSize buttonMargin{8, 4};
constexpr double pixelsPerPoint = 4.0 / 3;
constexpr double lineHeight = 1.25; // of the font's size, as in style.css
constexpr double mostOfPage = 0.9;

double pixels(const CaptionFont& font) {
    return font.points * pixelsPerPoint;
}

/// The width of the widest line, and how many lines there are, when as many words go into each as fit.
std::pair<double, int> broken(std::string_view text, double room, const CaptionFont& font) {
    const auto width = [&](std::string_view part) {
        return page_textWidth(std::string(part).c_str(), pixels(font), font.bold) * font.stretch / 100;
    };
    double widest = 0;
    int lines = 1;
    for (auto end = text.find(' '); width(text) > room && end != std::string_view::npos; ++lines) {
        for (auto next = end; next != std::string_view::npos && width(text.substr(0, next)) <= room;) {
            end = next;
            next = text.find(' ', next + 1);
        }
        widest = std::max(widest, width(text.substr(0, end)));
        text.remove_prefix(end + 1);
        end = text.find(' ');
    }
    return {std::max(widest, width(text)), lines};
}

TextSize measure(const std::string& text, const CaptionFont& font, std::optional<int> width) {
    const auto [widest, lines] = broken(PlainCaption(text).text, width ? *width : HUGE_VAL, font);
    const int lineSpacing = static_cast<int>(std::ceil(pixels(font) * lineHeight));
    return {static_cast<int>(std::ceil(widest)), lines * lineSpacing, lineSpacing};
}

template<class Kind>
Kind* as(const AnyControl& control) {
    auto* const* kind = std::get_if<Kind*>(&control);
    return kind != nullptr ? *kind : nullptr;
}

const Control& base(const AnyControl& control) {
    return *std::visit([](const Control* each) { return each; }, control);
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
        content_ = page_add(window_, "div", "content");
    }
    build(form, content_);
}

FormView::~FormView() {
    retire();
}

void FormView::shows(bool shows) {
    shows_ = shows;
    page_property(window_, "hidden", !shows);
    if (shows) {
        if (modality_ == Modality::Modal) {
            page_showModal(window_);
        } else {
            page_title(form_->Caption().c_str());
        }
        focusFirst();
    }
}

void FormView::focusFirst() const {
    const auto first = std::min_element(shown_.begin(), shown_.end(), [](const Shown& one, const Shown& other) {
        return std::pair(one.input == 0, base(one.control).TabIndex()) <
               std::pair(other.input == 0, base(other.control).TabIndex());
    });
    if (first != shown_.end() && first->input != 0) {
        page_focus(first->input);
    }
}

void FormView::pointer(Pointer pointer) {
    page_attribute(window_, "class", pointer == Pointer::Hourglass ? "window busy" : "window");
}

void FormView::build(const Container& container, int parent) {
    const auto add = [&](auto* control) {
        Shown shown = made(*control, parent);
        page_attribute(shown.element, "data-name", control->Name().c_str());
        if (shown.input != 0) {
            page_property(shown.input, "tabIndex", control->TabIndex() + 1);
        }
        shown_.push_back(std::move(shown));
        if constexpr (std::is_same_v<decltype(control), Frame*>) {
            build(*control, shown_.back().element);
        }
    };
    for (const AnyControl& control : container.controls()) {
        std::visit(add, control);
    }
}

FormView::Shown FormView::made(PictureBox& box, int parent) {
    const int canvas = page_add(parent, "canvas", "surface");
    const int ring = page_add(parent, "div", "ring");
    page_attribute(canvas, "role", "img");
    page_attribute(canvas, "aria-label", box.Caption().c_str());
    return {&box, canvas, canvas, 0, roomOf(box), std::make_unique<Surface>(box, canvas, ring, pictures_)};
}

FormView::Shown FormView::made(Label& label, int parent) {
    const int element = page_add(parent, "div", label.align == TextAlign::Centre ? "label centred" : "label");
    const int caption = page_add(element, "span", label.font.bold ? "bold" : "");
    captioned(label, captionStyle(label), caption, roomOf(label), {});
    return {&label, element, 0, caption, roomOf(label)};
}

FormView::Shown FormView::made(CommandButton& button, int parent) {
    const int element = page_add(parent, "button", button.pressedBy(Key::Enter) ? "default" : "");
    page_attribute(element, "type", "button");
    std::unique_ptr<WebCanvas> icon;
    if (button.face == ButtonFace::IconAboveCaption) {
        icon = std::make_unique<WebCanvas>(page_add(element, "canvas", "icon"));
    }
    const int caption = page_add(element, "span", "");
    captioned(button, captionStyle(button), caption, roomOf(button), buttonMargin);
    return {&button, element, element, caption, roomOf(button), {}, std::move(icon)};
}

FormView::Shown FormView::made(OptionButton& option, int parent) {
    const int element = page_add(parent, "label", "option");
    const int input = page_add(element, "input", "");
    page_attribute(input, "type", "radio");
    page_attribute(input, "name", std::to_string(parent).c_str());
    const int caption = page_add(element, "span", "");
    captioned(option, captionStyle(option), caption, roomOf(option), {markWidth, 0});
    return {&option, element, input, caption, roomOf(option)};
}

FormView::Shown FormView::made(Frame& frame, int parent) {
    const int element = page_add(parent, "fieldset", "");
    const int caption = page_add(page_add(element, "legend", ""), "span", "bold");
    Place room = roomOf(frame);
    room.Height = frameCaptionHeight * twipsPerPixel;
    captioned(frame, captionStyle(frame), caption, room, {frameCaptionHeight, 0});
    return {&frame, element, 0, caption, roomOf(frame)};
}

FormView::Shown FormView::made(Slider& slider, int parent) {
    const int element = page_add(parent, "input", "");
    page_attribute(element, "type", "range");
    page_attribute(element, "aria-orientation", "vertical");
    page_attribute(element, "aria-label", slider.Caption().c_str());
    return {&slider, element, element, 0, roomOf(slider)};
}

void FormView::captioned(const Control& control, const CaptionStyle& style, int caption, Place room, PixelSize margin) {
    if (style.wrap == Wrap::No) {
        page_attribute(caption, "data-lines", "1");
    }
    const auto space = [this, room, margin]() -> PixelSize {
        const auto [width, height] = layout_.pixels(room).size();
        return {width - static_cast<int>(margin.width * layout_.scale),
                height - static_cast<int>(margin.height * layout_.scale)};
    };
    captions_.add(control, style, space,
                  [caption](const CaptionFont& font) { page_font(caption, pixels(font), font.stretch); });
}

void FormView::update(const Shown& shown) const {
    if (shown.caption != 0) {
        page_caption(shown.caption, base(shown.control).Caption().c_str());
    }
    if (const auto* option = as<OptionButton>(shown.control)) {
        page_property(shown.input, "checked", option->Value());
    } else if (const auto* slider = as<Slider>(shown.control)) {
        page_property(shown.input, "min", slider->Min());
        page_property(shown.input, "max", slider->Max());
        page_property(shown.input, "value", slider->Value());
    }
}

void FormView::layOut(PixelSize page, double scaleInFront) {
    layout_ = layoutOf(size_, page, 1);
    if (modality_ == Modality::Modal) {
        const double fits = size_.scaleToFit(page.width * mostOfPage, page.height * mostOfPage);
        layout_.scale = std::min(scaleInFront, fits);
        layout_.content = size_.at(layout_.scale).at({});
    }
    page_length(window_, "--unit", layout_.scale);
    const auto place = [](int element, const PixelRect& to) {
        page_place(element, to.left, to.top, to.width(), to.height());
    };
    place(content_, layout_.content);
    for (const Shown& shown : shown_) {
        const PixelRect to = layout_.pixels(shown.room);
        place(shown.element, to);
        update(shown);
        if (shown.surface != nullptr) {
            shown.surface->place(to, layout_.scale);
        }
        if (shown.icon != nullptr) {
            const int width = static_cast<int>(std::lround(buttonIconSize * layout_.scale));
            shown.icon->resize({width, width});
            paint(*shown.icon, desktop().App().Icon, shown.icon->bounds(), shown.icon->bounds(), pictures_);
        }
    }
    captions_.fit(layout_.scale);
    showPaintings();
}

void FormView::changed(const Control& control) {
    for (const Shown& shown : shown_) {
        if (&base(shown.control) == &control) {
            update(shown);
        }
    }
    captions_.fit(control, layout_.scale);
}

void FormView::showPaintings() {
    for (const Shown& shown : shown_) {
        if (shown.surface != nullptr) {
            shown.surface->show();
        }
    }
}

void FormView::recolour() {
    for (const Shown& shown : shown_) {
        if (shown.surface != nullptr) {
            shown.surface->recolour();
        }
    }
}

void FormView::letGo() {
    for (const Shown& shown : shown_) {
        if (shown.surface != nullptr) {
            shown.surface->letGo();
        }
    }
}

const FormView::Shown* FormView::shownAs(int input) const {
    const auto found =
        std::find_if(shown_.begin(), shown_.end(), [input](const Shown& shown) { return shown.input == input; });
    return input != 0 && found != shown_.end() ? &*found : nullptr;
}

Surface* FormView::surface(int element) {
    const Shown* shown = shownAs(element);
    return shown != nullptr ? shown->surface.get() : nullptr;
}

// A browser has let the player choose before anybody is asked.
void FormView::pressed(int element) {
    const Shown* shown = shownAs(element);
    if (shown == nullptr) {
        return;
    }
    if (const auto* button = as<CommandButton>(shown->control)) {
        button->Click();
    } else if (auto* option = as<OptionButton>(shown->control)) {
        option->Select();
        if (!option->Value()) {
            std::for_each(shown_.begin(), shown_.end(), [this](const Shown& each) { update(each); });
        }
    }
}

void FormView::slid(int element, int value) {
    const Shown* shown = shownAs(element);
    if (auto* slider = shown != nullptr ? as<Slider>(shown->control) : nullptr) {
        if (slider->takesInput()) {
            slider->Value(value);
        }
        changed(*slider);
    }
}

bool FormView::key(int focus, const KeyReport& report) {
    if (report.letter != 0) {
        return report.repeated || form_->pressAccessKey(report.letter);
    }
    if (report.key >= firstFormKey) {
        if (!report.repeated) {
            form_->press(static_cast<Key>(report.key - firstFormKey));
        }
        return true;
    }
    const Shown* shown = shownAs(focus);
    if (shown == nullptr || report.key < 0) {
        return false;
    }
    const auto key = static_cast<PointerKey>(report.key);
    if (shown->surface != nullptr) {
        return shown->surface->key({key, (report.shiftKeys & 1) != 0, (report.shiftKeys & 2) != 0,
                                    (report.shiftKeys & 4) != 0, (report.shiftKeys & 8) != 0, report.repeated});
    }
    if (auto* option = as<OptionButton>(shown->control)) {
        return this->key(*option, key);
    }
    auto* slider = as<Slider>(shown->control);
    return slider != nullptr && this->key(*slider, key);
}

bool FormView::key(OptionButton& option, PointerKey key) {
    const bool back = key == PointerKey::Left || key == PointerKey::Up;
    if (!back && key != PointerKey::Right && key != PointerKey::Down) {
        return false;
    }
    std::vector<const Shown*> choices;
    for (const Shown& shown : shown_) {
        if (as<OptionButton>(shown.control) != nullptr && &base(shown.control).container() == &option.container()) {
            choices.push_back(&shown);
        }
    }
    if (back) {
        std::reverse(choices.begin(), choices.end());
    }
    const auto here = std::find_if(choices.begin(), choices.end(),
                                   [&](const Shown* shown) { return &base(shown->control) == &option; });
    if (here + 1 != choices.end() && option.takesInput()) {
        page_focus((*(here + 1))->input);
        pressed((*(here + 1))->input);
    }
    return true;
}

bool FormView::key(Slider& slider, PointerKey key) {
    int to = slider.Value();
    switch (key) {
    case PointerKey::Up:
    case PointerKey::Left:
    case PointerKey::PageUp:
        --to;
        break;
    case PointerKey::Down:
    case PointerKey::Right:
    case PointerKey::PageDown:
        ++to;
        break;
    case PointerKey::Home:
        to = slider.Min();
        break;
    case PointerKey::End:
        to = slider.Max();
        break;
    default:
        return false;
    }
    if (slider.takesInput()) {
        slider.Value(to);
    }
    return true;
}

void FormView::retire() {
    if (form_ == nullptr) {
        return;
    }
    form_ = nullptr;
    shows_ = false;
    captions_.clear();
    for (const Shown& shown : shown_) {
        if (shown.surface != nullptr) {
            shown.surface->retire();
        }
    }
    page_remove(window_);
}

} // namespace tumble
