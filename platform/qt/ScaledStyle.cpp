#include "platform/qt/ScaledStyle.h"

#include <QApplication>

#include <algorithm>

namespace tumble {

namespace {

constexpr int largestMark = 15; // pixels at scale 1, where the closest rows are 16 apart

} // namespace

ScaledStyle::ScaledStyle() : QProxyStyle(QApplication::style()->name()) {}

int ScaledStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
    const int unscaled = QProxyStyle::pixelMetric(metric, option, widget);
    switch (metric) {
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
        return qRound(std::min(unscaled, largestMark) * scale_);
    case PM_RadioButtonLabelSpacing:
    case PM_SliderThickness:
    case PM_SliderControlThickness:
    case PM_SliderLength:
    case PM_SliderTickmarkOffset:
        return qRound(unscaled * scale_);
    default:
        return unscaled;
    }
}

} // namespace tumble
