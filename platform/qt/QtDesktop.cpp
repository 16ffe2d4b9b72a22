#include "platform/qt/QtDesktop.h"

#include "platform/qt/FormWindow.h"
#include "platform/qt/SurfaceWidget.h"

#include <QApplication>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QMessageBox>
#include <QPixmap>
#include <QWindow>

#include <cstdio>
#include <utility>

namespace tumble {

namespace {

constexpr int longestWaitForScreen = 1000; // milliseconds

} // namespace

QtDesktop::QtDesktop(Application application) : Desktop(std::move(application)) {
    icon_ = QIcon(QPixmap::fromImage(pictures_.decoded(App().Icon)));
    QApplication::setQuitOnLastWindowClosed(false);
    desktop(this);
}

QtDesktop::~QtDesktop() {
    for (const auto& [form, window] : windows_) {
        delete window;
    }
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    desktop(nullptr);
}

void QtDesktop::run() {
    if (!ended_) {
        QApplication::exec();
    }
}

void QtDesktop::Show(Form& form, Modality modality) {
    QPointer<FormWindow>& window = windows_[&form];
    if (window == nullptr) {
        window = new FormWindow(form, icon_, pictures_);
    }
    if (modality == Modality::Modeless) {
        window->show();
        return;
    }
    window->setWindowFlag(Qt::Dialog);
    window->setWindowModality(Qt::ApplicationModal);
    window->show();
    QEventLoop untilUnloaded;
    QObject::connect(window, &QObject::destroyed, &untilUnloaded, &QEventLoop::quit);
    untilUnloaded.exec();
}

void QtDesktop::Hide(Form& form) {
    if (FormWindow* window = windowOf(form)) {
        window->hide();
    }
}

void QtDesktop::Unload(Form& form) {
    if (FormWindow* window = windowOf(form)) {
        window->retire();
    }
    windows_.erase(&form);
}

// A window paints nothing before the windowing system has exposed it; what the player does meanwhile waits.
void QtDesktop::Refresh(Form& form) {
    FormWindow* window = windowOf(form);
    if (window == nullptr) {
        return;
    }
    QDeadlineTimer deadline(longestWaitForScreen);
    while (!window->windowHandle()->isExposed() && !deadline.hasExpired()) {
        QApplication::processEvents(QEventLoop::ExcludeUserInputEvents | QEventLoop::WaitForMoreEvents,
                                    static_cast<int>(deadline.remainingTime()));
    }
    window->repaint();
}

void QtDesktop::MousePointer(Form& form, Pointer pointer) {
    if (FormWindow* window = windowOf(form)) {
        window->setCursor(pointer == Pointer::Hourglass ? Qt::WaitCursor : Qt::ArrowCursor);
    }
}

void QtDesktop::MsgBox(const std::string& text, const std::string& caption) {
    for (const auto& [form, window] : windows_) {
        window->showPaintings();
    }
    QMessageBox box(QMessageBox::NoIcon, QString::fromStdString(caption),
                    QString::fromStdString(text).remove(QLatin1Char('\r')), QMessageBox::Ok,
                    QApplication::activeWindow());
    box.setTextFormat(Qt::PlainText);
    box.setWindowIcon(icon_);
    box.exec();
}

void QtDesktop::End() {
    ended_ = true;
    QApplication::exit();
}

void QtDesktop::changed(Control& control) {
    if (FormWindow* window = windowOf(control.container().form())) {
        window->changed(control);
    }
}

void QtDesktop::painted(PictureBox& box, const PaintItem& item) {
    Form& form = box.container().form();
    if (FormWindow* window = windowOf(form)) {
        SurfaceWidget* surface = window->surface(box);
        surface->changed(item.place);
        if (form.MousePointer() == Pointer::Hourglass) {
            surface->showNow();
        }
    }
}

FormWindow* QtDesktop::windowOf(const Form& form) const {
    const auto window = windows_.find(&form);
    return window != windows_.end() ? window->second.data() : nullptr;
}

} // namespace tumble
