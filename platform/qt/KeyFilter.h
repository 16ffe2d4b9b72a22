#pragma once

#include "platform/forms/Keys.h"

#include <QObject>

#include <cstdint>
#include <map>
#include <optional>

class QKeyEvent;

namespace tumble {

std::optional<Key> keyOf(const QKeyEvent& event);

/// Tells a press from what the keyboard repeats while a key is held, for all windows: another may have opened
/// meanwhile. A repetition is a release and a press at the same instant, which not every toolkit sees.
class HeldKeys {
public:
    // Keys by the toolkit's numbers. Times in milliseconds; 0 is none, as of keys that a screen reader passes on.
    void released(int key, std::uint64_t time) { released_[key] = time; }
    /// `marked`: the toolkit takes the press for a repetition.
    bool repeats(int key, std::uint64_t time, bool marked) const;

private:
    std::map<int, std::uint64_t> released_; // last
};

/// An event filter of the application that removes repetitions of keys that act once.
class KeyFilter : public QObject {
protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    HeldKeys held_;
};

} // namespace tumble
