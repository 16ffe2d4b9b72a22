#pragma once

#include <QPushButton>
#include <QRadioButton>

class QStylePainter;

namespace tumble {

/// An option button whose caption wraps. A click anywhere in its place selects it.
class WrappingRadioButton : public QRadioButton {
public:
    using QRadioButton::QRadioButton;

    /// The place of the caption in the button, in logical pixels.
    QRect captionArea() const;

protected:
    void paintEvent(QPaintEvent* event) override;
    bool hitButton(const QPoint& place) const override;

private:
    QRect markPlace() const;
};

/// A button that is framed in every style while it is the default one. Its icon, if it has one, lies above its caption.
class FormButton : public QPushButton {
public:
    using QPushButton::QPushButton;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void drawIconAboveCaption(QStylePainter& painter) const;
};

} // namespace tumble
