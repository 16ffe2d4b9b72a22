#include "platform/qt/HeldKeys.h"

#include <QKeyEvent>

namespace tumble {

// A repetition is a release and a press at the same instant. The toolkit does not always see that and takes it for a
// press. While a screen reader listens, it passes keys on without their time.
bool HeldKeys::eventFilter(QObject* object, QEvent* event) {
    const bool press = event->type() == QEvent::KeyPress;
    if (!object->isWindowType() || (!press && event->type() != QEvent::KeyRelease)) {
        return false;
    }
    const auto& keyEvent = static_cast<const QKeyEvent&>(*event);
    const int key = keyEvent.key();
    if (key != Qt::Key_Return && key != Qt::Key_Enter && key != Qt::Key_Escape && key != Qt::Key_F11) {
        return false;
    }
    if (!press) {
        released_[key] = keyEvent.timestamp();
        return false;
    }
    const auto released = released_.find(key);
    const bool timed = keyEvent.timestamp() != 0;
    return keyEvent.isAutoRepeat() ||
           (timed && released != released_.end() && released->second == keyEvent.timestamp());
}

} // namespace tumble
