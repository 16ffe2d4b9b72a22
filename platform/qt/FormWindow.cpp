#include "platform/qt/FormWindow.h"

#include "platform/PixelScale.h"
#include "platform/qt/Buttons.h"
#include "platform/qt/Captions.h"
#include "platform/qt/SurfaceWidget.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QScreen>
#include <QSlider>
#include <QStyle>

#include <algorithm>
#include <variant>

namespace tumble {

namespace {

const PixelScale logicalPixels(1);

QSize logicalSize(float width, float height) {
    return {logicalPixels.pixel(width), logicalPixels.pixel(height)};
}

QRect logicalRect(const Place& place) {
    return {QPoint(logicalPixels.pixel(place.Left), logicalPixels.pixel(place.Top)),
            logicalSize(place.Width, place.Height)};
}

// The place that a control's widget gets. An option button shows no border: its caption may use half of the space to
// its neighbours above and below.

Place roomOf(const Control& control) {
    return control.place();
}

Place roomOf(const OptionButton& option) {
    Place room = option.place();
    float free = room.Height;
    for (const AnyControl& any : option.container().controls()) {
        const Place& other = std::visit([](const Control* control) { return control->place(); }, any);
        const float gap = std::max(other.Top - (room.Top + room.Height), room.Top - (other.Top + other.Height));
        const bool sideways = other.Left >= room.Left + room.Width || room.Left >= other.Left + other.Width;
        free = gap >= 0 && !sideways ? std::min(free, gap) : free;
    }
    return {room.Left, room.Top - free / 2, room.Width, room.Height + free};
}

constexpr QSize buttonMargin(8, 4);
constexpr int iconSize = 32;

} // namespace

FormWindow::FormWindow(Form& form, const QIcon& icon, PictureCache& pictures)
    : form_(form), icon_(icon), pictures_(pictures) {
    setWindowTitle(QString::fromStdString(form.Caption()));
    setWindowIcon(icon);
    setFixedSize(logicalSize(form.Width(), form.Height()));
    buildControls(form, this);
    setTabOrderByIndex();
    move(QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, size(), screen()->availableGeometry()).topLeft());
}

void FormWindow::changed(const Control& control) {
    if (const auto update = updates_.find(&control); update != updates_.end()) {
        update->second();
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

void FormWindow::retire() {
    retired_ = true;
    hide();
    deleteLater();
}

void FormWindow::closeEvent(QCloseEvent* event) {
    event->ignore();
    if (!retired_) {
        form_.Form_Close();
    }
}

// A key held down since the last window was up presses nothing in this one.
void FormWindow::keyPressEvent(QKeyEvent* event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    QAbstractButton* button = enter ? enterButton_ : event->key() == Qt::Key_Escape ? escButton_ : nullptr;
    if (button != nullptr && !event->isAutoRepeat()) {
        button->click();
    }
}

void FormWindow::raise(const Handler& handler) {
    if (!retired_ && form_.MousePointer() != Pointer::Hourglass) {
        handler();
    }
}

void FormWindow::buildControls(const Container& container, QWidget* parent) {
    const auto add = [&](auto* control) {
        QWidget* widget = build(*control, parent);
        widget->setObjectName(QString::fromStdString(control->Name()));
        widget->setGeometry(logicalRect(roomOf(*control)));
        byTabIndex_.emplace(control->TabIndex(), widget);
        changed(*control);
    };
    for (const AnyControl& control : container.controls()) {
        std::visit(add, control);
    }
}

QWidget* FormWindow::build(PictureBox& box, QWidget* parent) {
    auto* widget = new SurfaceWidget(
        box, pictures_, [this](const Handler& handler) { raise(handler); }, parent);
    surfaces_.emplace(&box, widget);
    return widget;
}

QWidget* FormWindow::build(Label& label, QWidget* parent) {
    auto* widget = new QLabel(parent);
    widget->setTextFormat(Qt::PlainText);
    widget->setWordWrap(true);
    widget->setAlignment(Qt::AlignTop | (label.align == TextAlign::Centre ? Qt::AlignHCenter : Qt::AlignLeft));
    updates_.emplace(&label, [&label, widget] {
        const QString caption = QString::fromStdString(label.Caption());
        widget->setFont(captionFont(label.font, caption, widget->size(), Wrap::Words));
        widget->setText(caption);
    });
    return widget;
}

QWidget* FormWindow::build(CommandButton& button, QWidget* parent) {
    QPushButton* widget = nullptr;
    if (button.face == ButtonFace::IconAboveCaption) {
        widget = new IconAboveButton(parent);
        widget->setIcon(icon_);
        widget->setIconSize({iconSize, iconSize});
    } else {
        widget = new QPushButton(parent);
    }
    widget->setDefault(button.pressedByEnter());
    enterButton_ = button.pressedByEnter() ? widget : enterButton_;
    escButton_ = button.pressedByEsc() ? widget : escButton_;
    updates_.emplace(&button, [&button, widget] {
        const QString caption = QString::fromStdString(button.Caption());
        widget->setFont(captionFont({}, caption, widget->size() - buttonMargin, Wrap::Lines));
        widget->setText(caption);
    });
    connect(widget, &QPushButton::clicked, this, [this, &button] { raise(button.Click); });
    return widget;
}

QWidget* FormWindow::build(OptionButton& option, QWidget* parent) {
    auto* widget = new WrappingRadioButton(parent);
    updates_.emplace(&option, [&option, widget] {
        const QString caption = QString::fromStdString(option.Caption());
        widget->setFont(captionFont({}, caption, widget->captionRoom().size(), Wrap::Words));
        widget->setText(caption);
        widget->setChecked(option.Value());
        // Tab comes to the selected choice of a frame, the arrows go on from there.
        widget->setFocusPolicy(option.Value() ? Qt::StrongFocus : Qt::ClickFocus);
    });
    connect(widget, &QRadioButton::toggled, this, [this, &option](bool selected) {
        if (selected) {
            raise([&option] { option.Select(); });
        }
    });
    return widget;
}

QWidget* FormWindow::build(Frame& frame, QWidget* parent) {
    auto* widget = new CaptionedFrame(parent);
    updates_.emplace(&frame, [&frame, widget] {
        const QString caption = QString::fromStdString(frame.Caption());
        widget->setFont(captionFont(frame.font, caption, widget->captionRoom().size(), Wrap::Lines));
        widget->setTitle(caption);
    });
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
    updates_.emplace(&slider, [&slider, widget] {
        widget->setRange(slider.Min(), slider.Max());
        widget->setValue(slider.Value());
    });
    connect(widget, &QSlider::valueChanged, this,
            [this, &slider](int value) { raise([&slider, value] { slider.Value(value); }); });
    return widget;
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
