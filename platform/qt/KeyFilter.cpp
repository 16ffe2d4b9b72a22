#include "platform/qt/KeyFilter.h"

#include <QKeyEvent>

namespace tumble {

std::optional<Key> keyOf(const QKeyEvent& event) {
    switch (event.key()) {
    case Qt::Key_Left:
        return Key::Left;
    case Qt::Key_Up:
        return Key::Up;
    case Qt::Key_Right:
        return Key::Right;
    case Qt::Key_Down:
        return Key::Down;
    case Qt::Key_Home:
        return Key::Home;
    case Qt::Key_PageUp:
        return Key::PageUp;
    case Qt::Key_End:
        return Key::End;
    case Qt::Key_PageDown:
        return Key::PageDown;
    case Qt::Key_Space:
        return Key::Space;
    case Qt::Key_F:
        return Key::F;
    case Qt::Key_Menu:
        return Key::Menu;
    case Qt::Key_F10:
        return Key::F10;
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
    if (const auto key = keyOf(keyEvent); !key || !actsOnce(*key)) {
        return false;
    }
    if (!press) {
        held_.released(keyEvent.key(), keyEvent.timestamp());
    }
    return press && held_.repeats(keyEvent.key(), keyEvent.timestamp(), keyEvent.isAutoRepeat());
}

} // namespace tumble
