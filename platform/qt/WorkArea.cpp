#include "platform/qt/WorkArea.h"

#include "platform/qt/Geometry.h"

#include <QScreen>

#include <algorithm>
#include <cmath>

namespace tumble {

namespace {

constexpr WindowFrame usualFrame{.left = 4, .top = 32, .right = 4, .bottom = 4};
constexpr double shareOfScreen = 0.8;
constexpr double stepsPerScale = 8;

PixelRect without(const PixelRect& rect, const WindowFrame& frame) {
    return {.left = rect.left + frame.left,
            .top = rect.top + frame.top,
            .right = rect.right - frame.right,
            .bottom = rect.bottom - frame.bottom};
}

/// Where a length begins in the middle of another, as far as the area allows.
int begin(int length, int first, int last, int areaFirst, int areaLast) {
    const int middle = (first + last) / 2 - (length - 1) / 2;
    return std::max(std::min(middle, areaLast - length + 1), areaFirst);
}

} // namespace

WorkArea::WorkArea(const PixelRect& available, PixelSize whole, double ratio, const std::optional<WindowFrame>& frame)
    : area_(without(available, frame.value_or(usualFrame))), whole_(whole), ratio_(ratio) {}

WorkArea::WorkArea(const QScreen& screen, const std::optional<WindowFrame>& frame)
    : WorkArea(toPixelRect(screen.availableGeometry()), toPixelSize(screen.size()), screen.devicePixelRatio(), frame) {}

double WorkArea::largestScale(const FormSize& form) const {
    return showable(form.scaleToFit(area_.width(), area_.height()), ratio_);
}

double WorkArea::leastScale(const FormSize& form) const {
    return std::min(largestScale(form), 1.0);
}

double WorkArea::openingScale(const FormSize& form) const {
    const double share = form.scaleToFit(whole_.width * shareOfScreen, whole_.height * shareOfScreen);
    const double scale = std::min(share, largestScale(form));
    return std::max(std::floor(scale * stepsPerScale) / stepsPerScale, leastScale(form));
}

PixelRect WorkArea::place(PixelSize content, const PixelRect& around) const {
    const int left = begin(content.width, around.left, around.right, area_.left, area_.right);
    const int top = begin(content.height, around.top, around.bottom, area_.top, area_.bottom);
    return content.at({left, top});
}

} // namespace tumble
