#pragma once

#include "platform/qt/ScaledStyle.h"
#include "platform/qt/WorkArea.h"
#include "platform/window/FormView.h"

#include <QPointer>
#include <QScreen>
#include <QWidget>

#include <map>
#include <optional>

namespace tumble {

/// Where and how a window stands; the next one opens likewise.
struct WindowPlace {
    QPointer<QScreen> screen;           // null: the first one
    std::optional<WindowFrame> frame{}; // once the windowing system has made one
    Qt::WindowStates state{};           // maximised, full screen
    double scale = 1;                   // logical pixels for each 15 twips
    PixelRect content{};                // on the screen; empty before the first window
};

/// Shows a form as a window of its own. The content keeps the form's proportions, as large as fits the window, in its
/// middle; the smallest window shows it at scale 1, or as large as its screen can hold.
class FormWindow : public QWidget, public FormView {
public:
    /// `last` is the place of the window in front until now, or of the last one, and that of this window once it is
    /// hidden. A modal window opens at its scale, another at the one that suits the program's largest form, in its
    /// state. An alert opens in the middle of its content, another window in the middle of the screen.
    FormWindow(Form& form, Modality modality, WindowPlace& last, PictureCache& pictures);

    void Show() override;
    void Hide() override;
    void MousePointer(Pointer pointer) override;
    bool shows() const override { return isVisible(); }
    void detach() override;

    WindowPlace place() const;

protected:
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void buildControls(const Container& container, QWidget& parent, PictureCache& pictures);
    void setTabOrderByIndex();
    WorkArea workArea() const { return {*screen(), frame_}; }
    void followScreen(QScreen* screen);
    void keepLeastSize();
    QRect openingPlace() const;
    void layOutWindow();
    void learnFrame();

    FormSize formSize_;
    WindowPlace& last_;
    std::optional<WindowFrame> frame_;
    PixelRect around_; // the place in whose middle it opens; empty for the work area
    ScaledStyle style_;
    std::multimap<int, QWidget*> byTabIndex_;
};

} // namespace tumble
