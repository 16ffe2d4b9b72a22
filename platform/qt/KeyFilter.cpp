#include "platform/qt/KeyFilter.h"

#include <QKeyEvent>

namespace tumble {

std::optional<Key> keyOf(const QKeyEvent& event) {
    switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return Key::Enter;
    case Qt::Key_Escape:
        return Key::Esc;
    case Qt::Key_F1:
        return Key::F1;
    case Qt::Key_F11:
        return Key::F11;
    default:
        return std::nullopt;
    }
}

namespace {

/// Whether a key does the same again when the keyboard repeats it. The others act once, however long they are held.
bool repeatable(const QKeyEvent& event) {
    switch (event.key()) {
    case Qt::Key_Space:
    case Qt::Key_F:
    case Qt::Key_Menu:
    case Qt::Key_F10:
        return false;
    default:
        return !keyOf(event);
    }
}

} // namespace

bool KeyFilter::eventFilter(QObject* object, QEvent* event) {
    const bool press = event->type() == QEvent::KeyPress;
    if (!object->isWindowType() || (!press && event->type() != QEvent::KeyRelease)) {
        return false;
    }
    const auto& keyEvent = static_cast<const QKeyEvent&>(*event);
    if (repeatable(keyEvent)) {
        return false;
    }
    if (!press) {
        held_.released(keyEvent.key(), keyEvent.timestamp());
    }
    return press && held_.repeats(keyEvent.key(), keyEvent.timestamp(), keyEvent.isAutoRepeat());
}

} // namespace tumble
