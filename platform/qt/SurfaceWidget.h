#pragma once

#include "platform/qt/QtCanvas.h"
#include "platform/window/SurfaceView.h"

#include <QBasicTimer>
#include <QWidget>

#include <optional>

class QTouchEvent;

namespace tumble {

/// Device pixels for each logical pixel; at least 1, whatever the toolkit says.
double pixelRatio(const QWidget& widget);

/// Shows a picture box's painting, in the exact pixels of the screen, and reports to it what mouse, keys and fingers
/// do.
class SurfaceWidget : public QWidget, public SurfaceView {
public:
    SurfaceWidget(PictureBox& box, PictureCache& pictures, QWidget* parent);

    /// Logical pixels for each 15 twips; the painting shows at the new scale after the event.
    void scale(double scale);

    /// The painting has changed; it reaches the screen after the event, or with `showNow`.
    void changed();
    void showNow() override;
    void inputUnblocked() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void timerEvent(QTimerEvent* event) override;
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
    void placeFocusFrame();
    Point twips(QPointF inWidget) const;
    void mouse(const QMouseEvent& event);
    void touch(const QTouchEvent& event);
    void showCursor();

    QBasicTimer longPress_;
    std::optional<KeyboardCursor> cursor_; // as it shows
    std::optional<QtCanvas> canvas_;       // in device pixels, once it has been painted
    double scale_ = 1;
    bool outOfDate_ = false;
    bool forgotten_ = false; // the toolkit has forgotten that a button went down here and is held
    QWidget* focusFrame_;
};

} // namespace tumble
