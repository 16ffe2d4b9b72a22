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

bool fit(const QFont& font, const std::vector<CaptionInRoom>& captions, Wrap wrap) {
    const int flags = Qt::TextShowMnemonic | (wrap == Wrap::No ? 0 : Qt::TextWordWrap);
    const QFontMetrics metrics(font);
    const int overTwoLines = metrics.lineSpacing() * 5 / 2; // lines are rounded up
    return std::all_of(captions.begin(), captions.end(), [&](const CaptionInRoom& each) {
        const QSize needed = metrics.boundingRect(QRect({0, 0}, each.room), flags, each.caption).size();
        return needed.width() <= each.room.width() && needed.height() <= each.room.height() &&
               (wrap != Wrap::Twice || needed.height() < overTwoLines);
    });
}

} // namespace

QFont captionFont(const Font& wanted, double scale, const std::vector<CaptionInRoom>& captions, Wrap wrap) {
    QFont font = QApplication::font();
    font.setBold(wanted.bold);
    auto points = static_cast<double>(wanted.points);
    setPoints(font, points * scale);
    while (!fit(font, captions, wrap) && points > leastPoints) {
        points = std::max(points - pointStep, leastPoints);
        setPoints(font, points * scale);
    }
    for (int stretch = 100 - stretchStep; !fit(font, captions, wrap) && stretch >= leastStretch;
         stretch -= stretchStep) {
        font.setStretch(stretch);
    }
    return font;
}

} // namespace tumble
