#include "game/frmAbout.h"

#include <string>

namespace tumble {

frmAbout::frmAbout() : Form("About Tumble", 4530, 1890) {}

void frmAbout::Form_Load() {
    const Application& App = desktop().App();
    Caption("About " + App.Title);
    lblVersion.Caption("Version " + std::to_string(App.Major) + "." + std::to_string(App.Minor) + "." +
                       std::to_string(App.Revision));
    lblTitle.Caption(App.Title);

    constexpr float iconSize = 32 * twipsPerPixel;
    const float margin = (picIcon.Width() - iconSize) / 2;
    picIcon.Paint(picIcon.displayList().bounds()).PaintPicture(App.Icon, margin, margin, iconSize, iconSize);
}

} // namespace tumble
