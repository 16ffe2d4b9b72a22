#include "platform/web/WebDesktop.h"

#include "platform/web/Page.h"

#include <cstdint>
#include <cstdlib>
#include <utility>

#include <emscripten.h>

namespace tumble {

namespace {

constexpr double leastFrame = 16; // milliseconds
constexpr float startDragDistance = 10 * twipsPerPixel;

WebDesktop& page() {
    return static_cast<WebDesktop&>(desktop());
}

} // namespace

WebDesktop::WebDesktop(Application application, PicturePainter painter)
    : WindowDesktop(std::move(application)), pictures_(std::move(painter)) {
    desktop(this);
    page_listen();
}

std::shared_ptr<FormView> WebDesktop::open(Form& form, Modality modality) {
    const auto view = std::make_shared<FormElement>(form, modality, pictures_);
    view->fit(page_);
    return view;
}

void WebDesktop::resized(PixelSize page) {
    page_ = page;
    for (const auto& window : windows()) {
        static_cast<FormElement&>(*window).fit(page);
    }
}

void WebDesktop::suspend(void (*wait)()) {
    if (std::exchange(suspended_, true)) {
        std::abort(); // there is one place for a stack
    }
    forEachSurface(&SurfaceView::showNow);
    wait();
    suspended_ = false;
}

void WebDesktop::waitFor(FormView& window) {
    window.onClosed = page_resume;
    suspend(page_suspend);
}

void WebDesktop::showBox(const std::string& text, const std::string& caption) {
    box_ = page_add(0, "message");
    page_attribute(box_, "aria-label", caption.c_str());
    page_caption(box_, text.c_str());
    page_show(box_);
    suspend(page_suspend);
}

void WebDesktop::Refresh(Form& form) {
    if (windowOf(form) != nullptr) {
        suspend(page_frame);
        lastFrame_ = emscripten_get_now();
    }
}

void WebDesktop::painted(PictureBox& box, const DisplayItem& /*item*/) {
    Form& form = box.container().form();
    if (form.MousePointer() == Pointer::Hourglass && emscripten_get_now() - lastFrame_ >= leastFrame) {
        Refresh(form);
    }
}

void WebDesktop::End() {
    ended_ = true;
    page_gameOver();
}

void WebDesktop::input(int element, int value) {
    if (element == box_) {
        page_remove(std::exchange(box_, 0));
        page_resume();
    } else if (const FormView* window = inFront()) {
        window->input(element, value);
    }
}

bool WebDesktop::key(int focus, const KeyPress& press) {
    if (box_ == 0) {
        FormView* window = inFront();
        return window != nullptr && window->key(focus, press);
    }
    const bool closes = press.key == Key::Enter || press.key == Key::Esc;
    if (closes && !press.repeated) {
        input(box_, 0);
    }
    return closes;
}

} // namespace tumble

// What the page reports. Elements are numbers, lengths are pixels of the screen.

using namespace tumble;

extern "C" {

EMSCRIPTEN_KEEPALIVE void page_resized(int width, int height) {
    page().handle([=] { page().resized({width, height}); });
}

EMSCRIPTEN_KEEPALIVE void page_input(int element, int value) {
    page().handle([=] { page().input(element, value); });
}

// Gives true for a key that the browser may have. Of a handler that is suspended the page gets false.
EMSCRIPTEN_KEEPALIVE bool page_key(int focus, int key, char letter, std::int16_t Shift, bool repeated) {
    bool taken = repeated;
    const KeyPress press{key < 0 ? Key::Other : static_cast<Key>(key), Shift, repeated, letter};
    page().handle([&] { taken = page().key(focus, press); });
    return !taken;
}

EMSCRIPTEN_KEEPALIVE void page_mouse(int element, std::int16_t changed, std::int16_t held, std::int16_t Shift, double x,
                                     double y) {
    page().handle(element, [=](SurfaceElement& surface) { surface.mouse(changed, held, Shift, surface.twips(x, y)); });
}

EMSCRIPTEN_KEEPALIVE void page_finger(int element, int event, int number, double x, double y) {
    page().handle(element, [=](SurfaceElement& surface) {
        surface.finger(static_cast<TouchEvent>(event), number, surface.twips(x, y), startDragDistance);
    });
}

EMSCRIPTEN_KEEPALIVE void page_letGo() {
    page().handle([] { page().forEachSurface(&SurfaceView::letGo); });
}
}
