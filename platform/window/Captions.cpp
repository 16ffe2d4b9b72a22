#include "platform/window/Captions.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>

namespace tumble {

namespace {

constexpr double leastPoints = 6.5;
constexpr double pointStep = 0.25;
constexpr int leastStretch = 65; // percent
constexpr int stretchStep = 5;

} // namespace

CaptionStyle captionStyle(const Label& label) {
    return {.font = label.font, .wrap = label.wraps() ? Wrap::Freely : Wrap::No};
}

CaptionStyle captionStyle(const CommandButton& /*button*/) {
    return {.margin = {8, 4}};
}

CaptionStyle captionStyle(const OptionButton& /*option*/) {
    return {.wrap = Wrap::Twice, .margin = {20, 0}};
}

CaptionStyle captionStyle(const Frame& frame) {
    return {.font = frame.font, .margin = {frameCaptionHeight, 0}};
}

Captions::Captions(TextMeasure measure) : measure_(std::move(measure)) {}

void Captions::add(const Control& control, const CaptionStyle& style, const Place& place, ControlView& view) {
    const Container* container = &control.container();
    auto group = std::find_if(groups_.begin(), groups_.end(),
                              [&](const Group& other) { return other.container == container && other.style == style; });
    if (group == groups_.end()) {
        group = groups_.insert(group, {container, style, {}});
    }
    group->captions.push_back({&control, place, &view});
}

void Captions::fit(const Layout& layout) const {
    for (const Group& group : groups_) {
        fit(group, layout);
    }
}

void Captions::fit(const Control& changed, const Layout& layout) const {
    for (const Group& group : groups_) {
        if (std::any_of(group.captions.begin(), group.captions.end(),
                        [&](const Each& each) { return each.control == &changed; })) {
            fit(group, layout);
        }
    }
}

void Captions::fit(const Group& group, const Layout& layout) const {
    auto points = static_cast<double>(group.style.font.points);
    CaptionFont font{.points = points * layout.scale, .bold = group.style.font.bold};
    while (!fits(group, font, layout) && font.stretch > leastStretch) {
        if (points > leastPoints) {
            points = std::max(points - pointStep, leastPoints);
            font.points = points * layout.scale;
        } else {
            font.stretch -= stretchStep;
        }
    }
    for (const Each& each : group.captions) {
        each.view->setFont(font);
    }
}

bool Captions::fits(const Group& group, const CaptionFont& font, const Layout& layout) const {
    const CaptionStyle& style = group.style;
    const auto scaled = [&](int length) { return static_cast<int>(std::lround(length * layout.scale)); };
    return std::all_of(group.captions.begin(), group.captions.end(), [&](const Each& each) {
        const auto [columns, rows] = layout.pixels(each.place).size();
        const auto available =
            each.view->captionSize({columns - scaled(style.margin.width), rows - scaled(style.margin.height)});
        const auto [width, height, lineSpacing] = measure_(
            each.control->Caption(), font, style.wrap != Wrap::No ? std::optional(available.width) : std::nullopt);
        const int overTwoLines = lineSpacing * 5 / 2; // lines are rounded up
        return width <= available.width && height <= available.height &&
               (style.wrap != Wrap::Twice || height < overTwoLines);
    });
}

} // namespace tumble
