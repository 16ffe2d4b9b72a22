#pragma once

#include "platform/paint/Canvas.h"

#include <QColor>
#include <QImage>
#include <QPainter>

namespace tumble {

struct Picture;

QColor toQColor(Colour colour);

/// A canvas on a `QImage`.
class QtCanvas : public Canvas {
public:
    /// Opaque with a ground, transparent without one; `size` is at least one pixel each way.
    QtCanvas(PixelSize size, std::optional<Colour> ground);
    explicit QtCanvas(QImage image) : image_(std::move(image)) {}

    /// Ends painting in progress, so that the image can be read.
    const QImage& image() const;

    PixelSize size() const override { return {image_.width(), image_.height()}; }
    std::unique_ptr<Canvas> createSimilar(PixelSize size, std::optional<Colour> ground) const override;
    void clip(const PixelRect& block) override;
    void fill(const PixelRect& block, Colour colour) override;
    void fill(const Path& path, const Transform& toPixels, Colour colour) override;
    void fill(const Path& path, const Transform& toPixels, const Canvas& texture, PixelPoint corner) override;
    void stroke(const Path& path, const Transform& toPixels, const Pen& pen) override;
    void draw(const Canvas& image, const PixelRect& block, PixelPoint at, Flip flip) override;

private:
    void applyClip() const;
    QPainter& exactPainter();
    QPainter& smoothPainter(const Transform& toPixels);

    QImage image_;
    std::optional<QRect> clip_;
    bool isSmooth_ = false;    // the painter smooths edges and has a transform
    mutable QPainter painter_; // active until the image is read
};

/// Decodes and scales a picture; null when that fails.
std::unique_ptr<Canvas> decoded(const Picture& picture, PixelSize size);

} // namespace tumble
