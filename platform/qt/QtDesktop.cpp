#include "platform/qt/QtDesktop.h"

#include "platform/qt/Accessibility.h"
#include "platform/qt/Fonts.h"
#include "platform/qt/QtCanvas.h"
#include "platform/qt/SurfaceWidget.h"

#include <QApplication>
#include <QEventLoop>
#include <QIcon>
#include <QPixmap>
#include <QTimer>
#include <QWindow>

#include <array>
#include <utility>

namespace tumble {

namespace {

constexpr std::array iconSizes{16, 24, 32, 48, 64, 128};
constexpr int longestWaitForScreen = 1000; // milliseconds

} // namespace

QtDesktop::QtDesktop(Application application, PicturePainter painter)
    : WindowDesktop(std::move(application), tumble::measure), pictures_(std::move(painter), decoded) {
    QIcon icon;
    for (const int size : iconSizes) {
        QtCanvas canvas({size, size}, windowColour);
        pictures_.paint(canvas, App().Icon, canvas.bounds(), canvas.bounds());
        icon.addPixmap(QPixmap::fromImage(canvas.image()));
    }
    QApplication::setWindowIcon(icon);
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setLayoutDirection(Qt::LeftToRight); // forms state places, which no language mirrors
    announceWidgets();
    qApp->installEventFilter(&keyFilter_);
    desktop(this);
}

QtDesktop::~QtDesktop() {
    clear();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    desktop(nullptr);
}

void QtDesktop::run() const {
    if (!ended_) {
        QApplication::exec();
    }
}

std::shared_ptr<FormView> QtDesktop::open(Form& form, Modality modality) {
    const FormWindow* front = inFront();
    if (front != nullptr) {
        place_ = front->place();
    }
    // `Show` does not wait for a modeless window, so one of its handlers may still run when its last owner is gone.
    const std::shared_ptr<FormWindow> window(new FormWindow(form, modality, place_, pictures_), [](FormWindow* closed) {
        closed->isModal() ? delete closed : closed->deleteLater();
    });
    if (modality == Modality::Modal && front != nullptr) {
        window->windowHandle()->setTransientParent(front->windowHandle());
    }
    return window;
}

void QtDesktop::waitFor(FormView& window) {
    QEventLoop untilClosed;
    window.onClosed = [&untilClosed] { untilClosed.quit(); };
    untilClosed.exec();
    window.onClosed = nullptr;
}

// A window paints nothing before the windowing system has exposed it. The player's input waits meanwhile.
void QtDesktop::Refresh(Form& form) {
    const QPointer<FormWindow> window = windowOf(form);
    if (window == nullptr || !window->isVisible()) {
        return;
    }
    QTimer deadline;
    deadline.setSingleShot(true);
    deadline.start(longestWaitForScreen);
    while (window != nullptr && !window->windowHandle()->isExposed() && deadline.isActive()) {
        QApplication::processEvents(QEventLoop::ExcludeUserInputEvents | QEventLoop::WaitForMoreEvents);
    }
    if (window != nullptr) {
        for (SurfaceView* surface : window->surfaces()) {
            surface->showNow();
        }
        window->repaint();
    }
}

void QtDesktop::End() {
    ended_ = true;
    QApplication::exit();
}

void QtDesktop::painted(PictureBox& box, const DisplayItem& /*item*/) {
    const Form& form = box.container().form();
    if (FormWindow* window = windowOf(form)) {
        auto* surface = static_cast<SurfaceWidget*>(window->surface(box));
        surface->changed();
        if (form.MousePointer() == Pointer::Hourglass) {
            surface->showNow();
        }
    }
}

} // namespace tumble
