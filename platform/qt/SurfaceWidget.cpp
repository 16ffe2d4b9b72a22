#include "platform/qt/SurfaceWidget.h"

#include "platform/forms/Mouse.h"
#include "platform/qt/Contrast.h"
#include "platform/qt/Geometry.h"
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

#include <array>
#include <cmath>
#include <map>
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

constexpr std::array buttons{std::pair(Qt::LeftButton, leftButton), std::pair(Qt::RightButton, rightButton),
                             std::pair(Qt::MiddleButton, middleButton)};

std::int16_t sumOf(Qt::MouseButtons held) {
    int sum = 0;
    for (const auto& [qtButton, button] : buttons) {
        sum += held.testFlag(qtButton) ? button : 0;
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
    SurfaceView::mouse(sumOf(event.button()), sumOf(event.buttons()), shiftKeys(event.modifiers()),
                       twips(event.scenePosition() - mapTo(window(), QPoint())));
    if (capture_.holds()) {
        window()->windowHandle()->installEventFilter(this);
    }
    showCursor();
}

// A touch that is accepted arrives as no mouse event.
bool SurfaceWidget::event(QEvent* event) {
    switch (event->type()) {
    case QEvent::TouchBegin: // the toolkit may not have told of the last lift
    case QEvent::TouchCancel:
        SurfaceView::touch(TouchEvent::Cancel, 0, {}, 0);
        break;
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
        break;
    default:
        return QWidget::event(event);
    }
    event->accept();
    touch(static_cast<QTouchEvent&>(*event));
    if (!gesture_.waits()) {
        longPress_.stop();
    } else if (!longPress_.isActive()) {
        longPress_.start(QGuiApplication::styleHints()->mousePressAndHoldInterval(), this);
    }
    showCursor();
    return true;
}

void SurfaceWidget::touch(const QTouchEvent& event) {
    static const std::map<QEventPoint::State, TouchEvent> events{{QEventPoint::Pressed, TouchEvent::Begin},
                                                                 {QEventPoint::Updated, TouchEvent::Move},
                                                                 {QEventPoint::Released, TouchEvent::End}};
    const float startDrag = twips({static_cast<double>(QGuiApplication::styleHints()->startDragDistance()), 0}).x;
    for (const QEventPoint& point : event.points()) {
        if (const auto found = events.find(point.state()); found != events.end()) {
            SurfaceView::touch(found->second, point.id(), twips(point.position()), startDrag);
        }
    }
}

void SurfaceWidget::timerEvent(QTimerEvent* event) {
    if (event->timerId() == longPress_.timerId()) {
        longPress_.stop();
        SurfaceView::touch(TouchEvent::LongPress, 0, {}, 0);
        showCursor();
    }
}

// The toolkit forgets where a button went down when another window comes to block this one.
void SurfaceWidget::inputUnblocked() {
    SurfaceView::inputUnblocked();
    forgotten_ = capture_.holds();
}

// While a button is held the window listens too: for moves outside the widget that show a lost release, and for what
// the toolkit sends nowhere since it has forgotten the button.
bool SurfaceWidget::eventFilter(QObject* window, QEvent* event) {
    if (!capture_.holds()) {
        window->removeEventFilter(this);
        return false;
    }
    const auto type = event->type();
    if (type != QEvent::MouseMove && type != QEvent::MouseButtonPress && type != QEvent::MouseButtonRelease) {
        return false;
    }
    const auto& mouseEvent = static_cast<const QMouseEvent&>(*event);
    const bool isFirstPress = type == QEvent::MouseButtonPress && mouseEvent.buttons() == mouseEvent.button();
    const bool isBareMove = type == QEvent::MouseMove && mouseEvent.buttons() == Qt::NoButton;
    const bool unsent = forgotten_ && !isFirstPress && !isBareMove;
    forgotten_ = forgotten_ && !isFirstPress && mouseEvent.buttons() != Qt::NoButton;
    if (unsent || isBareMove) {
        mouse(mouseEvent);
    }
    return unsent;
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
