#pragma once

#include "platform/forms/Form.h"

namespace tumble {

/// The modal window that shows the application's name and version.
class frmAbout : public Form {
public:
    frmAbout();

    void Form_Load() override;

    void cmdOK_Click() { Unload(); }

    // The controls: container, name, caption, place (left, top, width, height), tab position, font or handler.
    // clang-format off
    PictureBox picIcon{*this, "picIcon", "Icon", {240, 240, 540, 540}, 1, 0xFFFFFF};
    Label lblTitle{*this, "lblTitle", "Tumble", {1050, 240, 1245, 480}, 2, {.points = 13.5F, .bold = true}};
    Label lblVersion{*this, "lblVersion", "Version 1.0", {1050, 780, 1365, 225}, 3};
    Label lblDisclaimer{*this, "lblDisclaimer", "\u00A9 2026 Tumble", {1080, 1200, 1455, 435}, 4};
    CommandButton cmdOK{*this, "cmdOK", "OK", {3120, 1440, 1260, 345}, 0, [this] { cmdOK_Click(); }, {Key::Enter, Key::Esc}};
    // clang-format on
};

} // namespace tumble
