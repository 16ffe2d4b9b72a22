#include "platform/qt/KeyFilter.h"

#include <QKeyEvent>

namespace tumble {

std::optional<Key> keyOf(const QKeyEvent& event) {
    static const std::map<int, Key> keys{{Qt::Key_Left, Key::Left},    {Qt::Key_Up, Key::Up},
                                         {Qt::Key_Right, Key::Right},  {Qt::Key_Down, Key::Down},
                                         {Qt::Key_Home, Key::Home},    {Qt::Key_PageUp, Key::PageUp},
                                         {Qt::Key_End, Key::End},      {Qt::Key_PageDown, Key::PageDown},
                                         {Qt::Key_Space, Key::Space},  {Qt::Key_F, Key::F},
                                         {Qt::Key_Menu, Key::Menu},    {Qt::Key_F10, Key::F10},
                                         {Qt::Key_Return, Key::Enter}, {Qt::Key_Enter, Key::Enter},
                                         {Qt::Key_Escape, Key::Esc},   {Qt::Key_F1, Key::F1},
                                         {Qt::Key_F11, Key::F11}};
    const auto found = keys.find(event.key());
    return found != keys.end() ? std::optional(found->second) : std::nullopt;
}

bool HeldKeys::repeats(int key, std::uint64_t time, bool marked) const {
    const auto released = released_.find(key);
    return marked || (time != 0 && released != released_.end() && released->second == time);
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
