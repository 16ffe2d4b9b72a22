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

bool KeyFilter::eventFilter(QObject* object, QEvent* event) {
    const bool press = event->type() == QEvent::KeyPress;
    if (!object->isWindowType() || (!press && event->type() != QEvent::KeyRelease)) {
        return false;
    }
    const auto& keyEvent = static_cast<const QKeyEvent&>(*event);
    const std::optional<Key> key = keyOf(keyEvent);
    if (key && !press) {
        held_.released(*key, keyEvent.timestamp());
    }
    return key && press && held_.repeats(*key, keyEvent.timestamp(), keyEvent.isAutoRepeat());
}

} // namespace tumble
