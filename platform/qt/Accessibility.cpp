#include "platform/qt/Accessibility.h"

#include "platform/base/NonMovable.h"
#include "platform/qt/SurfaceWidget.h"
#include "platform/window/FormView.h"

#include <QAccessibleWidget>
#include <QLabel>
#include <QRadioButton>

namespace tumble {

namespace {

/// Speaks a surface's description as the name of a focused list item. Screen readers ignore a changed description but
/// speak an item that receives the focus, and of a list item, unlike a label, only its text.
class SpokenItem : public QAccessibleInterface {
public:
    explicit SpokenItem(QAccessibleInterface& surface) : surface_(surface) {}

    bool isValid() const override { return surface_.isValid(); }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return surface_.window(); }
    QAccessibleInterface* parent() const override { return &surface_; }
    QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
    QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface* /*child*/) const override { return -1; }
    QAccessible::Role role() const override { return QAccessible::ListItem; }
    QAccessible::State state() const override { return surface_.state(); }
    QRect rect() const override { return surface_.rect(); }
    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Name ? surface_.text(QAccessible::Description) : QString();
    }
    void setText(QAccessible::Text /*kind*/, const QString& /*text*/) override {}

private:
    QAccessibleInterface& surface_;
};

class AccessibleSurface : public QAccessibleWidget, NonMovable {
public:
    explicit AccessibleSurface(SurfaceWidget& surface) : QAccessibleWidget(&surface, QAccessible::Graphic) {}
    ~AccessibleSurface() override { forget(); }

    /// Creates a new item: readers ignore one that had the focus before.
    void speak() {
        forget();
        spoken_ = new SpokenItem(*this);
        QAccessible::registerAccessibleInterface(spoken_);
        QAccessibleEvent focus(spoken_, QAccessible::Focus);
        QAccessible::updateAccessibility(&focus);
    }

    int childCount() const override { return spoken_ != nullptr ? 1 : 0; }
    QAccessibleInterface* child(int index) const override { return index == 0 ? spoken_ : nullptr; }
    int indexOfChild(const QAccessibleInterface* child) const override {
        return child != nullptr && child == spoken_ ? 0 : -1;
    }

private:
    void forget() {
        if (spoken_ != nullptr) {
            QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(spoken_));
        }
    }

    SpokenItem* spoken_ = nullptr; // owned by the toolkit
};

void describe(QWidget& widget, const QString& text) {
    if (text == widget.accessibleDescription()) {
        return;
    }
    widget.setAccessibleDescription(text);
    if (QAccessible::isActive() && widget.hasFocus()) {
        if (auto* surface = dynamic_cast<AccessibleSurface*>(QAccessible::queryAccessibleInterface(&widget))) {
            surface->speak();
        }
    }
}

} // namespace

void announceWidgets() {
    QAccessible::installFactory([](const QString& /*className*/, QObject* object) -> QAccessibleInterface* {
        if (auto* surface = dynamic_cast<SurfaceWidget*>(object)) {
            return new AccessibleSurface(*surface);
        }
        if (const auto* view = dynamic_cast<FormView*>(object)) {
            auto* window = static_cast<QWidget*>(object);
            const bool isAlert = view->form() != nullptr && view->form()->kind == FormKind::Alert;
            return new QAccessibleWidget(window, isAlert                              ? QAccessible::AlertMessage
                                                 : window->windowType() == Qt::Dialog ? QAccessible::Dialog
                                                                                      : QAccessible::Window);
        }
        return nullptr;
    });
}

void relate(const Label& label, QLabel& widget) {
    const auto widgetOf = [&](const Control& control) {
        return widget.window()->findChild<QWidget*>(QString::fromStdString(control.Name()));
    };
    if (label.names != nullptr) {
        widget.setBuddy(widgetOf(*label.names));
    }
    if (label.describes == nullptr) {
        return;
    }
    QWidget* described = widgetOf(*label.describes);
    const auto choices = described->findChildren<QRadioButton*>();
    if (choices.isEmpty()) {
        describe(*described, widget.text());
    }
    for (QRadioButton* choice : choices) {
        describe(*choice, choice->isChecked() ? widget.text() : QString());
    }
}

} // namespace tumble
