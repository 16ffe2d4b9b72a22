#pragma once

#include "platform/paint/Canvas.h"

#include <QColor>
#include <QImage>
#include <QPainter>

namespace tumble {

struct Picture;

QColor toQColor(Colour colour);

/// A canvas in memory, painted on by the toolkit's painter. Draws none but its like.
class QtCanvas : public Canvas {
public:
    /// Of at least one pixel each way; with a ground it is opaque, without one transparent.
    QtCanvas(PixelSize size, std::optional<Colour> ground);
    explicit QtCanvas(QImage image) : image_(std::move(image)) {}

    /// What is painted so far.
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
    QPainter& exact();
    QPainter& smooth(const Transform& toPixels);

    QImage image_;
    std::optional<QRect> clip_;
    bool isSmooth_ = false;    // the painter, and in a path's coordinates
    mutable QPainter painter_; // at work until the image is looked at
};

/// Decodes a picture and scales it; null when its bytes are none.
std::unique_ptr<Canvas> decoded(const Picture& picture, PixelSize size);

} // namespace tumble
