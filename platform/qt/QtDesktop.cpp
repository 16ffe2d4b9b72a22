#include "platform/qt/QtDesktop.h"

#include "platform/qt/FormWindow.h"
#include "platform/qt/SurfaceWidget.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QGridLayout>
#include <QMessageBox>
#include <QPixmap>
#include <QScreen>
#include <QWindow>

#include <algorithm>
#include <array>
#include <utility>

namespace tumble {

namespace {

constexpr std::array iconSizes{16, 24, 32, 48, 64, 128};
constexpr std::array openingScales{4.0, 3.0, 2.5, 2.0, 1.75, 1.5, 1.25}; // the largest first, or else 1
constexpr double shareOfScreen = 0.7;
constexpr int longestWaitForScreen = 1000; // milliseconds
constexpr Qt::WindowFlags dialogFlags =
    Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;

/// Makes a message box as large as the window that it belongs to shows its form, if the lines of its text still fit the
/// widest box that the toolkit makes; and wide enough for its caption between the window manager's buttons.
void fitToScale(QMessageBox& box, double windowScale) {
    constexpr int windowButtons = 120; // logical pixels, as all here
    constexpr int margins = 60;
    constexpr int widest = 980;
    constexpr QSize buttonSize(80, 26);
    const int lines = box.fontMetrics().size(0, box.text()).width() + margins;
    const double scale = std::min(windowScale, static_cast<double>(widest) / lines);

    QFont font = box.font();
    font.setPointSizeF(font.pointSizeF() * scale);
    box.setFont(font);
    QAbstractButton* button = box.button(QMessageBox::Ok);
    button->setIcon({});
    button->setMinimumSize(buttonSize * scale);
    if (auto* grid = qobject_cast<QGridLayout*>(box.layout())) {
        const int caption = box.fontMetrics().horizontalAdvance(box.windowTitle()) + windowButtons;
        const int width = std::min(std::max(caption, qRound(lines * scale)), widest);
        grid->addItem(new QSpacerItem(width, 0), grid->rowCount(), 0, 1, grid->columnCount());
        grid->setContentsMargins(grid->contentsMargins() * scale);
        grid->setSpacing(qRound(grid->verticalSpacing() * scale));
    }
}

} // namespace

QtDesktop::QtDesktop(Application application, PicturePainter painter)
    : Desktop(std::move(application)), pictures_(std::move(painter)) {
    for (const int size : iconSizes) {
        icon_.addPixmap(QPixmap::fromImage(pictures_.image(App().Icon, {size, size})));
    }
    QApplication::setQuitOnLastWindowClosed(false);
    announceSurfaces();
    qApp->installEventFilter(&heldKeys_);
    desktop(this);
}

QtDesktop::~QtDesktop() {
    for (const auto& [form, window] : windows_) {
        delete window;
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
    QPointer<FormWindow>& window = windows_[&form];
    if (window == nullptr) {
        window = new FormWindow(form, openingScale(), icon_, pictures_);
    }
    if (modality == Modality::Modeless) {
        window->show();
        return;
    }
    window->setWindowFlags(dialogFlags);
    window->setWindowModality(Qt::ApplicationModal);
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
    FormWindow* parent = windowInFront();
    QMessageBox box(QMessageBox::NoIcon, QString::fromStdString(caption),
                    QString::fromStdString(text).remove(QLatin1Char('\r')), QMessageBox::Ok, parent);
    box.setTextFormat(Qt::PlainText);
    box.setWindowIcon(icon_);
    box.setWindowFlags(dialogFlags);
    fitToScale(box, parent != nullptr ? parent->scale() : 1);
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
    FormWindow* visible = nullptr;
    for (const auto& [form, window] : windows_) {
        if (window->isActiveWindow()) {
            return window;
        }
        visible = window->isVisible() ? window.data() : visible;
    }
    return visible;
}

double QtDesktop::openingScale() const {
    const QSizeF room = QSizeF(QGuiApplication::primaryScreen()->size()) * shareOfScreen;
    const auto fits = [&](double scale) {
        const double pixels = scale / static_cast<double>(twipsPerPixel);
        return static_cast<double>(App().Width) * pixels <= room.width() &&
               static_cast<double>(App().Height) * pixels <= room.height();
    };
    const auto* const largest = std::find_if(openingScales.begin(), openingScales.end(), fits);
    return largest != openingScales.end() ? *largest : 1;
}

FormWindow* QtDesktop::windowOf(const Form& form) const {
    const auto window = windows_.find(&form);
    return window != windows_.end() ? window->second.data() : nullptr;
}

} // namespace tumble
