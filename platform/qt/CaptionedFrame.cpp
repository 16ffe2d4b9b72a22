#include "platform/qt/CaptionedFrame.h"

#include "platform/qt/Contrast.h"

#include <QStylePainter>

namespace tumble {

QRect CaptionedFrame::captionArea() const {
    return {captionHeight_ / 2, 0, width() - captionHeight_, captionHeight_};
}

void CaptionedFrame::paintEvent(QPaintEvent* /*event*/) {
    QStylePainter painter(this);
    const QRect space = captionArea();
    const QRect caption = painter.fontMetrics().boundingRect(space, Qt::AlignLeft | Qt::AlignVCenter, title());
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(withContrast(palette().color(QPalette::Mid), palette()));
    painter.setClipRegion(QRegion(rect()) - caption.adjusted(-3, 0, 3, 0));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, space.center().y() + 0.5, -0.5, -0.5), 3, 3);
    painter.setClipping(false);
    painter.drawItemText(space, Qt::AlignLeft | Qt::AlignVCenter, palette(), isEnabled(), title(),
                         QPalette::WindowText);
}

} // namespace tumble
