#include "platform/qt/Buttons.h"

#include <QStyleOptionButton>
#include <QStyleOptionFocusRect>
#include <QStylePainter>

namespace tumble {

namespace {

constexpr int captionFlags = Qt::TextShowMnemonic | Qt::TextWordWrap;

void drawFocus(QStylePainter& painter, const QStyleOptionButton& option, const QRect& place) {
    if (!option.state.testFlag(QStyle::State_HasFocus)) {
        return;
    }
    QStyleOptionFocusRect focus;
    focus.QStyleOption::operator=(option);
    focus.rect = place;
    focus.backgroundColor = option.palette.window().color();
    painter.drawPrimitive(QStyle::PE_FrameFocusRect, focus);
}

} // namespace

QRect WrappingRadioButton::captionRoom() const {
    QStyleOptionButton option;
    initStyleOption(&option);
    return style()->subElementRect(QStyle::SE_RadioButtonContents, &option, this);
}

void WrappingRadioButton::paintEvent(QPaintEvent* /*event*/) {
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    const QRect room = captionRoom();
    constexpr int flags = captionFlags | Qt::AlignLeft | Qt::AlignVCenter;
    const QRect caption = painter.fontMetrics().boundingRect(room, flags, text());

    QStyleOptionButton indicator = option;
    indicator.text.clear();
    indicator.state.setFlag(QStyle::State_HasFocus, false);
    painter.drawControl(QStyle::CE_RadioButton, indicator);
    painter.drawItemText(room, flags, palette(), isEnabled(), text(), QPalette::WindowText);
    drawFocus(painter, option, caption.adjusted(-2, -1, 2, 1).intersected(rect()));
}

bool WrappingRadioButton::hitButton(const QPoint& place) const {
    return rect().contains(place);
}

QRect CaptionedFrame::captionRoom() const {
    return {captionHeight_ / 2, 0, width() - captionHeight_, captionHeight_};
}

void CaptionedFrame::paintEvent(QPaintEvent* /*event*/) {
    QStylePainter painter(this);
    const QRect room = captionRoom();
    const QRect caption = painter.fontMetrics().boundingRect(room, Qt::AlignLeft | Qt::AlignVCenter, title());
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(palette().color(QPalette::Mid));
    painter.setClipRegion(QRegion(rect()) - caption.adjusted(-3, 0, 3, 0));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, room.center().y() + 0.5, -0.5, -0.5), 3, 3);
    painter.setClipping(false);
    painter.drawItemText(room, Qt::AlignLeft | Qt::AlignVCenter, palette(), isEnabled(), title(), QPalette::WindowText);
}

void IconAboveButton::paintEvent(QPaintEvent* /*event*/) {
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    painter.drawControl(QStyle::CE_PushButtonBevel, option);

    const int gap = iconSize().height() / 16;
    const int captionHeight = painter.fontMetrics().height();
    const int top = (height() - iconSize().height() - gap - captionHeight) / 2;
    const QRect iconPlace(QPoint((width() - iconSize().width()) / 2, top), iconSize());
    icon().paint(&painter, iconPlace);
    const QRect captionPlace(0, iconPlace.bottom() + 1 + gap, width(), captionHeight);
    painter.drawItemText(captionPlace, captionFlags | Qt::AlignCenter, palette(), isEnabled(), text(),
                         QPalette::ButtonText);
    drawFocus(painter, option, style()->subElementRect(QStyle::SE_PushButtonFocusRect, &option, this));
}

} // namespace tumble
