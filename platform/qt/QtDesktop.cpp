#include "platform/qt/QtDesktop.h"

#include "platform/Replay.h"
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
    : Desktop(std::move(application)), pictures_(std::move(painter), decoded) {
    for (const int size : iconSizes) {
        QtCanvas canvas({size, size}, windowColour);
        paint(canvas, App().Icon, canvas.bounds(), canvas.bounds(), pictures_);
        icon_.addPixmap(QPixmap::fromImage(canvas.image()));
    }
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setLayoutDirection(Qt::LeftToRight); // as the forms have it, whatever the system's language
    announceWidgets();
    qApp->installEventFilter(&keyFilter_);
    desktop(this);
}

QtDesktop::~QtDesktop() {
    for (const Shown& shown : windows_) {
        delete shown.window;
    }
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    desktop(nullptr);
}

void QtDesktop::run() const {
    if (!ended_) {
        QApplication::exec();
    }
}

void QtDesktop::Show(Form& form, Modality modality) {
    const FormWindow* front = windowInFront();
    FormWindow* window = windowOf(form);
    if (window == nullptr) {
        window = new FormWindow(form, modality, front != nullptr ? front->place() : lastPlace_, icon_, pictures_);
    }
    std::erase_if(windows_, [&](const Shown& shown) { return shown.form == &form; });
    windows_.push_back({&form, window});
    if (modality == Modality::Modeless) {
        window->show();
        return;
    }
    if (front != nullptr) {
        window->windowHandle()->setTransientParent(front->windowHandle());
    }
    window->show();
    QEventLoop untilUnloaded;
    QObject::connect(window, &QObject::destroyed, &untilUnloaded, &QEventLoop::quit);
    {
        const Modal modal(*this, &form);
        untilUnloaded.exec();
    }
    giveInputBack();
}

void QtDesktop::Hide(Form& form) {
    if (FormWindow* window = windowOf(form)) {
        lastPlace_ = window->place();
        window->hide();
    }
}

void QtDesktop::Unload(Form& form) {
    if (FormWindow* window = windowOf(form)) {
        lastPlace_ = window->place();
        window->retire();
    }
    std::erase_if(windows_, [&](const Shown& shown) { return shown.form == &form; });
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
        window->showPaintings();
        window->repaint();
    }
}

void QtDesktop::MousePointer(Form& form, Pointer pointer) {
    if (FormWindow* window = windowOf(form)) {
        window->setCursor(pointer == Pointer::Hourglass ? Qt::WaitCursor : Qt::ArrowCursor);
    }
}

void QtDesktop::MsgBox(const std::string& text, const std::string& caption) {
    for (const Shown& shown : windows_) {
        shown.window->showPaintings();
    }
    FormWindow* parent = windowInFront();
    MessageBox box(QMessageBox::NoIcon, QString::fromStdString(caption),
                   QString::fromStdString(text).remove(QLatin1Char('\r')), QMessageBox::Ok, parent);
    box.setTextFormat(Qt::PlainText);
    box.setWindowIcon(icon_);
    box.setWindowFlags(dialogFlags);
    const ScreenRoom room = parent != nullptr ? parent->room() : roomOn(*box.screen(), lastPlace_.frame);
    fitToScale(box, parent != nullptr ? parent->scale() : 1, widestBox(room.inside().width()));
    {
        const Modal modal(*this);
        box.exec();
    }
    giveInputBack();
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

void QtDesktop::painted(PictureBox& box, const PaintItem& /*item*/) {
    Form& form = box.container().form();
    if (FormWindow* window = windowOf(form)) {
        SurfaceWidget* surface = window->surface(box);
        surface->changed();
        if (form.MousePointer() == Pointer::Hourglass) {
            surface->showNow();
        }
    }
}

void QtDesktop::giveInputBack() const {
    for (const auto& [form, window] : windows_) {
        window->inputIsBack();
    }
}

FormWindow* QtDesktop::windowInFront() const {
    const auto front =
        std::find_if(windows_.rbegin(), windows_.rend(), [](const Shown& shown) { return shown.window->isVisible(); });
    return front != windows_.rend() ? front->window.data() : nullptr;
}

FormWindow* QtDesktop::windowOf(const Form& form) const {
    const auto place =
        std::find_if(windows_.begin(), windows_.end(), [&](const Shown& shown) { return shown.form == &form; });
    return place != windows_.end() ? place->window.data() : nullptr;
}

} // namespace tumble
