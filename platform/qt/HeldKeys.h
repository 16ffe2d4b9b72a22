#pragma once

#include <QObject>

#include <map>

namespace tumble {

/// Keeps a held Enter, Esc or F11 from acting more than once: what the keyboard repeats goes nowhere, also when another
/// window has come up meanwhile. An event filter of the application.
class HeldKeys : public QObject {
protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    std::map<int, quint64> released_; // when each key was released last, in milliseconds
};

} // namespace tumble
