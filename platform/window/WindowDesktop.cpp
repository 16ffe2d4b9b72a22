#include "platform/window/WindowDesktop.h"

#include <algorithm>

namespace tumble {

void WindowDesktop::Show(Form& form, Modality modality) {
    if (modality == Modality::Modal) {
        forEachSurface(&SurfaceView::showNow);
    }
    const auto place =
        std::find_if(windows_.begin(), windows_.end(), [&](const auto& each) { return each->form() == &form; });
    std::shared_ptr<FormView> window;
    if (place != windows_.end()) {
        window = *place;
        windows_.erase(place);
    } else {
        window = open(form, modality);
    }
    windows_.push_back(window);
    window->Show();
    if (modality == Modality::Modal) {
        {
            const Modal modal(*this, form);
            waitFor(*window);
        }
        forEachSurface(&SurfaceView::inputUnblocked);
    }
}

void WindowDesktop::Hide(Form& form) {
    if (FormView* window = windowOf(form)) {
        window->Hide();
    }
}

void WindowDesktop::Unload(Form& form) {
    if (FormView* window = windowOf(form)) {
        window->detach();
        std::erase_if(windows_, [window](const auto& each) { return each.get() == window; });
    }
}

void WindowDesktop::MousePointer(Form& form, Pointer pointer) {
    if (FormView* window = windowOf(form)) {
        window->MousePointer(pointer);
    }
}

void WindowDesktop::changed(Control& control) {
    if (const FormView* window = windowOf(control.container().form())) {
        window->changed(control);
    }
}

TextExtent WindowDesktop::measure(const std::string& text, const Font& font, std::optional<float> width) {
    const FormView* front = inFront();
    const Layout layout{.scale = front != nullptr ? front->scale() : 1};
    const auto widest = width ? std::optional(layout.pixels({0, 0, *width, 0}).width()) : std::nullopt;
    const TextSize size = measure_(text, {.points = font.points * layout.scale, .bold = font.bold}, widest);
    return {.Width = layout.twips(size.width), .Height = layout.twips(size.height)};
}

FormView* WindowDesktop::windowOf(const Form& form) const {
    const auto window =
        std::find_if(windows_.begin(), windows_.end(), [&](const auto& each) { return each->form() == &form; });
    return window != windows_.end() ? window->get() : nullptr;
}

FormView* WindowDesktop::inFront() const {
    const auto front = std::find_if(windows_.rbegin(), windows_.rend(), [](const auto& each) { return each->shows(); });
    return front != windows_.rend() ? front->get() : nullptr;
}

} // namespace tumble
