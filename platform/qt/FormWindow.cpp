#include "platform/qt/FormWindow.h"

#include "platform/Desktop.h"
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

constexpr double largestFactor = 16; // device pixels for each 15 twips

QSize logicalSize(const Form& form, double scale) {
    const double pixels = scale / static_cast<double>(twipsPerPixel);
    return {qRound(static_cast<double>(form.Width()) * pixels), qRound(static_cast<double>(form.Height()) * pixels)};
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
        const Control& other = *std::visit([](const Control* control) { return control; }, any);
        const auto& [left, top, width, height] = other.place();
        const bool sideways = left >= room.Left + room.Width || room.Left >= left + width;
        if (&other != &option && !sideways) {
            const float gap = std::max(top - (room.Top + room.Height), room.Top - (top + height));
            free = std::clamp(gap, 0.0F, free);
        }
    }
    return {room.Left, room.Top - free / 2, room.Width, room.Height + free};
}

constexpr QSize buttonMargin(8, 4);    // logical pixels
constexpr int iconSize = 32;           // logical pixels at scale 1
constexpr int frameCaptionHeight = 16; // likewise

} // namespace

FormWindow::FormWindow(Form& form, double scale, const QIcon& icon, PictureCache& pictures)
    : form_(&form), icon_(icon), pictures_(pictures), scale_(scale) {
    setWindowTitle(QString::fromStdString(form.Caption()));
    setWindowIcon(icon);
    setMinimumSize(logicalSize(form, 1));
    resize(logicalSize(form, scale));
    buildControls(form, this);
    setTabOrderByIndex();
    layOut();
    const QRect available = screen()->availableGeometry();
    const QRect middle = QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, size(), available);
    move(std::max(middle.x(), available.x()), std::max(middle.y(), available.y()));
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

void FormWindow::keyPressEvent(QKeyEvent* event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    QAbstractButton* button = enter ? enterButton_ : event->key() == Qt::Key_Escape ? escButton_ : nullptr;
    if (button != nullptr) {
        button->click();
    }
}

void FormWindow::buildControls(const Container& container, QWidget* parent) {
    const auto add = [&](auto* control) {
        QWidget* widget = build(*control, parent);
        widget->setObjectName(QString::fromStdString(control->Name()));
        widget->setStyle(&style_);
        placed_.push_back({widget, roomOf(*control)});
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
    updates_.emplace(&label, [this, &label, widget] {
        widget->setFont(captionFont(label.font, label.Caption(), widget->size(), Wrap::Words));
        widget->setText(QString::fromStdString(label.Caption()));
    });
    return widget;
}

QWidget* FormWindow::build(CommandButton& button, QWidget* parent) {
    QPushButton* widget = nullptr;
    if (button.face == ButtonFace::IconAboveCaption) {
        widget = new IconAboveButton(parent);
        widget->setIcon(icon_);
    } else {
        widget = new QPushButton(parent);
    }
    widget->setDefault(button.pressedByEnter());
    enterButton_ = button.pressedByEnter() ? widget : enterButton_;
    escButton_ = button.pressedByEsc() ? widget : escButton_;
    updates_.emplace(&button, [this, &button, widget] {
        widget->setIconSize(QSize(iconSize, iconSize) * scale_);
        widget->setFont(captionFont({}, button.Caption(), widget->size() - buttonMargin, Wrap::Lines));
        widget->setText(QString::fromStdString(button.Caption()));
    });
    connect(widget, &QPushButton::clicked, this, [&button] { button.Click(); });
    return widget;
}

QWidget* FormWindow::build(OptionButton& option, QWidget* parent) {
    auto* widget = new WrappingRadioButton(parent);
    updates_.emplace(&option, [this, &option, widget] {
        widget->setFont(captionFont({}, option.Caption(), widget->captionRoom().size(), Wrap::Words));
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
    updates_.emplace(&frame, [this, &frame, widget] {
        widget->captionHeight(qRound(frameCaptionHeight * scale_));
        widget->setFont(captionFont(frame.font, frame.Caption(), widget->captionRoom().size(), Wrap::Lines));
        widget->setTitle(QString::fromStdString(frame.Caption()));
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
    widget->setAccessibleName(QString::fromStdString(slider.Caption()));
    updates_.emplace(&slider, [&slider, widget] {
        widget->setRange(slider.Min(), slider.Max());
        widget->setValue(slider.Value());
    });
    connect(widget, &QSlider::valueChanged, this,
            [this, &slider](int value) { slider.takesInput() ? slider.Value(value) : changed(slider); });
    return widget;
}

QFont FormWindow::captionFont(const Font& font, const std::string& caption, QSize room, Wrap wrap) const {
    return tumble::captionFont(font, scale_, QString::fromStdString(caption), room, wrap);
}

void FormWindow::resizeEvent(QResizeEvent* /*event*/) {
    if (form_ != nullptr) {
        layOut();
    }
}

void FormWindow::layOut() {
    const auto perUnit = [](int pixels, float twips) {
        return pixels * static_cast<double>(twipsPerPixel) / static_cast<double>(twips);
    };
    const double fits = std::min(perUnit(width(), form_->Width()), perUnit(height(), form_->Height()));
    scale_ = std::clamp(fits, 1.0, largestFactor / pixelRatio(*this));
    style_.scale(scale_);
    const QSize margins = (size() - logicalSize(*form_, scale_)) / 2;
    const PixelScale pixels(scale_);
    for (const auto& [widget, room] : placed_) {
        const QPoint origin = widget->parent() == this ? QPoint(margins.width(), margins.height()) : QPoint();
        const QPoint first(pixels.pixel(room.Left), pixels.pixel(room.Top));
        const QPoint end(pixels.pixel(room.Left + room.Width), pixels.pixel(room.Top + room.Height));
        widget->setGeometry(QRect(origin + first, origin + end - QPoint(1, 1)));
    }
    for (const auto& [control, update] : updates_) {
        update();
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
