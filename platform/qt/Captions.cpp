#include "platform/qt/Captions.h"

#include <QApplication>
#include <QFontMetrics>
#include <QScreen>

#include <algorithm>

namespace tumble {

namespace {

constexpr double leastPoints = 6.5;
constexpr double pointStep = 0.25;
constexpr int leastStretch = 65; // percent of the font's own width
constexpr int stretchStep = 5;

// A point is 1/72 of an inch of 96 logical pixels here, whatever the screen says: places are fixed in such pixels.
void setPoints(QFont& font, double points) {
    font.setPointSizeF(points * 96 / QGuiApplication::primaryScreen()->logicalDotsPerInchY());
}

bool fits(const QFont& font, const QString& caption, QSize room, Wrap wrap) {
    const int flags = Qt::TextShowMnemonic | (wrap == Wrap::Words ? Qt::TextWordWrap : 0);
    const QSize needed = QFontMetrics(font).boundingRect(QRect({0, 0}, room), flags, caption).size();
    return needed.width() <= room.width() && needed.height() <= room.height();
}

} // namespace

QFont captionFont(const Font& wanted, double scale, const QString& caption, QSize room, Wrap wrap) {
    QFont font = QApplication::font();
    font.setBold(wanted.bold);
    auto points = static_cast<double>(wanted.points);
    setPoints(font, points * scale);
    while (!fits(font, caption, room, wrap) && points > leastPoints) {
        points = std::max(points - pointStep, leastPoints);
        setPoints(font, points * scale);
    }
    for (int stretch = 100 - stretchStep; !fits(font, caption, room, wrap) && stretch >= leastStretch;
         stretch -= stretchStep) {
        font.setStretch(stretch);
    }
    return font;
}

} // namespace tumble
