#include "platform/qt/QtDesktop.h"

#include "platform/qt/Accessibility.h"
#include "platform/qt/QtCanvas.h"
#include "platform/qt/SurfaceWidget.h"

#include <QAbstractButton>
#include <QApplication>
#include <QEventLoop>
#include <QGridLayout>
#include <QMessageBox>
#include <QPixmap>
#include <QScreen>
#include <QTimer>
#include <QWindow>

#include <algorithm>
#include <array>
#include <utility>

namespace tumble {

namespace {

constexpr std::array iconSizes{16, 24, 32, 48, 64, 128};
constexpr int longestWaitForScreen = 1000; // milliseconds

/// The widest content of a message box: on a large screen the toolkit makes none as wide as the screen.
int widestBox(int room) {
    constexpr int smallScreen = 1024;
    constexpr int leftFree = 480;
    constexpr int widest = 980;
    return room <= smallScreen ? room : std::clamp(room - leftFree, smallScreen / 2, widest);
}

/// Makes a message box as large as the window that it belongs to shows its form, if the lines of its text still fit the
/// widest box; and wide enough for its caption between the window manager's buttons.
void fitToScale(QMessageBox& box, double windowScale, int widest) {
    constexpr int windowButtons = 120; // logical pixels, as all here
    constexpr int margins = 60;
    constexpr int marginsInside = 40;
    constexpr QSize buttonSize(80, 26);
    const auto textWidth = [&box] { return box.fontMetrics().size(0, box.text()).width(); };
    const double scale = std::min(windowScale, static_cast<double>(widest) / (textWidth() + margins));

    QFont font = box.font();
    font.setPointSizeF(font.pointSizeF() * scale);
    box.setFont(font);
    QAbstractButton* button = box.button(QMessageBox::Ok);
    button->setIcon({});
    button->setMinimumSize(buttonSize * scale);
    if (auto* grid = qobject_cast<QGridLayout*>(box.layout())) {
        const QMargins edges = grid->contentsMargins() * scale;
        const int caption = box.fontMetrics().horizontalAdvance(box.windowTitle()) + windowButtons;
        const int text = textWidth() + qRound(marginsInside * scale);
        const int width = std::min(std::max(caption, text), widest - edges.left() - edges.right());
        grid->addItem(new QSpacerItem(width, 0), grid->rowCount(), 0, 1, grid->columnCount());
        grid->setContentsMargins(edges);
        grid->setSpacing(qRound(grid->verticalSpacing() * scale));
    }
}

/// Opens in the middle of the window that it belongs to; left to itself, the toolkit guesses how high its frame is.
class MessageBox : public QMessageBox {
public:
    using QMessageBox::QMessageBox;

protected:
    void showEvent(QShowEvent* event) override {
        QMessageBox::showEvent(event);
        if (const auto* parent = dynamic_cast<const FormWindow*>(parentWidget())) {
            setGeometry(parent->placeOver(size()));
        }
    }
};

/// Returns when a window that it filters the events of shows.
class UntilExposed : public QEventLoop {
protected:
    bool eventFilter(QObject* /*window*/, QEvent* event) override {
        if (event->type() == QEvent::Expose) {
            quit();
        }
        return false;
    }
};

} // namespace

QtDesktop::QtDesktop(Application application, PicturePainter painter)
    : WindowDesktop(std::move(application)), pictures_(std::move(painter), decoded) {
    for (const int size : iconSizes) {
        QtCanvas canvas({size, size}, windowColour);
        pictures_.paint(canvas, App().Icon, canvas.bounds(), canvas.bounds());
        icon_.addPixmap(QPixmap::fromImage(canvas.image()));
    }
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setLayoutDirection(Qt::LeftToRight); // as the forms have it, whatever the system's language
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
    // A handler of the window may still run when nobody keeps it any more.
    const std::shared_ptr<FormWindow> window(new FormWindow(form, modality, place_, icon_, pictures_),
                                             [](FormWindow* gone) { gone->deleteLater(); });
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

// A window paints nothing before the windowing system has exposed it; what the player does meanwhile waits.
void QtDesktop::Refresh(Form& form) {
    const QPointer<FormWindow> window = windowOf(form);
    if (window == nullptr || !window->isVisible()) {
        return;
    }
    if (!window->windowHandle()->isExposed()) {
        UntilExposed untilExposed;
        window->windowHandle()->installEventFilter(&untilExposed);
        QTimer::singleShot(longestWaitForScreen, &untilExposed, &QEventLoop::quit);
        untilExposed.exec(QEventLoop::ExcludeUserInputEvents);
    }
    if (window != nullptr) {
        for (SurfaceView* surface : window->surfaces()) {
            surface->showNow();
        }
        window->repaint();
    }
}

void QtDesktop::showBox(const std::string& text, const std::string& caption) {
    FormWindow* parent = inFront();
    MessageBox box(QMessageBox::NoIcon, QString::fromStdString(caption), QString::fromStdString(text), QMessageBox::Ok,
                   parent);
    box.setTextFormat(Qt::PlainText);
    box.setWindowIcon(icon_);
    box.setWindowFlags(dialogFlags);
    const WorkArea room = parent != nullptr ? parent->room() : workArea(*box.screen(), place_.frame);
    fitToScale(box, parent != nullptr ? parent->scale() : 1, widestBox(room.area().width()));
    box.exec();
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
