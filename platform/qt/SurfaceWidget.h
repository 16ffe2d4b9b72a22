#pragma once

#include "platform/Controls.h"
#include "platform/qt/PaintingReplay.h"

#include <QImage>
#include <QRect>
#include <QWidget>

#include <functional>

namespace tumble {

/// Shows a picture box's painting, in the exact pixels of the screen, and reports the mouse to it.
class SurfaceWidget : public QWidget {
public:
    /// `raise` runs a handler of the box when the form takes input.
    SurfaceWidget(PictureBox& box, PictureCache& pictures, std::function<void(const Handler&)> raise, QWidget* parent);

    /// Where the painting has changed; it reaches the screen after the event, or with `showNow`.
    void changed(const Rect& place);
    void showNow();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override { mousePressEvent(event); }
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    PixelScale scale() const { return PixelScale(devicePixelRatioF()); }
    void bringImageUpToDate();
    void report(const PictureBox::MouseEvent& handler, int button, const QMouseEvent& event);

    PictureBox& box_;
    std::function<void(const Handler&)> raise_;
    PictureCache& pictures_;
    QImage image_;    // in device pixels
    QRect outOfDate_; // of the image
    QWidget* focusRing_;
};

} // namespace tumble
