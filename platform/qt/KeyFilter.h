#pragma once

#include "platform/forms/Keys.h"

#include <QObject>

#include <cstdint>
#include <map>
#include <optional>

class QKeyEvent;

namespace tumble {

/// None for a key that means nothing.
std::optional<Key> keyOf(const QKeyEvent& event);

/// Distinguishes presses of keys from repetitions while they are held, for all windows together: one may open
/// meanwhile. Some systems send a repetition as a release and a press at the same instant, which the toolkit may not
/// mark.
class HeldKeys {
public:
    // Keys by the toolkit's numbers. Times in milliseconds; 0 is unknown, as for keys that a screen reader forwards.
    void released(int key, std::uint64_t time) { released_[key] = time; }
    /// `marked`: the toolkit reports the press as a repetition.
    bool repeats(int key, std::uint64_t time, bool marked) const;

private:
    std::map<int, std::uint64_t> released_; // when each was last released
};

/// An event filter for the application: removes repetitions of keys that act once.
class KeyFilter : public QObject {
protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    HeldKeys held_;
};

} // namespace tumble
