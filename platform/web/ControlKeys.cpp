#include "platform/web/ControlKeys.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <vector>

namespace tumble {

namespace {

/// How far a key leads in a row of so many values or choices: back if negative, 0 for a key that leads nowhere.
int steps(Key key, int count) {
    const std::array byKey{-1, -1, 1, 1, -count, -1, count, 1};
    return key <= Key::PageDown ? byKey.at(static_cast<std::size_t>(key)) : 0;
}

/// The option button so many after this one in its container, or before it; the button itself where there is none.
OptionButton* neighbour(OptionButton* option, int step) {
    std::vector<OptionButton*> group;
    for (const AnyControl& control : option->container().controls()) {
        if (auto* const* other = std::get_if<OptionButton*>(&control)) {
            group.push_back(*other);
        }
    }
    const auto place = std::find(group.begin(), group.end(), option) - group.begin() + step;
    return place >= 0 && place < std::ssize(group) ? group.at(static_cast<std::size_t>(place)) : option;
}

} // namespace

std::optional<AnyControl> press(const AnyControl& focused, Key key) {
    if (auto* const* slider = std::get_if<Slider*>(&focused)) {
        const int by = steps(key, (*slider)->Max() - (*slider)->Min());
        (*slider)->Slide((*slider)->Value() + by);
        return by != 0 ? std::optional(focused) : std::nullopt;
    }
    auto* const* option = std::get_if<OptionButton*>(&focused);
    const int by = option != nullptr ? steps(key, 0) : 0;
    if (by == 0) {
        return std::nullopt;
    }
    OptionButton* const next = neighbour(*option, by);
    next->Select();
    return next;
}

} // namespace tumble
