#include "platform/forms/Controls.h"

#include "platform/forms/Desktop.h"

#include <algorithm>
#include <cctype>
#include <utility>

namespace tumble {

Control::Control(Container& container, std::string name, std::string caption, const Place& place, int tabIndex)
    : container_(container), name_(std::move(name)), caption_(std::move(caption)), place_(place), tabIndex_(tabIndex) {}

void Control::Caption(std::string caption) {
    if (caption != caption_) {
        caption_ = std::move(caption);
        changed();
    }
}

void Control::changed() {
    desktop().changed(*this);
}

PlainCaption::PlainCaption(std::string caption) : text(std::move(caption)) {
    if (const auto mark = text.find('&'); mark != std::string::npos) {
        text.erase(mark, 1);
        accessKey = static_cast<char>(std::toupper(static_cast<unsigned char>(text[mark])));
    }
}

PictureBox::PictureBox(Container& container, std::string name, std::string caption, const Place& place, int tabIndex,
                       Colour backColor)
    : Control(container, std::move(name), std::move(caption), place, tabIndex),
      DrawingSurface(place.Width, place.Height, backColor) {
    container.add(this);
}

void PictureBox::painted(const DisplayItem& item) {
    desktop().painted(*this, item);
}

Label::Label(Container& container, std::string name, std::string caption, const Place& place, int tabIndex,
             Font labelFont, TextAlign textAlign)
    : Control(container, std::move(name), std::move(caption), place, tabIndex), font(labelFont), align(textAlign) {
    container.add(this);
}

CommandButton::CommandButton(Container& container, std::string name, std::string caption, const Place& place,
                             int tabIndex, Handler click, std::vector<Key> pressedBy, ButtonFace look)
    : Control(container, std::move(name), std::move(caption), place, tabIndex),
      face(look),
      click_(std::move(click)),
      keys_(std::move(pressedBy)) {
    container.add(this);
}

void CommandButton::Click() const {
    if (takesInput()) {
        click_();
    }
}

bool CommandButton::pressedBy(Key key) const {
    return std::find(keys_.begin(), keys_.end(), key) != keys_.end();
}

OptionButton::OptionButton(Container& container, std::string name, std::string caption, const Place& place,
                           int tabIndex, Handler click, std::string tag, Choice choice)
    : Control(container, std::move(name), std::move(caption), place, tabIndex),
      click_(std::move(click)),
      tag_(std::move(tag)),
      value_(choice == Choice::Selected) {
    container.add(this);
}

void OptionButton::Select() {
    if (value_ || !takesInput()) {
        return;
    }
    for (const AnyControl& control : container().controls()) {
        auto* const* other = std::get_if<OptionButton*>(&control);
        if (other != nullptr && (*other)->value_) {
            (*other)->value_ = false;
            (*other)->changed();
        }
    }
    value_ = true;
    changed();
    click_();
}

Frame::Frame(Container& container, std::string name, std::string caption, const Place& place, int tabIndex,
             Font captionFont)
    : Control(container, std::move(name), std::move(caption), place, tabIndex), font(captionFont) {
    container.add(this);
}

Slider::Slider(Container& container, std::string name, std::string caption, const Place& place, int tabIndex, int min,
               int max, Handler change)
    : Control(container, std::move(name), std::move(caption), place, tabIndex),
      min_(min),
      max_(max),
      value_(min),
      change_(std::move(change)) {
    container.add(this);
}

void Slider::Min(int min) {
    min_ = min;
    changed();
    Value(value_);
}

void Slider::Max(int max) {
    max_ = max;
    changed();
    Value(value_);
}

void Slider::Value(int value) {
    const int inRange = std::max(min_, std::min(value, max_));
    if (inRange == value_) {
        return;
    }
    value_ = inRange;
    changed();
    change_();
}

void Slider::Slide(int value) {
    if (takesInput()) {
        Value(value);
    }
}

} // namespace tumble
