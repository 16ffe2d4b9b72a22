#pragma once

#include "game/MainMod.h"
#include "platform/qt/FormWindow.h"
#include "platform/qt/QtDesktop.h"

#include <QApplication>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <QWidget>

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <vector>

namespace tumble {

/// The real desktop, with a list of everything that is painted.
class LoggingDesktop : public QtDesktop {
public:
    LoggingDesktop() : QtDesktop(application()) {}
    void painted(PictureBox& box, const DisplayItem& item) override {
        log.push_back(item);
        QtDesktop::painted(box, item);
    }
    std::vector<DisplayItem> log;
};
/// The offscreen platform's description of the tests' screens.
QByteArray screensFile();

inline double scaleOf(const QWidget* window) {
    return dynamic_cast<const FormWindow*>(window)->scale();
}

/// Opens a modal window by `open`, inspects it by `look` and closes it by a key.
inline void inModal(const std::function<void()>& open, Qt::Key key, const std::function<void(QWidget*)>& look) {
    QPointer<QWidget> before = QApplication::activeWindow();
    QTimer::singleShot(0, qApp, [&] {
        EXPECT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() != before; }));
        QWidget* opened = QApplication::activeWindow();
        EXPECT_TRUE(opened->isModal());
        look(opened);
        QTest::keyClick(opened, key);
        before = nullptr;
    });
    open();
    EXPECT_EQ(before, nullptr) << "it did not wait";
}

/// The game on the real desktop, driven through its windows.
class Windows : public testing::Test {
protected:
    LoggingDesktop desktop;
    MainMod mainMod;

    /// The visible window with the title, or null.
    static QWidget* window(const QString& title) {
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            if (widget->isVisible() && widget->windowTitle() == title) {
                return widget;
            }
        }
        return nullptr;
    }

    static QWidget* control(const QString& title, const QString& name) {
        QWidget* owner = window(title);
        return owner != nullptr ? owner->findChild<QWidget*>(name) : nullptr;
    }

    QWidget* openDialog() {
        mainMod.Main();
        QWidget* dialog = window("Tumble Options");
        EXPECT_TRUE(QTest::qWaitForWindowActive(dialog));
        return dialog;
    }

    /// Starts the game from the dialog.
    static QWidget* play(QWidget* dialog) {
        QTest::keyClick(dialog, Qt::Key_Return);
        QWidget* table = window("Tumble");
        EXPECT_TRUE(QTest::qWaitForWindowActive(table));
        return table;
    }

    QWidget* openTable() { return play(openDialog()); }

    /// A scale below 1 stands for a screen that is too small.
    static void resizeTo(double scale, QWidget* window) {
        const QVariant known = window->property("unscaled");
        const QSize unscaled = known.isValid() ? known.toSize() : window->minimumSize();
        window->setProperty("unscaled", unscaled);
        window->setMinimumSize((QSizeF(unscaled) * std::min(scale, 1.0)).toSize());
        window->resize((QSizeF(unscaled) * scale).toSize());
        QCoreApplication::processEvents();
    }

    /// A mouse event at a place in twips of the table, which may lie beyond its edges.
    static void mouse(QTest::MouseAction action, float X, float Y, Qt::MouseButton button = Qt::NoButton) {
        QWidget* table = window("Tumble");
        const QPoint origin = control("Tumble", "picTable")->mapTo(table, QPoint(0, 0));
        const QPointF offset = QPointF(X, Y) * scaleOf(table) / 15;
        QTest::mouseEvent(action, table->windowHandle(), button, {}, (origin + offset).toPoint());
        QCoreApplication::processEvents();
    }
};

} // namespace tumble
