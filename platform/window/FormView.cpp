#include "platform/window/FormView.h"

#include <algorithm>
#include <variant>

namespace tumble {

SurfaceView* FormView::surface(const PictureBox& box) const {
    const auto surface =
        std::find_if(surfaces_.begin(), surfaces_.end(), [&](const SurfaceView* each) { return each->box() == &box; });
    return surface != surfaces_.end() ? *surface : nullptr;
}

void FormView::add(const AnyControl& control, std::unique_ptr<ControlView> view) {
    const auto add = [&](const auto* each) {
        const Place place = allottedPlace(*each);
        if constexpr (requires { captionStyle(*each); }) {
            captions_.add(*each, captionStyle(*each), place, *view);
        }
        controls_.push_back({control, place, std::move(view)});
    };
    std::visit(add, control);
}

void FormView::layOut(const Layout& layout, PixelPoint origin) {
    layout_ = layout;
    for (const auto& [control, place, view] : controls_) {
        const bool onForm = &asControl(control).container() == form_;
        const PixelRect pixels = layout_.pixels(place);
        view->place(onForm ? pixels.size().at({pixels.left + origin.x, pixels.top + origin.y}) : pixels);
    }
    updateAll();
    captions_.fit(layout_);
}

void FormView::changed(const Control& control) const {
    for (const Each& each : controls_) {
        if (&asControl(each.control) == &control) {
            each.view->update(scale());
        }
    }
    captions_.fit(control, layout_);
}

void FormView::updateAll() const {
    for (const Each& each : controls_) {
        each.view->update(scale());
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

} // namespace tumble
