#pragma once

#include <cstdint>
#include <map>

namespace tumble {

/// The keys that mean the same wherever the focus is.
enum class Key { Enter, Esc, F1, F11 };

/// Tells a press from what the keyboard repeats while a key is held, for all windows of a desktop: another may have
/// come up meanwhile. A repetition is a release and a press at the same instant, which not every toolkit sees.
class HeldKeys {
public:
    // Keys by the toolkit's numbers. Times in milliseconds; 0 is none, as of keys that a screen reader passes on.
    void released(int key, std::uint64_t time) { released_[key] = time; }
    /// `marked`: the toolkit takes the press for a repetition.
    bool repeats(int key, std::uint64_t time, bool marked) const;

private:
    std::map<int, std::uint64_t> released_; // last
};

} // namespace tumble
