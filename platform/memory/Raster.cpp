#include "platform/memory/Raster.h"

#include "platform/Picture.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <string>
#include <variant>

namespace tumble {

Raster::Raster(const Painting& painting, PixelScale scale)
    : scale_(scale),
      all_(scale.pixels(painting.bounds())),
      pixels_(static_cast<std::size_t>(all_.width()) * static_cast<std::size_t>(all_.height()), painting.ground()) {}

void Raster::paint(const std::vector<PaintItem>& items) {
    for (const PaintItem& item : items) {
        paint(item);
    }
}

void Raster::paint(const PaintItem& item) {
    const PixelRect place = scale_.pixels(item.place);
    const PixelRect clip = place.intersected(all_);
    for (const Operation& operation : item.operations) {
        std::visit([&](const auto& what) { draw(what, place, clip); }, operation);
    }
}

std::size_t Raster::index(int x, int y) const {
    return static_cast<std::size_t>(y) * static_cast<std::size_t>(width()) + static_cast<std::size_t>(x);
}

Colour Raster::at(int x, int y) const {
    return pixels_.at(index(x, y));
}

void Raster::set(int x, int y, const PixelRect& clip, Colour colour) {
    if (x >= clip.left && x <= clip.right && y >= clip.top && y <= clip.bottom) {
        pixels_[index(x, y)] = colour;
    }
}

void Raster::fill(const PixelRect& rect, const PixelRect& clip, Colour colour) {
    const PixelRect part = rect.intersected(clip);
    for (int y = part.top; y <= part.bottom; ++y) {
        for (int x = part.left; x <= part.right; ++x) {
            set(x, y, clip, colour);
        }
    }
}

void Raster::draw(const PictureOperation& picture, const PixelRect& /*place*/, const PixelRect& clip) {
    const PixelRect box = scale_.pixels(picture.box);
    const auto own = static_cast<Colour>(std::hash<std::string>{}(picture.picture->Key) & 0xFFFF00U);
    const PixelRect part = box.intersected(clip);
    for (int y = part.top; y <= part.bottom; ++y) {
        for (int x = part.left; x <= part.right; ++x) {
            set(x, y, clip, own + (x - box.left + y - box.top) % 256);
        }
    }
}

void Raster::draw(const FillOperation& operation, const PixelRect& /*place*/, const PixelRect& clip) {
    fill(scale_.pixels(operation.box), clip, operation.colour);
}

void Raster::draw(const BoxOperation& operation, const PixelRect& /*place*/, const PixelRect& clip) {
    const PixelRect box = scale_.pixels(operation.box);
    for (const PixelRect& side : boxSides(box, scale_.pen())) {
        fill(side, clip, operation.colour);
    }
}

void Raster::draw(const LineOperation& line, const PixelRect& place, const PixelRect& clip) {
    if (line.from.x == line.to.x || line.from.y == line.to.y) {
        fill(scale_.stroke(line.from, line.to, place), clip, line.colour);
        return;
    }
    for (const PixelRect& block : scale_.slant(line.from, line.to, place)) {
        fill(block, clip, line.colour);
    }
}

void Raster::draw(const CircleOperation& circle, const PixelRect& /*place*/, const PixelRect& clip) {
    const double radius = circle.radius * scale_.factor() / twipsPerPixel;
    const int x = scale_.pixel(circle.centre.x);
    const int y = scale_.pixel(circle.centre.y);
    for (int degree = 0; degree < 360; ++degree) {
        const double angle = degree * 3.14159265358979 / 180;
        set(x + static_cast<int>(std::lround(radius * std::cos(angle))),
            y + static_cast<int>(std::lround(radius * std::sin(angle))), clip, circle.colour);
    }
}

} // namespace tumble
