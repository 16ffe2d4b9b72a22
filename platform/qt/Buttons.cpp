#include "platform/qt/Buttons.h"

#include "platform/qt/Contrast.h"

#include <QStyleOptionButton>
#include <QStylePainter>

namespace tumble {

namespace {

constexpr int captionFlags = Qt::TextShowMnemonic | Qt::TextWordWrap;

void drawFrame(QPainter& painter, const QPalette& palette, const QRect& outside, int pen) {
    const double inwards = pen / 2.0;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(withContrast(palette.color(QPalette::Highlight), palette), pen));
    painter.drawRoundedRect(QRectF(outside).adjusted(inwards, inwards, -inwards, -inwards), 2, 2);
}

// The frame shows once the player uses the keyboard. Not every style draws a visible one.
void drawFocus(QPainter& painter, const QStyleOptionButton& option, const QRect& place) {
    if (option.state.testFlag(QStyle::State_HasFocus) && option.state.testFlag(QStyle::State_KeyboardFocusChange)) {
        drawFrame(painter, option.palette, place, 1);
    }
}

} // namespace

// Styles place the mark by the metric's size, whatever rectangle they receive.
QRect WrappingRadioButton::markPlace() const {
    const QSize size(style()->pixelMetric(QStyle::PM_ExclusiveIndicatorWidth, nullptr, this),
                     style()->pixelMetric(QStyle::PM_ExclusiveIndicatorHeight, nullptr, this));
    return {QPoint(0, (height() - size.height()) / 2), size};
}

QRect WrappingRadioButton::captionArea() const {
    return rect().adjusted(
        markPlace().width() + style()->pixelMetric(QStyle::PM_RadioButtonLabelSpacing, nullptr, this), 0, 0, 0);
}

void WrappingRadioButton::paintEvent(QPaintEvent* /*event*/) {
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    const QRect space = captionArea();
    constexpr int flags = captionFlags | Qt::AlignLeft | Qt::AlignVCenter;
    const QRect caption = painter.fontMetrics().boundingRect(space, flags, text());

    QStyleOptionButton mark = option;
    mark.rect = markPlace();
    mark.state.setFlag(QStyle::State_HasFocus, false);
    painter.drawPrimitive(QStyle::PE_IndicatorRadioButton, mark);
    painter.drawItemText(space, flags, palette(), isEnabled(), text(), QPalette::WindowText);
    drawFocus(painter, option, caption.adjusted(-2, -1, 2, 1).intersected(rect()));
}

bool WrappingRadioButton::hitButton(const QPoint& place) const {
    return rect().contains(place);
}

void FormButton::paintEvent(QPaintEvent* /*event*/) {
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    QStyleOptionButton unfocused = option;
    unfocused.state.setFlag(QStyle::State_HasFocus, false);
    painter.drawControl(icon().isNull() ? QStyle::CE_PushButton : QStyle::CE_PushButtonBevel, unfocused);
    if (!icon().isNull()) {
        drawIconAboveCaption(painter);
    }
    if (isDefault()) { // not every style marks it
        drawFrame(painter, option.palette, rect(), 2);
    }
    drawFocus(painter, option, rect().adjusted(4, 4, -4, -4));
}

void FormButton::drawIconAboveCaption(QStylePainter& painter) const {
    const int gap = iconSize().height() / 16;
    const int captionHeight = painter.fontMetrics().height();
    const int top = (height() - iconSize().height() - gap - captionHeight) / 2;
    const QRect iconPlace(QPoint((width() - iconSize().width()) / 2, top), iconSize());
    icon().paint(&painter, iconPlace);
    const QRect captionPlace(0, iconPlace.bottom() + 1 + gap, width(), captionHeight);
    painter.drawItemText(captionPlace, captionFlags | Qt::AlignCenter, palette(), isEnabled(), text(),
                         QPalette::ButtonText);
}

} // namespace tumble
