#pragma once

#include "platform/paint/PictureCache.h"
#include "platform/qt/ScaledStyle.h"
#include "platform/window/FormView.h"
#include "platform/window/WorkArea.h"

#include <QIcon>
#include <QPointer>
#include <QScreen>
#include <QWidget>

#include <functional>
#include <map>
#include <optional>

namespace tumble {

/// What a modal window has of a frame.
inline constexpr Qt::WindowFlags dialogFlags =
    Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;

/// Where and how a window stands; the next one opens likewise.
struct WindowPlace {
    QPointer<QScreen> screen;           // null: the first one
    std::optional<WindowFrame> frame{}; // once the windowing system has made one
    Qt::WindowStates state{};           // maximised, full screen
    double scale = 1;                   // logical pixels for each 15 twips
};

/// The room that a screen has for windows, in logical pixels.
WorkArea workArea(const QScreen& screen, const std::optional<WindowFrame>& frame);

/// Shows a form as a window of its own and reports to the form's controls what the player does. The content keeps the
/// form's proportions, as large as fits the window, in its middle; the smallest window shows it at scale 1, or as large
/// as its screen can hold.
class FormWindow : public QWidget, public FormView {
public:
    /// `last` is the window in front until now, or the last one; this one when it goes. A modal window opens at its
    /// scale, another at the one that suits the program's largest form, in its state.
    FormWindow(Form& form, Modality modality, WindowPlace& last, const QIcon& icon, PictureCache& pictures);

    void Show() override { show(); }
    void Hide() override;
    void MousePointer(Pointer pointer) override;
    bool shows() const override { return isVisible(); }
    void detach() override;

    WindowPlace place() const;
    /// What its screen has for it and for others with a frame like its own.
    WorkArea room() const { return workArea(*screen(), frame_); }
    /// The place for another window of that size over this one.
    QRect placeOver(QSize content) const;

protected:
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void buildControls(const Container& container, QWidget* parent);
    QWidget* build(PictureBox& box, QWidget* parent);
    QWidget* build(Label& label, QWidget* parent);
    QWidget* build(CommandButton& button, QWidget* parent);
    QWidget* build(OptionButton& option, QWidget* parent);
    QWidget* build(Frame& frame, QWidget* parent);
    QWidget* build(Slider& slider, QWidget* parent);
    // By what brings the widget up to date.
    void add(AnyControl control, QWidget* widget, std::function<void()> update,
             Captions::AvailableSize captionArea = {});
    void setTabOrderByIndex();
    void followScreen(QScreen* screen);
    void keepLeastSize();
    QRect openingPlace() const;
    void layOutWindow();
    void learnFrame();

    QIcon icon_;
    PictureCache& pictures_;
    FormSize formSize_;
    WindowPlace& last_;
    std::optional<WindowFrame> frame_;
    ScaledStyle style_;
    std::multimap<int, QWidget*> byTabIndex_;
};

} // namespace tumble
