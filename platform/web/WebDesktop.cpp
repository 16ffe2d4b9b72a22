#include "platform/web/WebDesktop.h"

#include "platform/forms/Mouse.h"
#include "platform/web/Page.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <utility>

#include <emscripten.h>

namespace tumble {

namespace {

constexpr double leastFrame = 16; // milliseconds
constexpr float startDragDistance = 10 * twipsPerPixel;

// The browsers' names, in the order of `Key`; those that are missing at the end are left to the browser.
constexpr const char* keyNames =
    "ArrowLeft,ArrowUp,ArrowRight,ArrowDown,Home,PageUp,End,PageDown, ,f,ContextMenu,F10,Enter,Escape,F1";
constexpr std::array buttons{leftButton, middleButton, rightButton}; // by a browser's numbers

WebDesktop& page() {
    return static_cast<WebDesktop&>(desktop());
}

} // namespace

WebDesktop::WebDesktop(Application application, PicturePainter painter)
    : WindowDesktop(std::move(application), tumble::measure), pictures_(std::move(painter)) {
    desktop(this);
    const auto [width, height] = FormSize(App().Width, App().Height).at(static_cast<double>(leastFactor));
    page_listen(keyNames, width, height);
}

std::shared_ptr<FormView> WebDesktop::open(Form& form, Modality modality) {
    const auto view = std::make_shared<FormElement>(form, modality, pictures_);
    view->fit(page_);
    return view;
}

void WebDesktop::resized(PixelSize page) {
    page_ = page;
    for (const auto& window : windows()) {
        formElement(*window).fit(page);
    }
}

void WebDesktop::suspend(void (*wait)()) {
    if (std::exchange(suspended_, true)) {
        std::abort();
    }
    forEachSurface(&SurfaceView::showNow);
    wait();
    suspended_ = false;
}

void WebDesktop::waitFor(FormView& window) {
    window.onClosed = page_resume;
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
    if (FormView* window = inFront()) {
        formElement(*window).input(element, value);
    }
}

bool WebDesktop::key(int focus, const KeyPress& press) {
    FormView* window = inFront();
    return window != nullptr && formElement(*window).key(focus, press);
}

} // namespace tumble

// The page's reports. Elements are numbers, lengths are pixels of the screen.

using namespace tumble;

extern "C" {

EMSCRIPTEN_KEEPALIVE void page_resized(int width, int height) {
    page().handle([=] { page().resized({width, height}); });
}

EMSCRIPTEN_KEEPALIVE void page_input(int element, int value) {
    page().handle([=] { page().input(element, value); });
}

// Returns true for a key that is left to the browser; false also when the handler is suspended.
EMSCRIPTEN_KEEPALIVE bool page_key(int focus, int key, char letter, std::int16_t Shift, bool repeated) {
    bool taken = repeated;
    const KeyPress press{key < 0 ? Key::Other : static_cast<Key>(key), Shift, repeated, letter};
    page().handle([&] { taken = page().key(focus, press); });
    return !taken;
}

// The changed button by the browser's number, -1 for a move.
EMSCRIPTEN_KEEPALIVE void page_mouse(int element, int button, std::int16_t held, std::int16_t Shift, double x,
                                     double y) {
    const std::int16_t changed =
        button < 0 || button >= std::ssize(buttons) ? std::int16_t{0} : buttons.at(static_cast<std::size_t>(button));
    page().handle(element, [=](SurfaceElement& surface) { surface.mouse(changed, held, Shift, surface.twips(x, y)); });
}

EMSCRIPTEN_KEEPALIVE void page_touch(int element, int event, int finger, double x, double y) {
    page().handle(element, [=](SurfaceElement& surface) {
        surface.touch(static_cast<TouchEvent>(event), finger, surface.twips(x, y), startDragDistance);
    });
}
}
