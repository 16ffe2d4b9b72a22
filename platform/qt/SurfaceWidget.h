#pragma once

#include "platform/Controls.h"
#include "platform/qt/PaintingReplay.h"

#include <QImage>
#include <QRect>
#include <QWidget>

#include <functional>

namespace tumble {

/// Device pixels for each logical pixel; at least 1, whatever the toolkit says.
double pixelRatio(const QWidget& widget);

/// Makes surfaces known to screen readers as pictures.
void announceSurfaces();

/// Shows a picture box's painting, in the exact pixels of the screen, and reports the mouse to it.
class SurfaceWidget : public QWidget {
public:
    /// `raise` runs a handler of the box when the form takes input.
    SurfaceWidget(PictureBox& box, PictureCache& pictures, std::function<void(const Handler&)> raise, QWidget* parent);

    /// Logical pixels for each 15 twips; the painting shows at the new scale after the event.
    void scale(double scale);

    /// The painting has changed; it reaches the screen after the event, or with `showNow`.
    void changed();
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
    PixelScale pixelScale() const { return PixelScale(scale_ * pixelRatio(*this)); }
    QRect bringImageUpToDate();
    QRect logicalRect(const QRect& pixels) const;
    void placeFocusRing();
    void report(const PictureBox::MouseEvent& handler, int button, const QMouseEvent& event);

    PictureBox& box_;
    std::function<void(const Handler&)> raise_;
    PictureCache& pictures_;
    double scale_ = 1;
    double imageFactor_ = 0; // at which the image was painted
    QImage image_;           // in device pixels
    Painting inImage_;       // what the image shows
    bool outOfDate_ = false;
    QWidget* focusRing_;
};

} // namespace tumble
