#include "art/Pictures.h"
#include "game/MainMod.h"
#include "platform/web/WebDesktop.h"

#include <emscripten.h>

/// Called once by the page. Returns at once; both objects live as long as the page.
extern "C" EMSCRIPTEN_KEEPALIVE void page_start() {
    static tumble::WebDesktop desktop(tumble::application(), [](const auto& picture, auto& canvas) {
        return tumble::art::drawPicture(picture.Key, canvas);
    });
    static tumble::MainMod mainMod;
    desktop.handle([] { mainMod.Main(); });
}
