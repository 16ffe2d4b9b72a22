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

/// Where and how a window shows. The next window opens likewise.
struct WindowPlace {
    QPointer<QScreen> screen;        // null: the first one
    std::optional<QMargins> frame{}; // unknown until the windowing system has created one
    Qt::WindowStates state{};        // maximised, full screen
    double scale = 1;                // logical pixels for each 15 twips
    QRect content{};                 // on the screen; null before the first window
};

/// Shows a form as a window of its own. The content keeps the form's proportions and is as large as fits, in the middle
/// of the window. The smallest window shows it at scale 1, or at the largest scale that its screen can hold.
class FormWindow : public QWidget, public FormView {
public:
    /// `last` is the place of the window in front, or of the last one that was; hiding this window sets it. A modal
    /// window opens at the scale of `last`; a modeless one at the opening scale of the program's largest form, in the
    /// state of `last`. An alert opens in the middle of its content, any other window in the middle of the screen.
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
    void resizeEvent(QResizeEvent* /*event*/) override { layOutWindow(); }

private:
    void buildControls(const Container& container, QWidget& parent, PictureCache& pictures);
    void setTabOrderByIndex();
    WorkArea workArea() const;
    void followScreen(QScreen* screen);
    void keepLeastSize();
    QRect openingPlace() const;
    void layOutWindow();
    void learnFrame();

    FormSize formSize_;
    WindowPlace& last_;
    std::optional<QMargins> frame_;
    QRect around_; // the window opens in its middle; null for the work area
    ScaledStyle style_;
    std::multimap<int, QWidget*> byTabIndex_;
};

} // namespace tumble
