#include "platform/window/FormView.h"

#include <algorithm>
#include <variant>

namespace tumble {

SurfaceView* FormView::surface(const PictureBox& box) const {
    const auto surface =
        std::find_if(surfaces_.begin(), surfaces_.end(), [&](const SurfaceView* each) { return each->box() == &box; });
    return surface != surfaces_.end() ? *surface : nullptr;
}

SurfaceView* FormView::surface(int element) const {
    const auto any = control(element);
    auto* const* box = any ? std::get_if<PictureBox*>(&*any) : nullptr;
    return box != nullptr ? surface(**box) : nullptr;
}

PixelSize FormView::availableSize(const Control& control, PixelSize margin) const {
    const auto [width, height] = layout_.pixels(each(control).room).size();
    return {width - static_cast<int>(margin.width * scale()), height - static_cast<int>(margin.height * scale())};
}

int FormView::elementOf(const Control& control) const {
    return each(control).shown.element;
}

const FormView::Each& FormView::each(const Control& control) const {
    return *std::find_if(controls_.begin(), controls_.end(),
                         [&](const Each& other) { return &asControl(other.control) == &control; });
}

std::optional<AnyControl> FormView::control(int element) const {
    const auto each = std::find_if(controls_.begin(), controls_.end(),
                                   [&](const Each& other) { return other.shown.element == element; });
    return each != controls_.end() ? std::optional(each->control) : std::nullopt;
}

void FormView::add(const AnyControl& control, ControlView shown) {
    const auto add = [&](const auto* each) {
        if constexpr (requires { captionStyle(*each); }) {
            captions_.add(*each, captionStyle(*each), shown.captionArea, shown.setFont);
        }
        controls_.push_back({control, allottedPlace(*each), std::move(shown)});
    };
    std::visit(add, control);
}

void FormView::layOut(const Layout& layout) {
    layout_ = layout;
    for (const Each& each : controls_) {
        each.shown.place(layout_.pixels(each.room));
    }
    updateAll();
    captions_.fit(scale());
}

void FormView::changed(const Control& control) const {
    for (const Each& each : controls_) {
        if (&asControl(each.control) == &control) {
            each.shown.update();
        }
    }
    captions_.fit(control, scale());
}

void FormView::updateAll() const {
    for (const Each& each : controls_) {
        each.shown.update();
    }
}

void FormView::detach() {
    form_ = nullptr;
    controls_.clear();
    captions_.clear();
    for (SurfaceView* surface : surfaces_) {
        surface->detach();
    }
    if (onClosed) {
        onClosed();
    }
}

void FormView::input(int element, int value) const {
    if (const auto any = control(element)) {
        input(*any, value);
    }
}

void FormView::input(const AnyControl& control, int value) const {
    if (form_ == nullptr) {
        return;
    }
    if (auto* const* button = std::get_if<CommandButton*>(&control)) {
        (*button)->Click();
    } else if (auto* const* option = std::get_if<OptionButton*>(&control)) {
        (*option)->Select();
        if (!(*option)->Value()) {
            updateAll();
        }
    } else if (auto* const* slider = std::get_if<Slider*>(&control)) {
        (*slider)->Slide(value);
        changed(**slider);
    }
}

bool FormView::key(int focused, const KeyPress& press) {
    if (press.letter != 0) {
        return press.repeated || form_->pressAccessKey(press.letter);
    }
    if (press.key >= Key::Enter && press.key != Key::Other) {
        if (!press.repeated) {
            form_->press(press.key);
        }
        return true;
    }
    const auto any = control(focused);
    if (!any || press.key == Key::Other) {
        return false;
    }
    if (SurfaceView* focusedSurface = surface(focused)) {
        return focusedSurface->key(press);
    }
    const auto now = tumble::press(*any, press.key);
    if (now && form_ != nullptr) {
        focus(elementOf(asControl(*now)));
    }
    return now.has_value();
}

std::vector<AnyControl> inTabOrder(const Container& container) {
    std::vector<AnyControl> controls = container.controls();
    std::stable_sort(controls.begin(), controls.end(), [](const AnyControl& one, const AnyControl& other) {
        return asControl(one).TabIndex() < asControl(other).TabIndex();
    });
    return controls;
}

} // namespace tumble
