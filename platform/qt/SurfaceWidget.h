#pragma once

#include "platform/qt/QtCanvas.h"
#include "platform/window/SurfaceView.h"

#include <QTimer>
#include <QWidget>

#include <optional>

namespace tumble {

/// Device pixels for each logical pixel; at least 1, even where the toolkit reports less.
double pixelRatio(const QWidget& widget);

/// Shows what is painted on a picture box, in the exact pixels of the screen, and passes mouse, key and touch events to
/// the box.
class SurfaceWidget : public QWidget, public SurfaceView {
public:
    SurfaceWidget(PictureBox& box, PictureCache& pictures, QWidget* parent);

    /// Logical pixels for each 15 twips; the painting shows at the new scale after the event.
    void scale(double scale);

    /// The painting has changed; it reaches the screen after the event, or with `showNow`.
    void changed();
    void showNow() override;
    void inputUnblocked() override;

    bool eventFilter(QObject* window, QEvent* event) override;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override { mouse(*event); }
    void mouseDoubleClickEvent(QMouseEvent* event) override { mouse(*event); }
    void mouseMoveEvent(QMouseEvent* event) override { mouse(*event); }
    void mouseReleaseEvent(QMouseEvent* event) override { mouse(*event); }
    void changeEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    PixelScale pixelScale() const { return PixelScale(scale_ * pixelRatio(*this)); }
    PixelSize pixelSize() const;
    PixelRect bringUpToDate();
    QRect logicalRect(const PixelRect& pixels) const;
    Point twips(QPointF inWidget) const;
    void mouse(const QMouseEvent& event);
    void showCursor();

    QTimer longPress_;
    std::optional<KeyboardCursor> cursor_; // as it shows
    std::optional<QtCanvas> canvas_;       // in device pixels; none before the first painting
    double scale_ = 1;
    bool outOfDate_ = false;
    bool forgotten_ = false; // the toolkit has forgotten a button that went down here and is still held
    QWidget* focusFrame_;
};

} // namespace tumble
