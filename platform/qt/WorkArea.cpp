#include "platform/qt/WorkArea.h"

#include <algorithm>
#include <cmath>

namespace tumble {

namespace {

constexpr QMargins usualFrame(4, 32, 4, 4);
constexpr double shareOfScreen = 0.8;
constexpr double stepsPerScale = 8;

} // namespace

WorkArea::WorkArea(const QRect& available, QSize whole, double ratio, const std::optional<QMargins>& frame)
    : area_(available - frame.value_or(usualFrame)), whole_(whole), ratio_(ratio) {}

double WorkArea::largestScale(const FormSize& form) const {
    return showable(form.scaleToFit(area_.width(), area_.height()), ratio_);
}

double WorkArea::leastScale(const FormSize& form) const {
    return std::min(largestScale(form), 1.0);
}

double WorkArea::openingScale(const FormSize& form) const {
    const double share = form.scaleToFit(whole_.width() * shareOfScreen, whole_.height() * shareOfScreen);
    const double scale = std::min(share, largestScale(form));
    return std::max(std::floor(scale * stepsPerScale) / stepsPerScale, leastScale(form));
}

QRect WorkArea::place(QSize content, const QRect& around) const {
    QRect place({}, content);
    place.moveCenter(around.center());
    place.moveRight(std::min(place.right(), area_.right()));
    place.moveBottom(std::min(place.bottom(), area_.bottom()));
    place.moveLeft(std::max(place.left(), area_.left()));
    place.moveTop(std::max(place.top(), area_.top()));
    return place;
}

} // namespace tumble
