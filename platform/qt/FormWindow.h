#pragma once

#include "platform/Form.h"
#include "platform/qt/Captions.h"
#include "platform/qt/PictureCache.h"
#include "platform/qt/ScaledStyle.h"

#include <QIcon>
#include <QWidget>

#include <functional>
#include <map>
#include <string>
#include <vector>

class QAbstractButton;

namespace tumble {

class SurfaceWidget;

/// Shows a form as a window of its own and reports to the form's controls what the player does. The content keeps the
/// form's proportions, as large as fits the window, in its middle; the smallest window shows it at scale 1.
class FormWindow : public QWidget {
public:
    /// `scale`: logical pixels for each 15 twips, when it opens.
    FormWindow(Form& form, double scale, const QIcon& icon, PictureCache& pictures);

    /// The scale that the window's size gives.
    double scale() const { return scale_; }

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
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void buildControls(const Container& container, QWidget* parent);
    QWidget* build(PictureBox& box, QWidget* parent);
    QWidget* build(Label& label, QWidget* parent);
    QWidget* build(CommandButton& button, QWidget* parent);
    QWidget* build(OptionButton& option, QWidget* parent);
    QWidget* build(Frame& frame, QWidget* parent);
    QWidget* build(Slider& slider, QWidget* parent);
    void setTabOrderByIndex();
    void layOut();
    QFont captionFont(const Font& font, const std::string& caption, QSize room, Wrap wrap) const;

    struct Placed {
        QWidget* widget;
        Place room; // in its container, twips
    };

    Form* form_; // null once retired
    QIcon icon_;
    PictureCache& pictures_;
    double scale_;
    ScaledStyle style_;
    std::vector<Placed> placed_;
    QAbstractButton* enterButton_ = nullptr;
    QAbstractButton* escButton_ = nullptr;
    std::map<const PictureBox*, SurfaceWidget*> surfaces_;
    std::map<const Control*, std::function<void()>> updates_;
    std::multimap<int, QWidget*> byTabIndex_;
};

} // namespace tumble
