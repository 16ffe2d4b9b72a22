#include "platform/qt/SurfaceWidget.h"

#include "platform/qt/Contrast.h"
#include "platform/qt/KeyFilter.h"

#include <QFocusFrame>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QStyleHints>
#include <QTimerEvent>
#include <QTouchEvent>
#include <QWindow>

#include <cmath>
#include <utility>

namespace tumble {

namespace {

/// The frame around a picture box that has the keyboard's attention. It lies outside, so that it covers no card. Screen
/// readers are not told of a focus frame.
class FocusFrame : public QFocusFrame {
public:
    using QFocusFrame::QFocusFrame;

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        painter.setPen(QPen(withContrast(palette().color(QPalette::Highlight), palette()), 2));
        painter.drawRect(rect().adjusted(1, 1, -1, -1));
    }
};

constexpr int focusFrameWidth = 3; // logical pixels, with a pixel of space inside

std::int16_t buttonCode(Qt::MouseButton button) {
    switch (button) {
    case Qt::LeftButton:
        return 1;
    case Qt::RightButton:
        return 2;
    case Qt::MiddleButton:
        return 4;
    default:
        return 0;
    }
}

std::int16_t heldButtons(Qt::MouseButtons held) {
    int sum = 0;
    for (const auto button : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton}) {
        sum += held.testFlag(button) ? buttonCode(button) : 0;
    }
    return static_cast<std::int16_t>(sum);
}

std::int16_t shiftKeys(Qt::KeyboardModifiers keys) {
    const int shift = keys.testFlag(Qt::ShiftModifier) ? shiftKey : 0;
    const int control = keys.testFlag(Qt::ControlModifier) ? controlKey : 0;
    const int alt = keys.testFlag(Qt::AltModifier) ? altKey : 0;
    const int meta = keys.testFlag(Qt::MetaModifier) ? metaKey : 0;
    return static_cast<std::int16_t>(shift + control + alt + meta);
}

} // namespace

double pixelRatio(const QWidget& widget) {
    const double ratio = widget.devicePixelRatioF();
    return ratio >= 1 ? ratio : 1;
}

SurfaceWidget::SurfaceWidget(PictureBox& box, PictureCache& pictures, QWidget* parent)
    : QWidget(parent), SurfaceView(box, pictures), focusFrame_(new FocusFrame(parent)) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(box.listens());
    setAttribute(Qt::WA_AcceptTouchEvents, box.listens());
    setFocusPolicy(box.listens() ? Qt::StrongFocus : Qt::TabFocus);
    focusFrame_->hide();
}

void SurfaceWidget::scale(double scale) {
    scale_ = scale;
    placeFocusFrame();
    update();
}

void SurfaceWidget::changed() {
    if (!outOfDate_) {
        outOfDate_ = true;
        const auto show = [this] { update(logicalRect(bringUpToDate())); };
        QMetaObject::invokeMethod(this, show, Qt::QueuedConnection);
    }
}

void SurfaceWidget::showNow() {
    if (outOfDate_) {
        repaint(logicalRect(bringUpToDate()));
    }
}

/// The device pixels that the widget covers, wherever its edges come to lie between them.
PixelSize SurfaceWidget::pixelSize() const {
    const QSizeF exact = QSizeF(size()) * pixelRatio(*this);
    return {static_cast<int>(std::ceil(exact.width())), static_cast<int>(std::ceil(exact.height()))};
}

/// Returns the part of the canvas that is another.
PixelRect SurfaceWidget::bringUpToDate() {
    outOfDate_ = false;
    if (box() == nullptr) {
        return {};
    }
    if (!canvas_ || canvas_->size() != pixelSize()) {
        canvas_.emplace(pixelSize(), box()->displayList().ground());
    }
    return shown_.bringUpToDate(*canvas_, box()->displayList(), pixelScale());
}

// A pixel more all round: at a fractional ratio the toolkit may round the clip inwards.
QRect SurfaceWidget::logicalRect(const PixelRect& pixels) const {
    const double ratio = pixelRatio(*this);
    const QRectF logical(pixels.left / ratio, pixels.top / ratio, pixels.width() / ratio, pixels.height() / ratio);
    return pixels.empty() ? QRect() : logical.toAlignedRect().adjusted(-1, -1, 1, 1);
}

// The toolkit does not say when a window comes to a screen of another ratio: the image shows it.
void SurfaceWidget::paintEvent(QPaintEvent* event) {
    if (shown_.needsRepaint(pixelSize(), pixelScale())) {
        bringUpToDate();
    }
    if (!canvas_) {
        return;
    }
    const QImage& image = canvas_->image();
    QPainter painter(this);
    // In device pixels, so that a fractional ratio resamples nothing.
    const double ratio = pixelRatio(*this);
    painter.scale(1 / ratio, 1 / ratio);
    for (const QRect& part : event->region()) {
        const QRectF pixels(part.x() * ratio, part.y() * ratio, part.width() * ratio, part.height() * ratio);
        const QRect whole = pixels.toAlignedRect() & image.rect();
        painter.drawImage(whole, image, whole);
    }
    if (cursor_) {
        const PixelRect block = cursorPixels(*cursor_, pixelScale());
        QtCanvas mark(block.size(), std::nullopt);
        paintCursor(mark, cursor_->holds, pixelScale());
        painter.drawImage(block.left, block.top, mark.image());
    }
}

// Only where it was and where it comes to is painted again.
void SurfaceWidget::showCursor() {
    const std::optional<KeyboardCursor> before = std::exchange(cursor_, hasFocus() ? pointer_.cursor() : std::nullopt);
    if (cursor_ != before) {
        for (const std::optional<KeyboardCursor>& mark : {before, cursor_}) {
            update(mark ? logicalRect(cursorPixels(*mark, pixelScale())) : QRect());
        }
    }
}

void SurfaceWidget::keyPressEvent(QKeyEvent* event) {
    const auto key = keyOf(*event);
    event->setAccepted(
        key &&
        SurfaceView::key({.key = *key, .Shift = shiftKeys(event->modifiers()), .repeated = event->isAutoRepeat()}));
    showCursor();
}

Point SurfaceWidget::twips(QPointF inWidget) const {
    const QPointF pixel = inWidget * pixelRatio(*this);
    return {pixelScale().twips(pixel.x()), pixelScale().twips(pixel.y())};
}

// At the place in the window, which the toolkit leaves exact; the one in the widget it rounds to logical pixels.
void SurfaceWidget::mouse(const QMouseEvent& event) {
    SurfaceView::mouse(buttonCode(event.button()), heldButtons(event.buttons()), shiftKeys(event.modifiers()),
                       twips(event.scenePosition() - mapTo(window(), QPoint())));
    showCursor();
}

// A touch that is taken comes as no mouse event.
bool SurfaceWidget::event(QEvent* event) {
    switch (event->type()) {
    case QEvent::TouchBegin:
        gesture_.cancel(); // of whose lift the toolkit may not have told
        [[fallthrough]];
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
        event->accept();
        touch(static_cast<QTouchEvent&>(*event));
        break;
    case QEvent::TouchCancel:
        gesture_.cancel();
        break;
    default:
        return QWidget::event(event);
    }
    if (!gesture_.waits()) {
        longPress_.stop();
    } else if (!longPress_.isActive()) {
        longPress_.start(QGuiApplication::styleHints()->mousePressAndHoldInterval(), this);
    }
    showCursor();
    return true;
}

void SurfaceWidget::touch(const QTouchEvent& event) {
    const double startDrag = QGuiApplication::styleHints()->startDragDistance();
    for (const QEventPoint& point : event.points()) {
        const Point at = twips(point.position());
        if (point.state() == QEventPoint::Pressed) {
            gesture_.touch(point.id(), at, twips({startDrag, 0}).x);
        } else if (point.state() == QEventPoint::Updated) {
            gesture_.move(point.id(), at);
        } else if (point.state() == QEventPoint::Released) {
            gesture_.lift(point.id(), at);
        }
    }
}

void SurfaceWidget::timerEvent(QTimerEvent* event) {
    if (event->timerId() == longPress_.timerId()) {
        longPress_.stop();
        gesture_.longPress();
        showCursor();
    }
}

// The toolkit forgets where a button went down when another window comes to block this one.
void SurfaceWidget::inputUnblocked() {
    forgotten_ = capture_.holds();
    if (forgotten_) {
        window()->windowHandle()->installEventFilter(this);
    }
}

// What the window hears of a held button that the toolkit has forgotten. Let go while the input was blocked, it is held
// no longer.
bool SurfaceWidget::eventFilter(QObject* /*watched*/, QEvent* event) {
    const auto type = event->type();
    if (!forgotten_ ||
        (type != QEvent::MouseMove && type != QEvent::MouseButtonPress && type != QEvent::MouseButtonRelease)) {
        return false;
    }
    const auto& mouseEvent = static_cast<const QMouseEvent&>(*event);
    const Qt::MouseButtons before = type == QEvent::MouseButtonPress     ? mouseEvent.buttons() ^ mouseEvent.button()
                                    : type == QEvent::MouseButtonRelease ? mouseEvent.buttons() | mouseEvent.button()
                                                                         : mouseEvent.buttons();
    forgotten_ = before != Qt::NoButton && mouseEvent.buttons() != Qt::NoButton;
    if (before == Qt::NoButton) {
        return false;
    }
    mouse(mouseEvent);
    return true;
}

// A window that goes from the screen is not told when the button is let go.
void SurfaceWidget::hideEvent(QHideEvent* /*event*/) {
    hidden_ = capture_.holds();
}

void SurfaceWidget::showEvent(QShowEvent* /*event*/) {
    if (std::exchange(hidden_, false)) {
        QMetaObject::invokeMethod(
            this,
            [this] {
                letGo();
                showCursor();
            },
            Qt::QueuedConnection);
    }
}

void SurfaceWidget::changeEvent(QEvent* event) {
    if (event->type() == QEvent::PaletteChange) {
        shown_.invalidate(); // what has the window's colour is painted again
        update();
    }
}

void SurfaceWidget::focusInEvent(QFocusEvent* event) {
    const bool byKeyboard = event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
    placeFocusFrame();
    focusFrame_->setVisible(byKeyboard);
    focusFrame_->stackUnder(this);
    showCursor();
}

void SurfaceWidget::placeFocusFrame() {
    focusFrame_->setGeometry(geometry().adjusted(-focusFrameWidth, -focusFrameWidth, focusFrameWidth, focusFrameWidth));
}

void SurfaceWidget::focusOutEvent(QFocusEvent* /*event*/) {
    focusFrame_->hide();
    showCursor();
}

} // namespace tumble
