#include "platform/ShownForm.h"

#include <algorithm>
#include <utility>
#include <variant>

namespace tumble {

PixelSize ShownForm::roomFor(const Control& control) const {
    const auto shown =
        std::find_if(controls_.begin(), controls_.end(), [&](const Shown& each) { return each.control == &control; });
    return shown != controls_.end() ? layout_.pixels(shown->room).size() : PixelSize();
}

void ShownForm::add(AnyControl control, std::function<void(const PixelRect&)> place, std::function<void()> update) {
    const auto add = [&](const auto* each) {
        controls_.push_back({each, roomOf(*each), std::move(place), std::move(update)});
    };
    std::visit(add, control);
}

void ShownForm::layOut(const Layout& layout) {
    layout_ = layout;
    for (const Shown& each : controls_) {
        each.place(layout_.pixels(each.room));
    }
    changed();
    captions_.fit(scale());
}

void ShownForm::changed(const Control& control) const {
    for (const Shown& each : controls_) {
        if (each.control == &control) {
            each.update();
        }
    }
    captions_.fit(control, scale());
}

void ShownForm::changed() const {
    for (const Shown& each : controls_) {
        each.update();
    }
}

void ShownForm::retire() {
    form_ = nullptr;
    controls_.clear();
    captions_.clear();
}

} // namespace tumble
