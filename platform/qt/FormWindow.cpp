#include "platform/qt/FormWindow.h"

#include "platform/forms/Desktop.h"
#include "platform/qt/Accessibility.h"
#include "platform/qt/Buttons.h"
#include "platform/qt/KeyFilter.h"
#include "platform/qt/SurfaceWidget.h"

#include <QApplication>
#include <QCloseEvent>
#include <QFontMetrics>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QSlider>
#include <QWindow>

#include <algorithm>
#include <utility>
#include <variant>

namespace tumble {

namespace {

constexpr Qt::WindowStates wholeScreen = Qt::WindowMaximized | Qt::WindowFullScreen;

FormSize largestForm() {
    const Application& App = desktop().App();
    return {App.Width, App.Height};
}

QSize toQSize(PixelSize size) {
    return {size.width, size.height};
}

PixelSize toPixelSize(QSize size) {
    return {size.width(), size.height()};
}

PixelRect toPixelRect(const QRect& rect) {
    return {.left = rect.left(), .top = rect.top(), .right = rect.right(), .bottom = rect.bottom()};
}

QFont toQFont(const CaptionFont& caption) {
    QFont font = QApplication::font();
    font.setBold(caption.bold);
    font.setPointSizeF(caption.points * 96 / QGuiApplication::primaryScreen()->logicalDotsPerInchY());
    if (caption.stretch != 100) {
        font.setStretch(caption.stretch);
    }
    return font;
}

TextSize measure(const std::string& text, const CaptionFont& font, std::optional<int> width) {
    const QFontMetrics metrics(toQFont(font));
    const int flags = Qt::TextShowMnemonic | (width ? Qt::TextWordWrap : 0);
    const QRect room(0, 0, width.value_or(0), 0);
    const QSize size = metrics.boundingRect(room, flags, QString::fromStdString(text)).size();
    return {size.width(), size.height(), metrics.lineSpacing()};
}

constexpr int darkerBeside = 120;   // percent
constexpr QSize buttonMargin(8, 4); // logical pixels

} // namespace

WorkArea workArea(const QScreen& screen, const std::optional<WindowFrame>& frame) {
    return {toPixelRect(screen.availableGeometry()), toPixelSize(screen.size()), screen.devicePixelRatio(), frame};
}

FormWindow::FormWindow(Form& form, Modality modality, WindowPlace& last, const QIcon& icon, PictureCache& pictures)
    : QWidget(nullptr, modality == Modality::Modal ? dialogFlags : Qt::Window),
      FormView(form, measure),
      icon_(icon),
      pictures_(pictures),
      formSize_(form.Width(), form.Height()),
      last_(last),
      frame_(last.frame) {
    scale(last.scale);
    setWindowTitle(QString::fromStdString(form.Caption()));
    setWindowIcon(icon);
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
    buildControls(form, this);
    setTabOrderByIndex();
    layOutWindow();
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
    return {screen(), frame_, windowState() & wholeScreen, FormView::scale()};
}

QRect FormWindow::placeOver(QSize content) const {
    return toQRect(room().place(toPixelSize(content), toPixelRect(geometry())));
}

void FormWindow::followScreen(QScreen* screen) {
    if (screen != nullptr) {
        connect(screen, &QScreen::availableGeometryChanged, this, &FormWindow::keepLeastSize, Qt::UniqueConnection);
        keepLeastSize();
    }
}

void FormWindow::keepLeastSize() {
    setMinimumSize(toQSize(formSize_.at(room().leastScale(largestForm()))));
}

QRect FormWindow::openingPlace() const {
    const double wanted = isModal() ? scale() : room().openingScale(largestForm());
    const PixelSize content = formSize_.at(std::min(wanted, room().largestScale(formSize_)));
    return toQRect(room().place(content, room().area()));
}

void FormWindow::closeEvent(QCloseEvent* event) {
    event->ignore();
    if (form() != nullptr && desktop().takesInput(*form())) {
        form()->Form_Close();
    }
}

bool FormWindow::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Expose) {
        learnFrame();
    }
    // Some themes give Enter to the button that has the focus; here it is the default button's.
    if (watched->isWidgetType() && event->type() == QEvent::KeyPress &&
        keyOf(static_cast<QKeyEvent&>(*event)) == Key::Enter) {
        keyPressEvent(static_cast<QKeyEvent*>(event));
        return true;
    }
    return false;
}

// The frame comes with the window: the first one opens for a usual frame, and is set right as soon as it shows.
void FormWindow::learnFrame() {
    if (!frame_ && (windowState() & wholeScreen) == Qt::WindowNoState) {
        const bool asOpened = size() == openingPlace().size();
        const QMargins margins = windowHandle()->frameMargins();
        frame_ = {margins.left(), margins.top(), margins.right(), margins.bottom()};
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

void FormWindow::buildControls(const Container& container, QWidget* parent) {
    const auto add = [&](auto* control) {
        QWidget* widget = build(*control, parent);
        widget->setObjectName(QString::fromStdString(control->Name()));
        widget->setStyle(&style_);
        widget->installEventFilter(this);
        byTabIndex_.emplace(control->TabIndex(), widget);
    };
    for (const AnyControl& control : container.controls()) {
        std::visit(add, control);
    }
}

QWidget* FormWindow::build(PictureBox& box, QWidget* parent) {
    auto* widget = new SurfaceWidget(box, pictures_, parent);
    FormView::add(*widget);
    add(&box, widget, [this, &box, widget] {
        widget->scale(scale());
        widget->setAccessibleName(QString::fromStdString(box.Caption()));
    });
    return widget;
}

QWidget* FormWindow::build(Label& label, QWidget* parent) {
    auto* widget = new QLabel(parent);
    widget->setTextFormat(Qt::PlainText);
    widget->setWordWrap(true);
    widget->setAlignment(Qt::AlignTop | (label.align == TextAlign::Centre ? Qt::AlignHCenter : Qt::AlignLeft));
    const auto update = [&label, widget] {
        widget->setText(QString::fromStdString(label.Caption()));
        relate(label, *widget);
    };
    add(&label, widget, update, [widget] { return toPixelSize(widget->size()); });
    return widget;
}

QWidget* FormWindow::build(CommandButton& button, QWidget* parent) {
    QPushButton* widget = nullptr;
    if (button.face == ButtonFace::IconAboveCaption) {
        widget = new IconAboveButton(parent);
        widget->setIcon(icon_);
    } else {
        widget = new FormButton(parent);
    }
    widget->setDefault(button.pressedBy(Key::Enter));
    const auto update = [this, &button, widget] {
        widget->setIconSize(QSize(buttonIconSize, buttonIconSize) * scale());
        widget->setText(QString::fromStdString(button.Caption()));
    };
    add(&button, widget, update, [widget] { return toPixelSize(widget->size() - buttonMargin); });
    connect(widget, &QPushButton::clicked, this, [this, &button] { input(&button); });
    return widget;
}

QWidget* FormWindow::build(OptionButton& option, QWidget* parent) {
    auto* widget = new WrappingRadioButton(parent);
    const auto update = [&option, widget] {
        widget->setText(QString::fromStdString(option.Caption()));
        widget->setChecked(option.Value());
        // Tab comes to the selected choice of a frame, the arrows go on from there.
        widget->setFocusPolicy(option.Value() ? Qt::StrongFocus : Qt::ClickFocus);
    };
    add(&option, widget, update, [widget] { return toPixelSize(widget->captionArea().size()); });
    connect(widget, &QRadioButton::toggled, this, [this, &option](bool selected) {
        if (selected) {
            input(&option);
        }
    });
    return widget;
}

QWidget* FormWindow::build(Frame& frame, QWidget* parent) {
    auto* widget = new CaptionedFrame(parent);
    const auto update = [this, &frame, widget] {
        widget->captionHeight(qRound(frameCaptionHeight * scale()));
        widget->setTitle(QString::fromStdString(frame.Caption()));
    };
    add(&frame, widget, update, [widget] { return toPixelSize(widget->captionArea().size()); });
    buildControls(frame, widget);
    return widget;
}

QWidget* FormWindow::build(Slider& slider, QWidget* parent) {
    auto* widget = new QSlider(Qt::Vertical, parent);
    widget->setInvertedAppearance(true); // the minimum at the top, and the keys and the wheel to match
    widget->setInvertedControls(true);
    widget->setTickPosition(QSlider::TicksBothSides);
    widget->setTickInterval(1);
    widget->setPageStep(1);
    add(&slider, widget, [&slider, widget] {
        widget->setAccessibleName(QString::fromStdString(slider.Caption()));
        widget->setRange(slider.Min(), slider.Max());
        widget->setValue(slider.Value());
    });
    connect(widget, &QSlider::valueChanged, this, [this, &slider](int value) { input(&slider, value); });
    return widget;
}

void FormWindow::add(AnyControl control, QWidget* widget, std::function<void()> update,
                     Captions::AvailableSize captionArea) {
    const auto place = [this, widget](const PixelRect& room) {
        const auto [left, top] = content().corner();
        widget->setGeometry(toQRect(room).translated(widget->parent() == this ? QPoint(left, top) : QPoint()));
    };
    const auto setFont = [widget](const CaptionFont& font) { widget->setFont(toQFont(font)); };
    FormView::add(control, {place, std::move(update), std::move(captionArea), setFont});
}

void FormWindow::setTabOrderByIndex() {
    QWidget* before = nullptr;
    for (const auto& [index, widget] : byTabIndex_) {
        if (widget->focusPolicy() == Qt::NoFocus) {
            continue;
        }
        if (before == nullptr) {
            widget->setFocus();
        } else {
            setTabOrder(before, widget);
        }
        before = widget;
    }
}

// Beside the content the ground is darker, so that it reads as one thing; a line left over by rounding is no ground.
void FormWindow::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setClipRegion(QRegion(rect()) - toQRect(content()).adjusted(-1, -1, 1, 1));
    painter.fillRect(rect(), palette().color(QPalette::Window).darker(darkerBeside));
}

void FormWindow::resizeEvent(QResizeEvent* /*event*/) {
    if (form() != nullptr) {
        layOutWindow();
    }
}

void FormWindow::layOutWindow() {
    const Layout layout = layoutOf(formSize_, toPixelSize(size()), pixelRatio(*this));
    style_.scale(layout.scale);
    layOut(layout);
}

} // namespace tumble
