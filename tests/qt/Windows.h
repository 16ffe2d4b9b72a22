#pragma once

#include "game/MainMod.h"
#include "platform/qt/FormWindow.h"
#include "platform/qt/QtDesktop.h"

#include <QApplication>
#include <QMessageBox>
#include <QTest>
#include <QTimer>
#include <QWidget>

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace tumble {

/// The game on the real desktop, driven through its windows.
class Windows : public testing::Test {
protected:
    QtDesktop desktop{application()};
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

    QWidget* openTable() {
        QTest::keyClick(openDialog(), Qt::Key_Return);
        QWidget* table = window("Tumble");
        EXPECT_TRUE(QTest::qWaitForWindowActive(table));
        return table;
    }

    static double scaleOf(const QWidget* window) { return dynamic_cast<const FormWindow*>(window)->scale(); }

    static void resizeTo(double scale, QWidget* window) {
        window->resize((QSizeF(window->minimumSize()) * scale).toSize());
        QCoreApplication::processEvents();
    }

    /// Does something with the table's mouse at a place in twips, which may lie beyond its edges.
    static void mouse(QTest::MouseAction action, float X, float Y, Qt::MouseButton button = Qt::NoButton) {
        QWidget* table = window("Tumble");
        const QPoint origin = control("Tumble", "picTable")->mapTo(table, QPoint(0, 0));
        const QPointF offset = QPointF(X, Y) * scaleOf(table) / 15;
        QTest::mouseEvent(action, table->windowHandle(), button, {}, (origin + offset).toPoint());
        QCoreApplication::processEvents();
    }

    static void drag(Point from, Point to) {
        mouse(QTest::MousePress, from.x, from.y, Qt::LeftButton);
        mouse(QTest::MouseMove, (from.x + to.x) / 2, (from.y + to.y) / 2);
        mouse(QTest::MouseMove, to.x, to.y);
        mouse(QTest::MouseRelease, to.x, to.y, Qt::LeftButton);
    }

    Windows() {
        waiting.setInterval(1);
        waiting.callOnTimeout(&waiting, [this] { closeMessage(); });
    }

    /// Keeps the text of the message box that opens next, does something while it is open and closes it.
    void closeNextMessage(std::function<void()> whileOpen = {}) {
        meanwhile = std::move(whileOpen);
        waiting.start();
    }

    /// True when the application has been ended: its run is over before this can stop it.
    bool ended() {
        bool stopped = false;
        const auto stop = [&] {
            stopped = true;
            QCoreApplication::exit();
        };
        QTimer::singleShot(0, &waiting, stop);
        desktop.run();
        const bool result = !stopped;
        // Once round the toolkit's own loop, which otherwise stays ended for the tests to come.
        QTimer::singleShot(0, &waiting, stop);
        QCoreApplication::exec();
        return result;
    }

    std::vector<std::string> messages;

private:
    void closeMessage() {
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            waiting.stop();
            messages.push_back(box->text().toStdString());
            if (meanwhile) {
                meanwhile();
            }
            box->accept();
        }
    }

    QTimer waiting; // for a message box
    std::function<void()> meanwhile;
};

} // namespace tumble
