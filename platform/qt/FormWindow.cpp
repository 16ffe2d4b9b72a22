#include "platform/qt/FormWindow.h"

#include "platform/Desktop.h"
#include "platform/qt/Buttons.h"
#include "platform/qt/Captions.h"
#include "platform/qt/SurfaceWidget.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QSlider>
#include <QWindow>
#include <QtMath>

#include <algorithm>
#include <variant>

namespace tumble {

namespace {

constexpr Qt::WindowStates wholeScreen = Qt::WindowMaximized | Qt::WindowFullScreen;

QSizeF unscaledSize(float width, float height) {
    return QSizeF(static_cast<double>(width), static_cast<double>(height)) / static_cast<double>(twipsPerPixel);
}

QSizeF largestForm() {
    const Application& App = desktop().App();
    return unscaledSize(App.Width, App.Height);
}

constexpr float tallLabel = 600; // twips, as below: the caption of a higher one wraps
constexpr float optionGap = 45;
constexpr float mostToTheRight = 240;

// The place that a control's widget gets in a container of the width. An option button shows no border: its caption may
// use half of the space to its neighbours above and below, and some of that on its right.

Place roomOf(const Control& control, float /*width*/) {
    return control.place();
}

Place roomOf(const OptionButton& option, float width) {
    const Place room = option.place();
    const float end = room.Left + room.Width;
    float free = room.Height;
    float right = std::min(width - end - optionGap, mostToTheRight);
    for (const AnyControl& any : option.container().controls()) {
        const Control& other = *std::visit([](const Control* control) { return control; }, any);
        const auto& [otherLeft, otherTop, otherWidth, otherHeight] = other.place();
        const float gap = std::max(otherTop - (room.Top + room.Height), room.Top - (otherTop + otherHeight));
        const bool sideways = otherLeft >= end || room.Left >= otherLeft + otherWidth;
        if (gap < 0 && otherLeft > room.Left) {
            right = std::min(right, otherLeft - end - optionGap);
        }
        if (&other != &option && !sideways) {
            free = std::clamp(gap, 0.0F, free);
        }
    }
    return {room.Left, room.Top - free / 2, room.Width + std::max(right, 0.0F), room.Height + free};
}

bool isEnter(const QKeyEvent& event) {
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

constexpr int darkerBeside = 120;      // percent
constexpr QSize buttonMargin(8, 4);    // logical pixels
constexpr int iconSize = 32;           // logical pixels at scale 1
constexpr int frameCaptionHeight = 16; // likewise

} // namespace

FormWindow::FormWindow(Form& form, Modality modality, const WindowPlace& before, const QIcon& icon,
                       PictureCache& pictures)
    : QWidget(nullptr, modality == Modality::Modal ? dialogFlags : Qt::Window),
      form_(&form),
      icon_(icon),
      pictures_(pictures),
      formSize_(unscaledSize(form.Width(), form.Height())),
      scale_(before.scale),
      frame_(before.frame) {
    setWindowTitle(QString::fromStdString(form.Caption()));
    setWindowIcon(icon);
    if (before.screen != nullptr) {
        setScreen(before.screen);
    }
    if (modality == Modality::Modal) {
        setWindowModality(Qt::ApplicationModal);
    }
    followScreen(screen());
    setGeometry(openingPlace());
    create();
    if (modality == Modality::Modeless) {
        setWindowState(before.state);
    }
    windowHandle()->installEventFilter(this);
    connect(windowHandle(), &QWindow::screenChanged, this, &FormWindow::followScreen);
    buildControls(form, form.Width(), this);
    setTabOrderByIndex();
    layOut();
}

WindowPlace FormWindow::place() const {
    return {screen(), frame_, windowState() & wholeScreen, scale_};
}

ScreenRoom FormWindow::room() const {
    return {*screen(), frame_};
}

void FormWindow::followScreen(QScreen* screen) {
    if (screen != nullptr) {
        connect(screen, &QScreen::availableGeometryChanged, this, &FormWindow::keepLeastSize, Qt::UniqueConnection);
        keepLeastSize();
    }
}

void FormWindow::keepLeastSize() {
    setMinimumSize(sizeAt(room().leastScale(largestForm())));
}

QRect FormWindow::openingPlace() const {
    const double scale = isModal() ? scale_ : room().openingScale(largestForm());
    return room().place(sizeAt(std::min(scale, room().largestScale(formSize_))), room().inside());
}

void FormWindow::changed(const Control& control) {
    if (const auto update = updates_.find(&control); update != updates_.end()) {
        update->second();
    }
    const auto group = std::find_if(captions_.begin(), captions_.end(), [&](const Captions& captions) {
        return std::any_of(captions.each.begin(), captions.each.end(),
                           [&](const auto& each) { return each.control == &control; });
    });
    if (group != captions_.end()) {
        fit(*group);
    }
}

SurfaceWidget* FormWindow::surface(const PictureBox& box) const {
    return surfaces_.at(&box);
}

void FormWindow::showPaintings() {
    for (const auto& [box, widget] : surfaces_) {
        widget->showNow();
    }
}

void FormWindow::inputIsBack() {
    for (const auto& [box, widget] : surfaces_) {
        widget->inputIsBack();
    }
}

void FormWindow::retire() {
    form_ = nullptr;
    for (const auto& [box, widget] : surfaces_) {
        widget->retire();
    }
    surfaces_.clear();
    updates_.clear();
    captions_.clear();
    for (const auto& [widget, room] : placed_) {
        disconnect(widget, nullptr, this, nullptr);
    }
    hide();
    deleteLater();
}

void FormWindow::closeEvent(QCloseEvent* event) {
    event->ignore();
    if (form_ != nullptr && desktop().takesInput(*form_)) {
        form_->Form_Close();
    }
}

bool FormWindow::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Expose) {
        learnFrame();
    }
    // Some themes give Enter to the button that has the focus; here it is the default button's.
    if (watched->isWidgetType() && event->type() == QEvent::KeyPress && isEnter(static_cast<QKeyEvent&>(*event))) {
        keyPressEvent(static_cast<QKeyEvent*>(event));
        return true;
    }
    return false;
}

// The frame comes with the window: the first one opens for a usual frame, and is set right as soon as it shows.
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
    if (event->key() == Qt::Key_F11 && !isModal()) {
        setWindowState(windowState() ^ Qt::WindowFullScreen);
        return;
    }
    QAbstractButton* button = isEnter(*event) ? enterButton_ : event->key() == Qt::Key_Escape ? escButton_ : nullptr;
    if (button != nullptr) {
        button->click();
    }
}

void FormWindow::buildControls(const Container& container, float width, QWidget* parent) {
    const auto add = [&](auto* control) {
        QWidget* widget = build(*control, parent);
        widget->setObjectName(QString::fromStdString(control->Name()));
        widget->setStyle(&style_);
        widget->installEventFilter(this);
        placed_.push_back({widget, roomOf(*control, width)});
        byTabIndex_.emplace(control->TabIndex(), widget);
    };
    for (const AnyControl& control : container.controls()) {
        std::visit(add, control);
    }
}

QWidget* FormWindow::build(PictureBox& box, QWidget* parent) {
    auto* widget = new SurfaceWidget(box, pictures_, parent);
    widget->setAccessibleName(QString::fromStdString(box.Caption()));
    surfaces_.emplace(&box, widget);
    return widget;
}

QWidget* FormWindow::build(Label& label, QWidget* parent) {
    auto* widget = new QLabel(parent);
    widget->setTextFormat(Qt::PlainText);
    widget->setWordWrap(true);
    widget->setAlignment(Qt::AlignTop | (label.align == TextAlign::Centre ? Qt::AlignHCenter : Qt::AlignLeft));
    addCaption(label, label.font, label.place().Height < tallLabel ? Wrap::No : Wrap::Freely, widget,
               [widget] { return widget->size(); });
    updates_.emplace(&label, [&label, widget] { widget->setText(QString::fromStdString(label.Caption())); });
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
    widget->setDefault(button.pressedByEnter());
    enterButton_ = button.pressedByEnter() ? widget : enterButton_;
    escButton_ = button.pressedByEsc() ? widget : escButton_;
    addCaption(button, {}, Wrap::No, widget, [widget] { return widget->size() - buttonMargin; });
    updates_.emplace(&button, [this, &button, widget] {
        widget->setIconSize(QSize(iconSize, iconSize) * scale_);
        widget->setText(QString::fromStdString(button.Caption()));
    });
    connect(widget, &QPushButton::clicked, this, [&button] { button.Click(); });
    return widget;
}

QWidget* FormWindow::build(OptionButton& option, QWidget* parent) {
    auto* widget = new WrappingRadioButton(parent);
    addCaption(option, {}, Wrap::Twice, widget, [widget] { return widget->captionRoom().size(); });
    updates_.emplace(&option, [&option, widget] {
        widget->setText(QString::fromStdString(option.Caption()));
        widget->setChecked(option.Value());
        // Tab comes to the selected choice of a frame, the arrows go on from there.
        widget->setFocusPolicy(option.Value() ? Qt::StrongFocus : Qt::ClickFocus);
    });
    connect(widget, &QRadioButton::toggled, this, [this, &option](bool selected) {
        if (selected) {
            option.Select();
            changed(option); // which says if nothing came of it
        }
    });
    return widget;
}

QWidget* FormWindow::build(Frame& frame, QWidget* parent) {
    auto* widget = new CaptionedFrame(parent);
    addCaption(frame, frame.font, Wrap::No, widget, [widget] { return widget->captionRoom().size(); });
    updates_.emplace(&frame, [this, &frame, widget] {
        widget->captionHeight(qRound(frameCaptionHeight * scale_));
        widget->setTitle(QString::fromStdString(frame.Caption()));
    });
    buildControls(frame, frame.place().Width, widget);
    return widget;
}

QWidget* FormWindow::build(Slider& slider, QWidget* parent) {
    auto* widget = new QSlider(Qt::Vertical, parent);
    widget->setInvertedAppearance(true); // the minimum at the top, and the keys and the wheel to match
    widget->setInvertedControls(true);
    widget->setTickPosition(QSlider::TicksBothSides);
    widget->setTickInterval(1);
    widget->setPageStep(1);
    widget->setAccessibleName(QString::fromStdString(slider.Caption()));
    updates_.emplace(&slider, [&slider, widget] {
        widget->setRange(slider.Min(), slider.Max());
        widget->setValue(slider.Value());
    });
    connect(widget, &QSlider::valueChanged, this,
            [this, &slider](int value) { slider.takesInput() ? slider.Value(value) : changed(slider); });
    return widget;
}

void FormWindow::addCaption(const Control& control, const Font& font, Wrap wrap, QWidget* widget,
                            std::function<QSize()> room) {
    const auto alike = std::find_if(captions_.begin(), captions_.end(), [&](const Captions& captions) {
        return captions.container == &control.container() && captions.font == font && captions.wrap == wrap;
    });
    Captions& captions = alike != captions_.end() ? *alike : captions_.emplace_back(&control.container(), font, wrap);
    captions.each.push_back({&control, widget, std::move(room)});
}

void FormWindow::fit(const Captions& captions) const {
    std::vector<CaptionInRoom> inRooms;
    for (const auto& [control, widget, room] : captions.each) {
        inRooms.push_back({QString::fromStdString(control->Caption()), room()});
    }
    const QFont font = captionFont(captions.font, scale_, inRooms, captions.wrap);
    for (const auto& [control, widget, room] : captions.each) {
        widget->setFont(font);
    }
}

QRect FormWindow::contentPlace() const {
    const QSize content = sizeAt(scale_);
    const QSize margins = (size() - content) / 2;
    return {QPoint(margins.width(), margins.height()), content};
}

// Beside the content the ground is darker, so that it reads as one thing; a line left over by rounding is no ground.
void FormWindow::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setClipRegion(QRegion(rect()) - contentPlace().adjusted(-1, -1, 1, 1));
    painter.fillRect(rect(), palette().color(QPalette::Window).darker(darkerBeside));
}

void FormWindow::resizeEvent(QResizeEvent* /*event*/) {
    if (form_ != nullptr) {
        layOut();
    }
}

void FormWindow::layOut() {
    scale_ = showable(std::min(width() / formSize_.width(), height() / formSize_.height()), pixelRatio(*this));
    style_.scale(scale_);
    const QPoint corner = contentPlace().topLeft();
    const auto pixel = [this](float twips) {
        return qFloor(static_cast<double>(twips) * scale_ / static_cast<double>(twipsPerPixel));
    };
    for (const auto& [widget, room] : placed_) {
        const QPoint origin = widget->parent() == this ? corner : QPoint();
        const QPoint first(pixel(room.Left), pixel(room.Top));
        const QPoint end(pixel(room.Left + room.Width), pixel(room.Top + room.Height));
        widget->setGeometry(QRect(origin + first, origin + end - QPoint(1, 1)));
    }
    for (const auto& [control, update] : updates_) {
        update();
    }
    for (const Captions& captions : captions_) {
        fit(captions);
    }
    for (const auto& [box, surface] : surfaces_) {
        surface->scale(scale_);
    }
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

} // namespace tumble
