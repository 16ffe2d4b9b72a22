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
#include <QTouchEvent>
#include <QWindow>

#include <cmath>
#include <map>
#include <utility>

namespace tumble {

namespace {

/// The focus ring of a picture box. It lies outside the box, so that it covers no card. Screen readers skip a
/// `QFocusFrame`.
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

constexpr QMargins focusFrameMargins(3, 3, 3, 3); // logical pixels: a ring of two, and one of space inside it

static_assert(Qt::LeftButton == leftButton && Qt::RightButton == rightButton && Qt::MiddleButton == middleButton);

std::int16_t sumOf(Qt::MouseButtons held) {
    return static_cast<std::int16_t>(held & (Qt::LeftButton | Qt::RightButton | Qt::MiddleButton));
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
    return qMax(1.0, widget.devicePixelRatioF());
}

SurfaceWidget::SurfaceWidget(PictureBox& box, PictureCache& pictures, QWidget* parent)
    : QWidget(parent), SurfaceView(box, pictures), focusFrame_(new FocusFrame(parent)) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(box.listens());
    setAttribute(Qt::WA_AcceptTouchEvents, box.listens());
    setFocusPolicy(box.listens() ? Qt::StrongFocus : Qt::TabFocus);
    focusFrame_->hide();
    longPress_.setSingleShot(true);
    longPress_.callOnTimeout(this, [this] {
        touch(TouchEvent::LongPress, 0, {}, 0);
        showCursor();
    });
}

void SurfaceWidget::scale(double scale) {
    scale_ = scale;
    focusFrame_->setGeometry(geometry() + focusFrameMargins);
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

/// The device pixels that the widget covers, those that its edges divide included.
PixelSize SurfaceWidget::pixelSize() const {
    const QSizeF exact = QSizeF(size()) * pixelRatio(*this);
    return {static_cast<int>(std::ceil(exact.width())), static_cast<int>(std::ceil(exact.height()))};
}

/// Returns the part of the canvas that has changed.
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

// One pixel larger on each side: at a fractional ratio the toolkit may round the clip inwards.
QRect SurfaceWidget::logicalRect(const PixelRect& pixels) const {
    const double ratio = pixelRatio(*this);
    const QRectF logical(pixels.left / ratio, pixels.top / ratio, pixels.width() / ratio, pixels.height() / ratio);
    return pixels.empty() ? QRect() : logical.toAlignedRect().adjusted(-1, -1, 1, 1);
}

// Before Qt 6.6 no event reports a changed pixel ratio, so each painting compares it.
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

// The toolkit keeps the place in the window exact, but rounds the place in the widget to logical pixels.
void SurfaceWidget::mouse(const QMouseEvent& event) {
    SurfaceView::mouse(sumOf(event.button()), sumOf(event.buttons()), shiftKeys(event.modifiers()),
                       twips(event.scenePosition() - mapTo(window(), QPoint())));
    if (capture_.holds()) {
        window()->windowHandle()->installEventFilter(this);
    }
    showCursor();
}

// The toolkit synthesizes no mouse events from a touch that is accepted.
bool SurfaceWidget::event(QEvent* event) {
    static const std::map<QEventPoint::State, TouchEvent> events{{QEventPoint::Pressed, TouchEvent::Begin},
                                                                 {QEventPoint::Updated, TouchEvent::Move},
                                                                 {QEventPoint::Released, TouchEvent::End}};
    const auto* touches = dynamic_cast<const QTouchEvent*>(event);
    if (touches == nullptr) {
        return QWidget::event(event);
    }
    event->accept();
    if (event->type() == QEvent::TouchBegin || event->type() == QEvent::TouchCancel) {
        touch(TouchEvent::Cancel, 0, {}, 0); // before a touch that begins: the last one's end may have been lost
    }
    const float startDrag = twips({static_cast<double>(QGuiApplication::styleHints()->startDragDistance()), 0}).x;
    for (const QEventPoint& point : touches->points()) {
        if (const auto found = events.find(point.state()); found != events.end()) {
            touch(found->second, point.id(), twips(point.position()), startDrag);
        }
    }
    if (!gesture_.waits()) {
        longPress_.stop();
    } else if (!longPress_.isActive()) {
        longPress_.start(QGuiApplication::styleHints()->mousePressAndHoldInterval());
    }
    showCursor();
    return true;
}

// The toolkit forgets where a button went down when a modal window blocks this one.
void SurfaceWidget::inputUnblocked() {
    SurfaceView::inputUnblocked();
    forgotten_ = capture_.holds();
}

// While a button is held, the window's mouse events are filtered: a move without a button reveals a lost release, and
// the toolkit delivers nothing to the widget once it has forgotten the button.
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
        shown_.invalidate(); // for what is painted in the window's colour
        update();
    }
}

void SurfaceWidget::focusInEvent(QFocusEvent* event) {
    focusFrame_->setVisible(event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason);
    focusFrame_->stackUnder(this);
    showCursor();
}

void SurfaceWidget::focusOutEvent(QFocusEvent* /*event*/) {
    focusFrame_->hide();
    showCursor();
}

} // namespace tumble
