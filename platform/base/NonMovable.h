#pragma once

namespace tumble {

/// Base of objects that others point at, or whose destructor ends what the constructor began.
class NonMovable {
public:
    NonMovable(NonMovable&&) = delete; // and so there is no other copying or moving either

protected:
    NonMovable() = default;
    ~NonMovable() = default;
};

} // namespace tumble
