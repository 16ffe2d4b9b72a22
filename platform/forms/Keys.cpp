#include "platform/forms/Keys.h"

namespace tumble {

int steps(Key key, int count) {
    switch (key) {
    case Key::Left:
    case Key::Up:
    case Key::PageUp:
        return -1;
    case Key::Right:
    case Key::Down:
    case Key::PageDown:
        return 1;
    case Key::Home:
        return -count;
    case Key::End:
        return count;
    default:
        return 0;
    }
}

bool HeldKeys::repeats(int key, std::uint64_t time, bool marked) const {
    const auto released = released_.find(key);
    return marked || (time != 0 && released != released_.end() && released->second == time);
}

} // namespace tumble
