#include "platform/Keys.h"

namespace tumble {

bool HeldKeys::repeats(int key, std::uint64_t time, bool marked) const {
    const auto released = released_.find(key);
    return marked || (time != 0 && released != released_.end() && released->second == time);
}

} // namespace tumble
