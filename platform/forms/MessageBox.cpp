#include "platform/forms/MessageBox.h"

#include <algorithm>

namespace tumble {

namespace {

// In twips.
constexpr float margin = 240;
constexpr float buttonMargin = 150;
constexpr float buttonWidth = 1260;
constexpr float buttonHeight = 345;
constexpr float leastHeight = Label::leastWrappingHeight; // of the text
constexpr float titleButtons = 1800;                      // beside the caption, in the window's frame

constexpr Font textFont{.points = 9};
constexpr Font captionFont{.points = 9, .bold = true};

/// The text in one line, or broken where it would be wider than four fifths of the largest form.
TextExtent measured(const std::string& text) {
    const float widest = desktop().App().Width * 0.8F;
    const TextExtent extent = desktop().measure(text, textFont, std::nullopt);
    return extent.Width <= widest ? extent : desktop().measure(text, textFont, widest);
}

float widthOf(const std::string& caption, const TextExtent& text) {
    return std::max(text.Width + 2 * margin, desktop().measure(caption, captionFont, {}).Width + titleButtons);
}

float belowText(const TextExtent& text) {
    return margin + std::max(text.Height, leastHeight);
}

} // namespace

MessageBox::MessageBox(const std::string& text, const std::string& caption)
    : MessageBox(text, caption, measured(text)) {}

MessageBox::MessageBox(const std::string& text, const std::string& caption, const TextExtent& extent)
    : Form(caption, widthOf(caption, extent), belowText(extent) + buttonHeight + 2 * buttonMargin, FormKind::Alert),
      lblText(*this, "lblText", text, {margin, margin, extent.Width, belowText(extent) - margin}, 1, textFont),
      cmdOK(*this, "cmdOK", "OK",
            {Width() - buttonMargin - buttonWidth, Height() - buttonMargin - buttonHeight, buttonWidth, buttonHeight},
            0, [this] { Unload(); }, {Key::Enter, Key::Esc}) {}

void MsgBox(const std::string& text, const std::string& caption) {
    std::string lines = text;
    std::erase(lines, '\r');
    MessageBox(lines, caption).Show(Modality::Modal);
}

} // namespace tumble
