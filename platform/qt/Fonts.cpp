#include "platform/qt/Fonts.h"

#include <QApplication>
#include <QFontMetrics>
#include <QScreen>

namespace tumble {

QFont toQFont(const CaptionFont& caption) {
    QFont font = QApplication::font();
    font.setBold(caption.bold);
    font.setPointSizeF(caption.points * 96 / QGuiApplication::primaryScreen()->logicalDotsPerInchY());
    if (caption.stretch != 100) {
        font.setStretch(caption.stretch);
    }
    return font;
}

TextSize measure(const std::string& text, const CaptionFont& font, std::optional<int> width) {
    const QFontMetrics metrics(toQFont(font));
    const int flags = Qt::TextShowMnemonic | (width ? Qt::TextWordWrap : 0);
    const QRect space(0, 0, width.value_or(0), 0);
    const QSize size = metrics.boundingRect(space, flags, QString::fromStdString(text)).size();
    return {size.width(), size.height(), metrics.lineSpacing()};
}

} // namespace tumble
