#include "platform/window/WindowDesktop.h"

#include <algorithm>

namespace tumble {

void WindowDesktop::Show(Form& form, Modality modality) {
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
            const Modal modal(*this, &form);
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

void WindowDesktop::MsgBox(const std::string& text, const std::string& caption) {
    forEachSurface(&SurfaceView::showNow);
    std::string lines = text;
    std::erase(lines, '\r');
    {
        const Modal modal(*this);
        showBox(lines, caption);
    }
    forEachSurface(&SurfaceView::inputUnblocked);
}

void WindowDesktop::changed(Control& control) {
    if (const FormView* window = windowOf(control.container().form())) {
        window->changed(control);
    }
}

SurfaceView* WindowDesktop::surface(int element) const {
    SurfaceView* found = nullptr;
    for (const auto& window : windows_) {
        found = found != nullptr ? found : window->surface(element);
    }
    return found;
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
