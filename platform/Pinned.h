#pragma once

namespace tumble {

/// Base of what others point at, or what must end where it began: never copied, never moved.
class Pinned {
public:
    Pinned(const Pinned&) = delete;
    Pinned& operator=(const Pinned&) = delete;
    Pinned(Pinned&&) = delete;
    Pinned& operator=(Pinned&&) = delete;

protected:
    Pinned() = default;
    ~Pinned() = default;
};

} // namespace tumble
