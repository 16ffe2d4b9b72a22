#include "platform/web/WebDesktop.h"

#include "platform/web/Page.h"

#include <algorithm>
#include <cassert>
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

template<class Report>
void WebDesktop::handle(const Report& report) {
    if (ended_) {
        return;
    }
    ++running_;
    report();
    --running_;
    showPaintings();
    if (running_ == 0) {
        retired_.clear();
        if (ended_) {
            page_over();
        }
    }
}

template<class Wait>
void WebDesktop::suspend(const Wait& wait) {
    assert(!suspended_);
    showPaintings();
    suspended_ = true;
    wait();
    suspended_ = false;
}

void WebDesktop::nextFrame() {
    suspend(page_frame);
    lastFrame_ = page_now();
}

void WebDesktop::Show(Form& form, Modality modality) {
    FormView* view = viewOf(form);
    if (view == nullptr) {
        views_.push_back(std::make_unique<FormView>(form, modality, pictures_));
        view = views_.back().get();
    }
    layOut(*view);
    view->shows(true);
    if (modality == Modality::Modal) {
        const Modal modal(*this, &form);
        modalForm_ = &form;
        suspend(page_suspend);
        modalForm_ = nullptr;
    }
}

void WebDesktop::Hide(Form& form) {
    if (FormView* view = viewOf(form)) {
        view->shows(false);
    }
}

void WebDesktop::Unload(Form& form) {
    const auto view =
        std::find_if(views_.begin(), views_.end(), [&](const auto& each) { return each->form() == &form; });
    if (view == views_.end()) {
        return;
    }
    (*view)->retire();
    retired_.push_back(std::move(*view));
    views_.erase(view);
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
    if (FormView* view = viewOf(form)) {
        view->pointer(pointer);
    }
}

void WebDesktop::MsgBox(const std::string& text, const std::string& caption) {
    const int box = page_add(0, "dialog", "window message");
    page_caption(page_add(box, "h1", ""), caption.c_str());
    page_caption(page_add(box, "p", ""), text.c_str());
    boxButton_ = page_add(box, "button", "default");
    page_caption(boxButton_, "OK");
    page_length(box, "--unit", inFront() != nullptr ? inFront()->scale() : 1);
    page_showModal(box);
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
    if (box.container().form().MousePointer() == Pointer::Hourglass && page_now() - lastFrame_ >= leastFrame) {
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

void WebDesktop::recoloured() {
    for (const auto& view : views_) {
        view->recolour();
    }
}

void WebDesktop::letGo() {
    for (const auto& view : views_) {
        view->letGo();
    }
}

void WebDesktop::pressed(int element) {
    if (element != 0 && element == boxButton_) {
        boxButton_ = 0;
        page_resume();
    } else if (FormView* view = inFront()) {
        view->pressed(element);
    }
}

bool WebDesktop::key(int focus, const KeyReport& report) {
    if (boxButton_ != 0) {
        const bool closes = report.key >= firstFormKey && static_cast<Key>(report.key - firstFormKey) != Key::F1;
        if (closes && !report.repeated) {
            pressed(boxButton_);
        }
        return closes;
    }
    FormView* view = inFront();
    return view != nullptr && view->key(focus, report);
}

void WebDesktop::showPaintings() const {
    for (const auto& view : views_) {
        view->showPaintings();
    }
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

namespace {

WebDesktop& page() {
    return static_cast<WebDesktop&>(desktop());
}

template<class Report>
void atSurface(int canvas, const Report& report) {
    page().handle([&] {
        FormView* view = page().inFront();
        if (Surface* surface = view != nullptr ? view->surface(canvas) : nullptr) {
            report(*surface);
        }
    });
}

} // namespace

} // namespace tumble

// What the page reports. Elements are numbers, lengths are pixels of the screen.

using namespace tumble;

extern "C" {

EMSCRIPTEN_KEEPALIVE void page_resized(int width, int height) {
    page().handle([&] { page().resized({width, height}); });
}

EMSCRIPTEN_KEEPALIVE void page_recoloured() {
    page().handle([] { page().recoloured(); });
}

EMSCRIPTEN_KEEPALIVE void page_shown() {
    page().handle([] { page().letGo(); });
}

EMSCRIPTEN_KEEPALIVE void page_pressed(int element) {
    page().handle([&] { page().pressed(element); });
}

EMSCRIPTEN_KEEPALIVE void page_slid(int element, int value) {
    page().handle([&] {
        if (FormView* view = page().inFront()) {
            view->slid(element, value);
        }
    });
}

/// True for a key that the browser may have. Of a handler that is suspended the page gets false.
EMSCRIPTEN_KEEPALIVE bool page_key(int focus, int key, int letter, int shiftKeys, bool repeated) {
    bool taken = true;
    page().handle([&] { taken = page().key(focus, {key, static_cast<char>(letter), shiftKeys, repeated}); });
    return !taken;
}

EMSCRIPTEN_KEEPALIVE void page_mouse(int canvas, int button, int buttons, int shiftKeys, double x, double y) {
    atSurface(canvas, [&](Surface& surface) {
        surface.mouse({button, buttons, static_cast<std::int16_t>(shiftKeys), x, y});
    });
}

EMSCRIPTEN_KEEPALIVE void page_touch(int canvas, int touch, int finger, double x, double y) {
    atSurface(canvas, [&](Surface& surface) { surface.touch(static_cast<Touch>(touch), finger, x, y); });
}

EMSCRIPTEN_KEEPALIVE void page_longPress(int canvas) {
    atSurface(canvas, [](Surface& surface) { surface.longPress(); });
}
}
