#pragma once

#include <QGroupBox>
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

/// A group box whose caption breaks its upper line, so that the whole box below is its controls'.
class CaptionedFrame : public QGroupBox {
public:
    using QGroupBox::QGroupBox;

    /// In logical pixels; the upper line runs through the caption's middle.
    void captionHeight(int height) { captionHeight_ = height; }

    /// Where the caption goes, in the frame's own logical pixels.
    QRect captionArea() const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    int captionHeight_ = 0;
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
    using FormButton::FormButton;

protected:
    void drawFace(QStylePainter& painter, const QStyleOptionButton& option) const override;
};

} // namespace tumble
