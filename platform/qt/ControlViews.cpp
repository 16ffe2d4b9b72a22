#include "platform/qt/ControlViews.h"

#include "platform/qt/Accessibility.h"
#include "platform/qt/Buttons.h"
#include "platform/qt/CaptionedFrame.h"
#include "platform/qt/Fonts.h"
#include "platform/qt/Geometry.h"
#include "platform/qt/SurfaceWidget.h"

#include <QApplication>
#include <QLabel>
#include <QSlider>

#include <type_traits>
#include <variant>

namespace tumble {

namespace {

/// What the widget of a control is created from.
struct Context {
    FormView& form;
    QWidget& parent;
    PictureCache& pictures;
};

QString captionOf(const Control& control) {
    return QString::fromStdString(control.Caption());
}

SurfaceWidget* createWidget(PictureBox& box, const Context& context) {
    return new SurfaceWidget(box, context.pictures, &context.parent);
}

void update(const PictureBox& box, SurfaceWidget& widget, double scale) {
    widget.scale(scale);
    widget.setAccessibleName(captionOf(box));
}

QLabel* createWidget(const Label& label, const Context& context) {
    auto* widget = new QLabel(&context.parent);
    widget->setTextFormat(Qt::PlainText);
    widget->setWordWrap(true);
    widget->setAlignment(Qt::AlignTop | (label.align == TextAlign::Centre ? Qt::AlignHCenter : Qt::AlignLeft));
    return widget;
}

void update(const Label& label, QLabel& widget, double /*scale*/) {
    widget.setText(captionOf(label));
    relate(label, widget);
}

FormButton* createWidget(CommandButton& button, const Context& context) {
    auto* widget = new FormButton(&context.parent);
    if (button.face == ButtonFace::IconAboveCaption) {
        widget->setIcon(QApplication::windowIcon());
    }
    widget->setDefault(button.pressedBy(Key::Enter));
    QObject::connect(widget, &QPushButton::clicked, widget, [&form = context.form, &button] { form.input(&button); });
    return widget;
}

void update(const CommandButton& button, FormButton& widget, double scale) {
    widget.setIconSize(QSize(buttonIconSize, buttonIconSize) * scale);
    widget.setText(captionOf(button));
}

WrappingRadioButton* createWidget(OptionButton& option, const Context& context) {
    auto* widget = new WrappingRadioButton(&context.parent);
    QObject::connect(widget, &QRadioButton::toggled, widget, [&form = context.form, &option](bool selected) {
        if (selected) {
            form.input(&option);
        }
    });
    return widget;
}

void update(const OptionButton& option, WrappingRadioButton& widget, double /*scale*/) {
    widget.setText(captionOf(option));
    widget.setChecked(option.Value());
    // Tab focuses the selected choice of a frame; arrows move on from there.
    widget.setFocusPolicy(option.Value() ? Qt::StrongFocus : Qt::ClickFocus);
}

CaptionedFrame* createWidget(const Frame& /*frame*/, const Context& context) {
    return new CaptionedFrame(&context.parent);
}

void update(const Frame& frame, CaptionedFrame& widget, double scale) {
    widget.captionHeight(qRound(frameCaptionHeight * scale));
    widget.setTitle(captionOf(frame));
}

QSlider* createWidget(Slider& slider, const Context& context) {
    auto* widget = new QSlider(Qt::Vertical, &context.parent);
    widget->setInvertedAppearance(true); // the minimum at the top, and the keys and the wheel to match
    widget->setInvertedControls(true);
    widget->setTickPosition(QSlider::TicksBothSides);
    widget->setTickInterval(1);
    widget->setPageStep(1);
    QObject::connect(widget, &QSlider::valueChanged, widget,
                     [&form = context.form, &slider](int value) { form.input(&slider, value); });
    return widget;
}

void update(const Slider& slider, QSlider& widget, double /*scale*/) {
    widget.setAccessibleName(captionOf(slider));
    widget.setRange(slider.Min(), slider.Max());
    widget.setValue(slider.Value());
}

template<class ControlType, class WidgetType>
class ViewOf : public WidgetView {
public:
    ViewOf(ControlType& control, WidgetType* widget) : control_(control), widget_(*widget) {}

    QWidget& widget() const override { return widget_; }
    void place(const PixelRect& pixels) override { widget_.setGeometry(toQRect(pixels)); }
    void update(double scale) override { tumble::update(control_, widget_, scale); }
    void setFont(const CaptionFont& font) override { widget_.setFont(toQFont(font)); }
    PixelSize captionSize(PixelSize usual) const override {
        if constexpr (std::is_same_v<WidgetType, WrappingRadioButton>) { // the style decides what its mark leaves
            return toPixelSize(widget_.captionArea().size());
        }
        return usual;
    }

private:
    const ControlType& control_;
    WidgetType& widget_;
};

} // namespace

std::unique_ptr<WidgetView> createView(const AnyControl& control, FormView& form, QWidget& parent,
                                       PictureCache& pictures) {
    const auto create = [&](auto* each) {
        return std::unique_ptr<WidgetView>(new ViewOf(*each, createWidget(*each, {form, parent, pictures})));
    };
    return std::visit(create, control);
}

} // namespace tumble
