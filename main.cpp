#include "art/Pictures.h"
#include "game/MainMod.h"
#include "platform/qt/Display.h"
#include "platform/qt/QtDesktop.h"

int main() {
    const tumble::Display display;
    tumble::QtDesktop desktop(tumble::application(),
                              [](const auto& picture, QSize size) { return tumble::drawPicture(picture.Key, size); });
    tumble::MainMod mainMod;
    mainMod.Main();
    desktop.run();
    return 0;
}
