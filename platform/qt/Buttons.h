#pragma once

#include <QPushButton>
#include <QRadioButton>

class QStyleOptionButton;
class QStylePainter;

namespace tumble {

/// An option button whose caption wraps, and which is selected by a click anywhere in its place.
class WrappingRadioButton : public QRadioButton {
public:
    using QRadioButton::QRadioButton;

    /// Where the caption goes, in the button's own logical pixels.
    QRect captionArea() const;

protected:
    void paintEvent(QPaintEvent* event) override;
    bool hitButton(const QPoint& place) const override;

private:
    QRect markPlace() const;
};

/// A button that has a frame around it when it is the default one, in every style.
class FormButton : public QPushButton {
public:
    using QPushButton::QPushButton;

protected:
    void paintEvent(QPaintEvent* event) override;
    virtual void drawFace(QStylePainter& painter, const QStyleOptionButton& option) const;
};

/// A button that shows its icon above its caption.
class IconAboveButton : public FormButton {
public:
    IconAboveButton(const QIcon& icon, QWidget& parent) : FormButton(icon, {}, &parent) {}

protected:
    void drawFace(QStylePainter& painter, const QStyleOptionButton& option) const override;
};

} // namespace tumble
