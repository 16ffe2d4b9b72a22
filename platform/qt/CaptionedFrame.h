#pragma once

#include <QGroupBox>

namespace tumble {

/// A group box whose caption interrupts its upper line. Nothing else reduces the space of its controls.
class CaptionedFrame : public QGroupBox {
public:
    using QGroupBox::QGroupBox;

    /// In logical pixels. The upper line passes through the middle of the caption.
    void captionHeight(int height) { captionHeight_ = height; }

    /// The place of the caption in the frame.
    QRect captionArea() const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    int captionHeight_ = 0;
};

} // namespace tumble
