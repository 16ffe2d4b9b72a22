#include "art/Pictures.h"
#include "game/MainMod.h"
#include "platform/qt/Display.h"
#include "platform/qt/QtDesktop.h"

int main() {
    const tumble::Display display;
    tumble::QtDesktop desktop(tumble::application(), [](const auto& picture, auto& canvas) {
        return tumble::art::drawPicture(picture.Key, canvas);
    });
    tumble::MainMod mainMod;
    mainMod.Main();
    desktop.run();
    return 0;
}
