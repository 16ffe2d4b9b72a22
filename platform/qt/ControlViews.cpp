#include "platform/qt/ControlViews.h"

#include "platform/qt/Accessibility.h"
#include "platform/qt/Buttons.h"
#include "platform/qt/CaptionedFrame.h"
#include "platform/qt/Fonts.h"
#include "platform/qt/Geometry.h"
#include "platform/qt/SurfaceWidget.h"

#include <QLabel>
#include <QSlider>

#include <variant>

namespace tumble {

namespace {

template<class ControlType, class WidgetType>
class ViewOf : public WidgetView {
public:
    ViewOf(ControlType& control, WidgetType* widget) : control_(control), widget_(widget) {}

    QWidget& widget() const override { return *widget_; }
    void place(const PixelRect& pixels) override { widget_->setGeometry(toQRect(pixels)); }
    void setFont(const CaptionFont& font) override { widget_->setFont(toQFont(font)); }

protected:
    QString caption() const { return QString::fromStdString(control_.Caption()); }

    ControlType& control_;
    WidgetType* widget_; // its parent's
};

class PictureBoxView : public ViewOf<PictureBox, SurfaceWidget> {
public:
    using ViewOf::ViewOf;

    void update(double scale) override {
        widget_->scale(scale);
        widget_->setAccessibleName(caption());
    }
};

class LabelView : public ViewOf<Label, QLabel> {
public:
    LabelView(Label& label, QWidget& parent) : ViewOf(label, new QLabel(&parent)) {
        widget_->setTextFormat(Qt::PlainText);
        widget_->setWordWrap(true);
        widget_->setAlignment(Qt::AlignTop | (label.align == TextAlign::Centre ? Qt::AlignHCenter : Qt::AlignLeft));
    }

    void update(double /*scale*/) override {
        widget_->setText(caption());
        relate(control_, *widget_);
    }
};

class CommandButtonView : public ViewOf<CommandButton, QPushButton> {
public:
    CommandButtonView(CommandButton& button, QPushButton* widget, FormView& form) : ViewOf(button, widget) {
        widget->setDefault(button.pressedBy(Key::Enter));
        QObject::connect(widget, &QPushButton::clicked, widget, [&form, &button] { form.input(&button); });
    }

    void update(double scale) override {
        widget_->setIconSize(QSize(buttonIconSize, buttonIconSize) * scale);
        widget_->setText(caption());
    }
};

class OptionButtonView : public ViewOf<OptionButton, WrappingRadioButton> {
public:
    OptionButtonView(OptionButton& option, QWidget& parent, FormView& form)
        : ViewOf(option, new WrappingRadioButton(&parent)) {
        QObject::connect(widget_, &QRadioButton::toggled, widget_, [&form, &option](bool selected) {
            if (selected) {
                form.input(&option);
            }
        });
    }

    void update(double /*scale*/) override {
        widget_->setText(caption());
        widget_->setChecked(control_.Value());
        // Tab comes to the selected choice of a frame, the arrows go on from there.
        widget_->setFocusPolicy(control_.Value() ? Qt::StrongFocus : Qt::ClickFocus);
    }

    // The style decides how much its mark leaves.
    PixelSize captionSize(PixelSize /*usual*/) const override {
        const QRect area = widget_->captionArea();
        return {area.width(), area.height()};
    }
};

class FrameView : public ViewOf<Frame, CaptionedFrame> {
public:
    FrameView(Frame& frame, QWidget& parent) : ViewOf(frame, new CaptionedFrame(&parent)) {}

    void update(double scale) override {
        widget_->captionHeight(qRound(frameCaptionHeight * scale));
        widget_->setTitle(caption());
    }
};

class SliderView : public ViewOf<Slider, QSlider> {
public:
    SliderView(Slider& slider, QWidget& parent, FormView& form) : ViewOf(slider, new QSlider(Qt::Vertical, &parent)) {
        widget_->setInvertedAppearance(true); // the minimum at the top, and the keys and the wheel to match
        widget_->setInvertedControls(true);
        widget_->setTickPosition(QSlider::TicksBothSides);
        widget_->setTickInterval(1);
        widget_->setPageStep(1);
        QObject::connect(widget_, &QSlider::valueChanged, widget_,
                         [&form, &slider](int value) { form.input(&slider, value); });
    }

    void update(double /*scale*/) override {
        widget_->setAccessibleName(caption());
        widget_->setRange(control_.Min(), control_.Max());
        widget_->setValue(control_.Value());
    }
};

} // namespace

std::unique_ptr<WidgetView> createView(const AnyControl& control, FormView& form, QWidget& parent, const QIcon& icon,
                                       PictureCache& pictures) {
    struct Creator {
        FormView& form;
        QWidget& parent;
        const QIcon& icon;
        PictureCache& pictures;

        std::unique_ptr<WidgetView> operator()(PictureBox* box) const {
            return std::make_unique<PictureBoxView>(*box, new SurfaceWidget(*box, pictures, &parent));
        }
        std::unique_ptr<WidgetView> operator()(Label* label) const {
            return std::make_unique<LabelView>(*label, parent);
        }
        std::unique_ptr<WidgetView> operator()(CommandButton* button) const {
            auto* widget =
                button->face == ButtonFace::Caption ? new FormButton(&parent) : new IconAboveButton(icon, parent);
            return std::make_unique<CommandButtonView>(*button, widget, form);
        }
        std::unique_ptr<WidgetView> operator()(OptionButton* option) const {
            return std::make_unique<OptionButtonView>(*option, parent, form);
        }
        std::unique_ptr<WidgetView> operator()(Frame* frame) const {
            return std::make_unique<FrameView>(*frame, parent);
        }
        std::unique_ptr<WidgetView> operator()(Slider* slider) const {
            return std::make_unique<SliderView>(*slider, parent, form);
        }
    };
    return std::visit(Creator{form, parent, icon, pictures}, control);
}

} // namespace tumble
