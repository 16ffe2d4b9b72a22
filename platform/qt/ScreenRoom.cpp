#include "platform/qt/ScreenRoom.h"

#include "platform/Geometry.h"

#include <QScreen>

#include <algorithm>
#include <cmath>

namespace tumble {

namespace {

constexpr double largestFactor = 16;        // device pixels for each 15 twips
constexpr QMargins usualFrame(4, 32, 4, 4); // logical pixels
constexpr double shareOfScreen = 0.8;
constexpr double stepsPerScale = 8;

double scaleToFit(QSizeF form, QSizeF room) {
    return std::min(room.width() / form.width(), room.height() / form.height());
}

} // namespace

double showable(double scale, double ratio) {
    return std::clamp(scale, static_cast<double>(leastFactor) / ratio, largestFactor / ratio);
}

ScreenRoom::ScreenRoom(const QScreen& screen, const std::optional<QMargins>& frame)
    : available_(screen.availableGeometry()),
      whole_(screen.size()),
      frame_(frame.value_or(usualFrame)),
      ratio_(screen.devicePixelRatio()) {}

double ScreenRoom::largestScale(QSizeF form) const {
    return showable(scaleToFit(form, inside().size()), ratio_);
}

double ScreenRoom::leastScale(QSizeF form) const {
    return std::min(largestScale(form), 1.0);
}

double ScreenRoom::openingScale(QSizeF form) const {
    const double scale = std::min(scaleToFit(form, whole_ * shareOfScreen), largestScale(form));
    return std::max(std::floor(scale * stepsPerScale) / stepsPerScale, leastScale(form));
}

QRect ScreenRoom::place(QSize content, const QRect& around) const {
    const QRect inside = this->inside();
    QRect place({}, content);
    place.moveCenter(around.center());
    place.moveLeft(std::max(std::min(place.x(), inside.right() - place.width() + 1), inside.x()));
    place.moveTop(std::max(std::min(place.y(), inside.bottom() - place.height() + 1), inside.y()));
    return place;
}

} // namespace tumble
