#include "platform/WindowDesktop.h"

#include <algorithm>

namespace tumble {

void WindowDesktop::Show(Form& form, Modality modality) {
    const auto place =
        std::find_if(windows_.begin(), windows_.end(), [&](const auto& each) { return each->form() == &form; });
    std::shared_ptr<ShownForm> window;
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
            const Modal modal(*this, &form);
            waitFor(*window);
        }
        everySurface(&ShownSurface::inputIsBack);
    }
}

void WindowDesktop::Hide(Form& form) {
    if (ShownForm* window = windowOf(form)) {
        window->Hide();
    }
}

void WindowDesktop::Unload(Form& form) {
    if (ShownForm* window = windowOf(form)) {
        window->retire();
        std::erase_if(windows_, [window](const auto& each) { return each.get() == window; });
    }
}

void WindowDesktop::MousePointer(Form& form, Pointer pointer) {
    if (ShownForm* window = windowOf(form)) {
        window->MousePointer(pointer);
    }
}

void WindowDesktop::MsgBox(const std::string& text, const std::string& caption) {
    everySurface(&ShownSurface::showNow);
    std::string lines = text;
    std::erase(lines, '\r');
    {
        const Modal modal(*this);
        showBox(lines, caption);
    }
    everySurface(&ShownSurface::inputIsBack);
}

void WindowDesktop::changed(Control& control) {
    if (const ShownForm* window = windowOf(control.container().form())) {
        window->changed(control);
    }
}

ShownSurface* WindowDesktop::surface(int element) const {
    ShownSurface* found = nullptr;
    for (const auto& window : windows_) {
        found = found != nullptr ? found : window->surface(element);
    }
    return found;
}

ShownForm* WindowDesktop::windowOf(const Form& form) const {
    const auto window =
        std::find_if(windows_.begin(), windows_.end(), [&](const auto& each) { return each->form() == &form; });
    return window != windows_.end() ? window->get() : nullptr;
}

ShownForm* WindowDesktop::inFront() const {
    const auto front = std::find_if(windows_.rbegin(), windows_.rend(), [](const auto& each) { return each->shows(); });
    return front != windows_.rend() ? front->get() : nullptr;
}

} // namespace tumble
