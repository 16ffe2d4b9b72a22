#pragma once

#include <QProxyStyle>

namespace tumble {

/// The desktop's own style, with the marks of controls scaled like their captions.
class ScaledStyle : public QProxyStyle {
public:
    /// Based on a new style of the application's kind.
    ScaledStyle();

    /// Logical pixels for each pixel of the unscaled window.
    void scale(double scale) { scale_ = scale; }

    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;

private:
    double scale_ = 1;
};

} // namespace tumble
