#include "platform/qt/ScaledStyle.h"

#include <QApplication>

namespace tumble {

ScaledStyle::ScaledStyle() : QProxyStyle(QApplication::style()->name()) {}

int ScaledStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
    const int unscaled = QProxyStyle::pixelMetric(metric, option, widget);
    switch (metric) {
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
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
