#include "platform/window/Layout.h"

#include <algorithm>
#include <cmath>

namespace tumble {

namespace {

constexpr float optionGap = 45; // twips, as below
constexpr float mostToTheRight = 240;

double unscaled(float twips) {
    return static_cast<double>(twips) / static_cast<double>(twipsPerPixel);
}

int rounded(double pixels) {
    return static_cast<int>(std::lround(pixels));
}

} // namespace

FormSize::FormSize(float Width, float Height) : width(unscaled(Width)), height(unscaled(Height)) {}

PixelSize FormSize::at(double scale) const {
    return {rounded(width * scale), rounded(height * scale)};
}

double FormSize::scaleToFit(double availableWidth, double availableHeight) const {
    return std::min(availableWidth / width, availableHeight / height);
}

double showable(double scale, double ratio) {
    return std::clamp(scale, static_cast<double>(leastFactor) / ratio, static_cast<double>(largestFactor) / ratio);
}

PixelRect Layout::pixels(const Place& place) const {
    const auto pixel = [this](float twips) {
        return static_cast<int>(std::floor(static_cast<double>(twips) * scale / static_cast<double>(twipsPerPixel)));
    };
    return {.left = pixel(place.Left),
            .top = pixel(place.Top),
            .right = pixel(place.Left + place.Width) - 1,
            .bottom = pixel(place.Top + place.Height) - 1};
}

// With a pixel and a hundredth to spare: the window's size in whole pixels may make the scale a little smaller.
float Layout::twips(int pixels) const {
    return static_cast<float>((pixels * 1.01 + 1) * static_cast<double>(twipsPerPixel) / scale);
}

Layout layoutOf(const FormSize& form, PixelSize window, double ratio) {
    const double scale = showable(form.scaleToFit(window.width, window.height), ratio);
    const auto [width, height] = form.at(scale);
    const int left = rounded((window.width - width) / 2.0);
    const int top = rounded((window.height - height) / 2.0);
    return {.scale = scale, .content = form.at(scale).at({left, top})};
}

Place allottedPlace(const Control& control) {
    return control.place();
}

Place allottedPlace(const OptionButton& option) {
    const Place place = option.place();
    const float end = place.Left + place.Width;
    float free = place.Height;
    float right = std::min(option.container().Width() - end - optionGap, mostToTheRight);
    for (const AnyControl& any : option.container().controls()) {
        const Control& other = asControl(any);
        const auto& [otherLeft, otherTop, otherWidth, otherHeight] = other.place();
        const float gap = std::max(otherTop - (place.Top + place.Height), place.Top - (otherTop + otherHeight));
        const bool sideways = otherLeft >= end || place.Left >= otherLeft + otherWidth;
        if (gap < 0 && otherLeft > place.Left) {
            right = std::min(right, otherLeft - end - optionGap);
        }
        if (&other != &option && !sideways) {
            free = std::clamp(gap, 0.0F, free);
        }
    }
    return {place.Left, place.Top - free / 2, place.Width + std::max(right, 0.0F), place.Height + free};
}

} // namespace tumble
