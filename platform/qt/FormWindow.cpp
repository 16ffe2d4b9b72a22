#include "platform/qt/FormWindow.h"

#include "platform/forms/Desktop.h"
#include "platform/qt/ControlViews.h"
#include "platform/qt/Fonts.h"
#include "platform/qt/Geometry.h"
#include "platform/qt/KeyFilter.h"
#include "platform/qt/SurfaceWidget.h"

#include <QAccessible>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QWindow>

#include <algorithm>
#include <utility>

namespace tumble {

namespace {

constexpr Qt::WindowStates wholeScreen = Qt::WindowMaximized | Qt::WindowFullScreen;
constexpr Qt::WindowFlags dialogFlags =
    Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;
constexpr int darkerBeside = 120; // percent

FormSize largestForm() {
    const Application& App = desktop().App();
    return {App.Width, App.Height};
}

} // namespace

FormWindow::FormWindow(Form& form, Modality modality, WindowPlace& last, PictureCache& pictures)
    : QWidget(nullptr, modality == Modality::Modal ? dialogFlags : Qt::Window),
      FormView(form, measure),
      formSize_(form.Width(), form.Height()),
      last_(last),
      frame_(last.frame),
      around_(form.kind == FormKind::Alert ? last.content : QRect()) {
    scale(last.scale);
    setWindowTitle(QString::fromStdString(form.Caption()));
    if (last.screen != nullptr) {
        setScreen(last.screen);
    }
    if (modality == Modality::Modal) {
        setWindowModality(Qt::ApplicationModal);
    }
    followScreen(screen());
    setGeometry(openingPlace());
    create();
    if (modality == Modality::Modeless) {
        setWindowState(last.state);
    }
    windowHandle()->installEventFilter(this);
    connect(windowHandle(), &QWindow::screenChanged, this, &FormWindow::followScreen);
    buildControls(form, *this, pictures);
    setTabOrderByIndex();
    layOutWindow();
}

void FormWindow::Show() {
    show();
    if (form()->kind == FormKind::Alert) {
        QAccessibleEvent alert(this, QAccessible::Alert);
        QAccessible::updateAccessibility(&alert);
    }
}

void FormWindow::Hide() {
    last_ = place();
    hide();
}

void FormWindow::MousePointer(Pointer pointer) {
    setCursor(pointer == Pointer::Hourglass ? Qt::WaitCursor : Qt::ArrowCursor);
}

void FormWindow::detach() {
    Hide();
    FormView::detach();
}

WindowPlace FormWindow::place() const {
    return {screen(), frame_, windowState() & wholeScreen, FormView::scale(), geometry()};
}

WorkArea FormWindow::workArea() const {
    return {screen()->availableGeometry(), screen()->size(), screen()->devicePixelRatio(), frame_};
}

void FormWindow::followScreen(QScreen* screen) {
    if (screen != nullptr) {
        connect(screen, &QScreen::availableGeometryChanged, this, &FormWindow::keepLeastSize, Qt::UniqueConnection);
        keepLeastSize();
    }
}

void FormWindow::keepLeastSize() {
    setMinimumSize(toQSize(formSize_.at(workArea().leastScale(largestForm()))));
}

QRect FormWindow::openingPlace() const {
    const WorkArea area = workArea();
    const double wanted = isModal() ? scale() : area.openingScale(largestForm());
    const PixelSize content = formSize_.at(std::min(wanted, area.largestScale(formSize_)));
    return area.place(toQSize(content), around_.isNull() ? area.area() : around_);
}

void FormWindow::closeEvent(QCloseEvent* event) {
    event->ignore();
    if (form() != nullptr && form()->takesInput()) {
        form()->Form_Close();
    }
}

bool FormWindow::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Expose) {
        learnFrame();
    }
    // Some themes let Enter press the focused button; here it always presses the default one.
    if (watched->isWidgetType() && event->type() == QEvent::KeyPress &&
        keyOf(static_cast<QKeyEvent&>(*event)) == Key::Enter) {
        keyPressEvent(static_cast<QKeyEvent*>(event));
        return true;
    }
    return false;
}

// The first window opens for a usual frame; its own is known, and its geometry corrected, as soon as it shows.
void FormWindow::learnFrame() {
    if (!frame_ && (windowState() & wholeScreen) == Qt::WindowNoState) {
        const bool asOpened = size() == openingPlace().size();
        frame_ = windowHandle()->frameMargins();
        keepLeastSize();
        if (asOpened) {
            setGeometry(openingPlace());
        }
    }
}

void FormWindow::keyPressEvent(QKeyEvent* event) {
    const std::optional<Key> key = keyOf(*event);
    if (key == Key::F11 && !isModal()) {
        setWindowState(windowState() ^ Qt::WindowFullScreen);
    } else if (key && form() != nullptr) {
        form()->press(*key);
    }
}

void FormWindow::buildControls(const Container& container, QWidget& parent, PictureCache& pictures) {
    for (const AnyControl& control : container.controls()) {
        auto view = createView(control, *this, parent, pictures);
        QWidget& widget = view->widget();
        widget.setObjectName(QString::fromStdString(asControl(control).Name()));
        widget.setStyle(&style_);
        widget.installEventFilter(this);
        if (widget.focusPolicy() != Qt::NoFocus) {
            byTabIndex_.emplace(asControl(control).TabIndex(), &widget);
        }
        add(control, std::move(view));
        if (auto* surface = dynamic_cast<SurfaceWidget*>(&widget)) {
            add(*surface);
        } else if (auto* const* frame = std::get_if<Frame*>(&control)) {
            buildControls(**frame, widget, pictures);
        }
    }
}

void FormWindow::setTabOrderByIndex() {
    QWidget* before = nullptr;
    for (const auto& [index, widget] : byTabIndex_) {
        if (before == nullptr) {
            widget->setFocus();
        } else {
            setTabOrder(before, widget);
        }
        before = widget;
    }
}

// A darker ground sets the content off; a line that rounding leaves beside it keeps the content's colour.
void FormWindow::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setClipRegion(QRegion(rect()) - toQRect(formLayout().content).adjusted(-1, -1, 1, 1));
    painter.fillRect(rect(), palette().color(QPalette::Window).darker(darkerBeside));
}

void FormWindow::layOutWindow() {
    const Layout layout = layoutOf(formSize_, toPixelSize(size()), pixelRatio(*this));
    style_.scale(layout.scale);
    layOut(layout, layout.content.corner());
}

} // namespace tumble
