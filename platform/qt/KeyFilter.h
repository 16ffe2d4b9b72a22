#pragma once

#include "platform/forms/Keys.h"

#include <QObject>

#include <optional>

class QKeyEvent;

namespace tumble {

std::optional<Key> keyOf(const QKeyEvent& event);

/// An event filter of the application: of a key that acts once, what the keyboard repeats goes nowhere.
class KeyFilter : public QObject {
protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    HeldKeys held_;
};

} // namespace tumble
