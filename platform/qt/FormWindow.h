#pragma once

#include "platform/Form.h"
#include "platform/PictureCache.h"
#include "platform/qt/Captions.h"
#include "platform/qt/ScaledStyle.h"
#include "platform/qt/ScreenRoom.h"

#include <QIcon>
#include <QMargins>
#include <QPointer>
#include <QScreen>
#include <QWidget>

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

class QAbstractButton;

namespace tumble {

class SurfaceWidget;

/// What a modal window has of a frame.
inline constexpr Qt::WindowFlags dialogFlags =
    Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;

/// Where and how a window stands; the next one opens likewise.
struct WindowPlace {
    QPointer<QScreen> screen;        // null: the first one
    std::optional<QMargins> frame{}; // once the windowing system has made one
    Qt::WindowStates state{};        // maximised, full screen
    double scale = 1;                // logical pixels for each 15 twips
};

/// Shows a form as a window of its own and reports to the form's controls what the player does. The content keeps the
/// form's proportions, as large as fits the window, in its middle; the smallest window shows it at scale 1, or as large
/// as its screen can hold.
class FormWindow : public QWidget {
public:
    /// `before`: the window in front until now. A modal window opens at its scale, another at the one that suits the
    /// program's largest form, in its state.
    FormWindow(Form& form, Modality modality, const WindowPlace& before, const QIcon& icon, PictureCache& pictures);

    /// The scale that the window's size gives.
    double scale() const { return scale_; }
    WindowPlace place() const;
    /// What its screen has for it and for others with a frame like its own.
    ScreenRoom room() const;

    /// Shows a control's new state.
    void changed(const Control& control);
    /// The widget of a picture box of the form.
    SurfaceWidget* surface(const PictureBox& box) const;
    /// Brings what was painted to the screen at once.
    void showPaintings();
    /// A message box or modal window over this one has closed.
    void inputIsBack();
    /// From now on the form, which may be gone, hears no more; the window goes when its running handler has returned.
    void retire();

protected:
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void buildControls(const Container& container, float width, QWidget* parent); // width in twips
    QWidget* build(PictureBox& box, QWidget* parent);
    QWidget* build(Label& label, QWidget* parent);
    QWidget* build(CommandButton& button, QWidget* parent);
    QWidget* build(OptionButton& option, QWidget* parent);
    QWidget* build(Frame& frame, QWidget* parent);
    QWidget* build(Slider& slider, QWidget* parent);
    void setTabOrderByIndex();
    void followScreen(QScreen* screen);
    void keepLeastSize();
    QRect openingPlace() const;
    QSize sizeAt(double scale) const { return (formSize_ * scale).toSize(); }
    void layOut();
    QRect contentPlace() const;
    void addCaption(const Control& control, const Font& font, Wrap wrap, QWidget* widget, std::function<QSize()> room);

    /// Captions of one container that are alike, and so have one size.
    struct Captions {
        struct Each {
            const Control* control;
            QWidget* widget;
            std::function<QSize()> room; // logical pixels
        };
        Captions(const Container* owner, const Font& wanted, Wrap wrapping)
            : container(owner), font(wanted), wrap(wrapping) {}

        const Container* container;
        Font font;
        Wrap wrap;
        std::vector<Each> each;
    };
    void fit(const Captions& captions) const;
    void learnFrame();

    struct Placed {
        QWidget* widget;
        Place room; // in its container, twips
    };

    Form* form_; // null once retired
    QIcon icon_;
    PictureCache& pictures_;
    QSizeF formSize_; // logical pixels at scale 1
    double scale_;
    std::optional<QMargins> frame_;
    ScaledStyle style_;
    std::vector<Placed> placed_;
    QAbstractButton* enterButton_ = nullptr;
    QAbstractButton* escButton_ = nullptr;
    std::map<const PictureBox*, SurfaceWidget*> surfaces_;
    std::map<const Control*, std::function<void()>> updates_;
    std::vector<Captions> captions_;
    std::multimap<int, QWidget*> byTabIndex_;
};

} // namespace tumble
