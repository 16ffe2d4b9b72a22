#include "art/Pictures.h"
#include "game/MainMod.h"
#include "platform/web/WebDesktop.h"

int main() {
    // Both last as long as the page.
    static tumble::WebDesktop desktop(tumble::application(), [](const auto& picture, auto& canvas) {
        return tumble::drawPicture(picture.Key, canvas);
    });
    static tumble::MainMod mainMod;
    mainMod.Main();
    return 0;
}
