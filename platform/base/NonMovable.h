#pragma once

namespace tumble {

/// Base of what others point at, or what must end where it began: never copied, never moved.
class NonMovable {
public:
    NonMovable(const NonMovable&) = delete;
    NonMovable& operator=(const NonMovable&) = delete;
    NonMovable(NonMovable&&) = delete;
    NonMovable& operator=(NonMovable&&) = delete;

protected:
    NonMovable() = default;
    ~NonMovable() = default;
};

} // namespace tumble
