#include "platform/window/Captions.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>

namespace tumble {

namespace {

constexpr float tallLabel = 600; // twips: the caption of a higher one wraps
constexpr double leastPoints = 6.5;
constexpr double pointStep = 0.25;
constexpr int leastStretch = 65; // percent
constexpr int stretchStep = 5;

} // namespace

CaptionStyle captionStyle(const Label& label) {
    return {.font = label.font, .wrap = label.place().Height < tallLabel ? Wrap::No : Wrap::Freely};
}

CaptionStyle captionStyle(const CommandButton& /*button*/) {
    return {};
}

CaptionStyle captionStyle(const OptionButton& /*option*/) {
    return {.wrap = Wrap::Twice};
}

CaptionStyle captionStyle(const Frame& frame) {
    return {.font = frame.font};
}

TextSize textSize(const std::string& text, const WidthOf& widthOf, int lineSpacing, std::optional<int> width) {
    double widest = 0;
    int lines = 0;
    for (std::size_t begin = 0; begin <= text.size(); ++lines) {
        std::size_t end = width ? text.find(' ', begin) : std::string::npos;
        for (auto next = end; next != std::string::npos;) {
            next = text.find(' ', next + 1);
            if (widthOf(text.substr(begin, next - begin)) <= *width) {
                end = next;
            } else {
                break;
            }
        }
        const std::string line = text.substr(begin, end - begin);
        widest = std::max(widest, widthOf(line));
        begin += line.size() + 1;
    }
    return {static_cast<int>(std::ceil(widest)), lines * lineSpacing, lineSpacing};
}

Captions::Captions(TextMeasure measure) : measure_(std::move(measure)) {}

void Captions::add(const Control& control, const CaptionStyle& style, AvailableSize available, SetFont setFont) {
    const Container* container = &control.container();
    auto group = std::find_if(groups_.begin(), groups_.end(),
                              [&](const Group& other) { return other.container == container && other.style == style; });
    if (group == groups_.end()) {
        group = groups_.insert(group, {container, style, {}});
    }
    group->captions.push_back({&control, std::move(available), std::move(setFont)});
}

void Captions::fit(double scale) const {
    for (const Group& group : groups_) {
        fit(group, scale);
    }
}

void Captions::fit(const Control& changed, double scale) const {
    for (const Group& group : groups_) {
        if (std::any_of(group.captions.begin(), group.captions.end(),
                        [&](const Each& each) { return each.control == &changed; })) {
            fit(group, scale);
        }
    }
}

void Captions::fit(const Group& group, double scale) const {
    auto points = static_cast<double>(group.style.font.points);
    CaptionFont font{.points = points * scale, .bold = group.style.font.bold};
    while (!fits(group, font) && font.stretch > leastStretch) {
        if (points > leastPoints) {
            points = std::max(points - pointStep, leastPoints);
            font.points = points * scale;
        } else {
            font.stretch -= stretchStep;
        }
    }
    for (const Each& each : group.captions) {
        each.setFont(font);
    }
}

bool Captions::fits(const Group& group, const CaptionFont& font) const {
    return std::all_of(group.captions.begin(), group.captions.end(), [&](const Each& each) {
        const PixelSize room = each.available();
        const bool wraps = group.style.wrap != Wrap::No;
        const auto [width, height, lineSpacing] =
            measure_(each.control->Caption(), font, wraps ? std::optional(room.width) : std::nullopt);
        const int overTwoLines = lineSpacing * 5 / 2; // lines are rounded up
        return width <= room.width && height <= room.height &&
               (group.style.wrap != Wrap::Twice || height < overTwoLines);
    });
}

} // namespace tumble
