#include "platform/web/WebDesktop.h"

#include "platform/web/Page.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <utility>

#include <emscripten.h>

namespace tumble {

namespace {

constexpr double leastFrame = 16; // milliseconds

} // namespace

WebDesktop::WebDesktop(Application application, PicturePainter painter)
    : Desktop(std::move(application)), pictures_(std::move(painter)) {
    desktop(this);
    page_listen();
}

void WebDesktop::returned() {
    --running_;
    everySurface(&Surface::show);
    if (running_ == 0) {
        retired_.clear();
        if (ended_) {
            page_over();
        }
    }
}

void WebDesktop::suspend(void (*wait)()) {
    if (suspended_) {
        std::abort(); // there is one place for a stack
    }
    everySurface(&Surface::show);
    suspended_ = true;
    wait();
    suspended_ = false;
}

void WebDesktop::nextFrame() {
    suspend(page_frame);
    lastFrame_ = emscripten_get_now();
}

void WebDesktop::Show(Form& form, Modality modality) {
    FormView* view = viewOf(form);
    if (view == nullptr) {
        views_.push_back(std::make_unique<FormView>(form, modality, pictures_));
        view = views_.back().get();
    }
    layOut(*view);
    view->show();
    if (modality == Modality::Modal) {
        const Modal modal(*this, &form);
        modalForm_ = &form;
        suspend(page_suspend);
        modalForm_ = nullptr;
    }
}

void WebDesktop::Hide(Form& form) {
    if (FormView* view = viewOf(form)) {
        view->hide();
    }
}

void WebDesktop::Unload(Form& form) {
    const FormView* view = viewOf(form);
    const auto place = std::find_if(views_.begin(), views_.end(), [&](const auto& each) { return each.get() == view; });
    if (place == views_.end()) {
        return;
    }
    (*place)->retire();
    retired_.push_back(std::move(*place));
    views_.erase(place);
    if (modalForm_ == &form) {
        page_resume();
    }
}

void WebDesktop::Refresh(Form& form) {
    if (viewOf(form) != nullptr) {
        nextFrame();
    }
}

void WebDesktop::MousePointer(Form& form, Pointer pointer) {
    if (const FormView* view = viewOf(form)) {
        view->pointer(pointer);
    }
}

void WebDesktop::MsgBox(const std::string& text, const std::string& caption) {
    const int box = page_add(0, "message");
    page_attribute(box, "aria-label", caption.c_str());
    page_caption(box + 1, caption.c_str());
    page_caption(box + 2, text.c_str());
    boxButton_ = box + 3;
    page_length(box, "--unit", inFront() != nullptr ? inFront()->scale() : 1);
    page_show(box);
    {
        const Modal modal(*this);
        suspend(page_suspend);
    }
    page_remove(box);
}

void WebDesktop::changed(Control& control) {
    if (FormView* view = viewOf(control.container().form())) {
        view->changed(control);
    }
}

void WebDesktop::painted(PictureBox& box, const PaintItem& /*item*/) {
    if (box.container().form().MousePointer() == Pointer::Hourglass &&
        emscripten_get_now() - lastFrame_ >= leastFrame) {
        nextFrame();
    }
}

void WebDesktop::resized(PixelSize page) {
    page_ = page;
    for (const auto& view : views_) {
        layOut(*view);
    }
}

void WebDesktop::layOut(FormView& view) const {
    if (!page_.empty()) {
        view.layOut(page_, views_.front()->scale());
    }
}

void WebDesktop::input(int element, int value) {
    if (element == boxButton_) {
        boxButton_ = 0;
        page_resume();
    } else if (const FormView* view = inFront()) {
        view->input(element, value);
    }
}

bool WebDesktop::key(int focus, const KeyPress& press) {
    if (boxButton_ == 0) {
        const FormView* view = inFront();
        return view != nullptr && view->key(focus, press);
    }
    const bool closes = press.key == Key::Enter || press.key == Key::Esc;
    if (closes && !press.repeated) {
        input(boxButton_, 0);
    }
    return closes;
}

bool WebDesktop::accessKey(char letter) const {
    const FormView* view = inFront();
    return view != nullptr && view->form()->pressAccessKey(letter);
}

Surface* WebDesktop::surface(int canvas) const {
    Surface* found = nullptr;
    everySurface([&](Surface& each) { found = each.canvas() == canvas ? &each : found; });
    return found;
}

FormView* WebDesktop::inFront() const {
    const auto front = std::find_if(views_.rbegin(), views_.rend(), [](const auto& view) { return view->shows(); });
    return front != views_.rend() ? front->get() : nullptr;
}

FormView* WebDesktop::viewOf(const Form& form) const {
    const auto view =
        std::find_if(views_.begin(), views_.end(), [&](const auto& each) { return each->form() == &form; });
    return view != views_.end() ? view->get() : nullptr;
}

} // namespace tumble

// What the page reports. Elements are numbers, lengths are pixels of the screen.

using namespace tumble;

namespace {

WebDesktop& page() {
    return static_cast<WebDesktop&>(desktop());
}

} // namespace

extern "C" {

EMSCRIPTEN_KEEPALIVE void page_resized(int width, int height) {
    page().handle([=] { page().resized({width, height}); });
}

EMSCRIPTEN_KEEPALIVE void page_recoloured() {
    page().everySurface(&Surface::recolour);
    page().handle([] {});
}

EMSCRIPTEN_KEEPALIVE void page_shown() {
    page().handle([] { page().everySurface(&Surface::letGo); });
}

EMSCRIPTEN_KEEPALIVE void page_input(int element, int value) {
    page().handle([=] { page().input(element, value); });
}

// Both give true for a key that the browser may have. Of a handler that is suspended the page gets false.

EMSCRIPTEN_KEEPALIVE bool page_key(int focus, int key, int shiftKeys, bool repeated) {
    bool taken = repeated;
    const auto held = [shiftKeys](int bit) { return (shiftKeys & bit) != 0; };
    page().handle([&] {
        taken = page().key(focus, {static_cast<Key>(key), held(1), held(2), held(4), held(8), repeated});
    });
    return !taken;
}

EMSCRIPTEN_KEEPALIVE bool page_accessKey(int letter) {
    bool taken = false;
    page().handle([&] { taken = page().accessKey(static_cast<char>(letter)); });
    return !taken;
}

EMSCRIPTEN_KEEPALIVE void page_pointer(int canvas, int event, bool touches, int pointer, int button, int buttons,
                                       int shiftKeys, double x, double y) {
    page().handle([=] {
        if (Surface* surface = page().surface(canvas)) {
            surface->pointer({static_cast<PointerEvent>(event), touches, pointer, button, buttons,
                              static_cast<std::int16_t>(shiftKeys), x, y});
        }
    });
}

EMSCRIPTEN_KEEPALIVE void page_longPress(int canvas) {
    page().handle([=] {
        if (Surface* surface = page().surface(canvas)) {
            surface->longPress();
        }
    });
}
}
