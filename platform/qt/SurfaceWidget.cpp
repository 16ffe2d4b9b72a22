#include "platform/qt/SurfaceWidget.h"

#include <QAccessibleWidget>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>

#include <utility>

namespace tumble {

namespace {

/// The frame around a picture box that has the keyboard's attention. It lies outside, so that it covers no card.
class FocusRing : public QWidget {
public:
    using QWidget::QWidget;

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
        painter.drawRect(rect().adjusted(1, 1, -1, -1));
    }
};

constexpr int ringWidth = 3; // logical pixels, with a pixel of space inside

int buttonCode(Qt::MouseButton button) {
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
    const int shift = keys.testFlag(Qt::ShiftModifier) ? 1 : 0;
    const int control = keys.testFlag(Qt::ControlModifier) ? 2 : 0;
    const int alt = keys.testFlag(Qt::AltModifier) ? 4 : 0;
    return static_cast<std::int16_t>(shift + control + alt);
}

} // namespace

void announceSurfaces() {
    QAccessible::installFactory([](const QString& /*className*/, QObject* object) -> QAccessibleInterface* {
        auto* surface = dynamic_cast<SurfaceWidget*>(object);
        return surface != nullptr ? new QAccessibleWidget(surface, QAccessible::Graphic) : nullptr;
    });
}

double pixelRatio(const QWidget& widget) {
    const double ratio = widget.devicePixelRatioF();
    return ratio >= 1 ? ratio : 1;
}

SurfaceWidget::SurfaceWidget(PictureBox& box, PictureCache& pictures, std::function<void(const Handler&)> raise,
                             QWidget* parent)
    : QWidget(parent),
      box_(box),
      raise_(std::move(raise)),
      pictures_(pictures),
      inImage_(box.painting()),
      focusRing_(new FocusRing(parent)) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(box.MouseMove != nullptr);
    setFocusPolicy(Qt::TabFocus);
    focusRing_->setAttribute(Qt::WA_TransparentForMouseEvents);
    focusRing_->hide();
}

void SurfaceWidget::scale(double scale) {
    scale_ = scale;
    placeFocusRing();
    update();
}

void SurfaceWidget::changed() {
    if (!outOfDate_) {
        outOfDate_ = true;
        const auto show = [this] { update(logicalRect(bringImageUpToDate())); };
        QMetaObject::invokeMethod(this, show, Qt::QueuedConnection);
    }
}

void SurfaceWidget::showNow() {
    if (outOfDate_) {
        repaint(logicalRect(bringImageUpToDate()));
    }
}

/// Returns the part of the image that is another, in device pixels.
QRect SurfaceWidget::bringImageUpToDate() {
    const PixelScale scale = pixelScale();
    const Painting& painting = box_.painting();
    Rect part = painting.changedSince(inImage_);
    if (imageFactor_ != scale.factor()) {
        if (imageFactor_ != 0) {
            pictures_.clear();
        }
        imageFactor_ = scale.factor();
        part = painting.bounds();
        image_ = QImage(toQRect(scale.pixels(part)).size(), QImage::Format_RGB32);
    }
    if (!part.empty()) {
        replay(painting.ground(), painting.items(), scale, part, pictures_, image_);
        inImage_ = painting;
    }
    outOfDate_ = false;
    return toQRect(scale.pixels(part)) & image_.rect();
}

// A pixel more all round: at a fractional ratio the toolkit may round the clip inwards.
QRect SurfaceWidget::logicalRect(const QRect& pixels) const {
    const double ratio = pixelRatio(*this);
    const QRectF logical(pixels.x() / ratio, pixels.y() / ratio, pixels.width() / ratio, pixels.height() / ratio);
    return pixels.isEmpty() ? QRect() : logical.toAlignedRect().adjusted(-1, -1, 1, 1);
}

// The toolkit does not say when a window comes to a screen of another ratio: the image shows it.
void SurfaceWidget::paintEvent(QPaintEvent* event) {
    if (imageFactor_ != pixelScale().factor()) {
        bringImageUpToDate();
    }
    QPainter painter(this);
    // In device pixels, so that a fractional ratio resamples nothing.
    const double ratio = pixelRatio(*this);
    painter.scale(1 / ratio, 1 / ratio);
    for (const QRect& part : event->region()) {
        const QRectF pixels(part.x() * ratio, part.y() * ratio, part.width() * ratio, part.height() * ratio);
        const QRect whole = pixels.toAlignedRect();
        painter.drawImage(whole, image_, whole);
    }
}

void SurfaceWidget::mousePressEvent(QMouseEvent* event) {
    report(box_.MouseDown, buttonCode(event->button()), *event);
}

void SurfaceWidget::mouseMoveEvent(QMouseEvent* event) {
    report(box_.MouseMove, heldButtons(event->buttons()), *event);
}

void SurfaceWidget::mouseReleaseEvent(QMouseEvent* event) {
    report(box_.MouseUp, buttonCode(event->button()), *event);
}

void SurfaceWidget::report(const PictureBox::MouseEvent& handler, int button, const QMouseEvent& event) {
    if (handler == nullptr) {
        return;
    }
    const QPointF pixel = event.position() * pixelRatio(*this);
    const float X = pixelScale().twips(pixel.x());
    const float Y = pixelScale().twips(pixel.y());
    raise_([&] { handler(static_cast<std::int16_t>(button), shiftKeys(event.modifiers()), X, Y); });
}

void SurfaceWidget::focusInEvent(QFocusEvent* event) {
    const bool byKeyboard = event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
    placeFocusRing();
    focusRing_->setVisible(byKeyboard);
    focusRing_->stackUnder(this);
}

void SurfaceWidget::placeFocusRing() {
    focusRing_->setGeometry(geometry().adjusted(-ringWidth, -ringWidth, ringWidth, ringWidth));
}

void SurfaceWidget::focusOutEvent(QFocusEvent* /*event*/) {
    focusRing_->hide();
}

} // namespace tumble
