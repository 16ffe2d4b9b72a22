#pragma once

#include "platform/forms/Form.h"
#include "table/CardTracker.h"

#include <cstdint>
#include <memory>

namespace tumble {

/// The table window: the table, the label with the name of the card under the mouse, and three buttons.
class frmTumble : public Form {
public:
    static constexpr float clientWidth = 9525; // twips
    static constexpr float clientHeight = 6630;

    /// Keeps the reference. The game's one tracker is created after the window shows and before it takes input.
    explicit frmTumble(const std::unique_ptr<CardTracker>& tableTracker);

    void Form_Close() override { cmdExit_Click(); }

    void picTable_MouseDown(std::int16_t Button, std::int16_t Shift, float X, float Y);
    void picTable_MouseMove(std::int16_t Button, std::int16_t Shift, float X, float Y);
    void picTable_MouseUp(std::int16_t Button, std::int16_t Shift, float X, float Y);

    static void cmdAbout_Click();
    static void cmdHelp_Click();
    void cmdExit_Click();

private:
    void nameCardAt(float X, float Y);

    const std::unique_ptr<CardTracker>& tableTracker_;

public:
    // The controls: container, name, caption, place (left, top, width, height), tab position, handler.
    // clang-format off
    PictureBox picTable{*this, "picTable", "Table", {240, 120, 9015, 6015}, 0, tableGreen};
    Label lblCurrentCardLabel{*this, "lblCurrentCardLabel", "Current Card:", {240, 6240, 1215, 375}, 4, {.bold = true}};
    Label lblCurrentCard{*this, "lblCurrentCard", "", {1560, 6240, 2775, 255}, 5};
    CommandButton cmdAbout{*this, "cmdAbout", "&About", {7200, 6240, 615, 375}, 3, [] { cmdAbout_Click(); }};
    CommandButton cmdHelp{*this, "cmdHelp", "&Help", {7920, 6240, 615, 375}, 2, [] { cmdHelp_Click(); }, {Key::F1}};
    CommandButton cmdExit{*this, "cmdExit", "E&xit", {8640, 6240, 615, 375}, 1, [this] { cmdExit_Click(); }, {Key::Enter}};
    // clang-format on
};

} // namespace tumble
