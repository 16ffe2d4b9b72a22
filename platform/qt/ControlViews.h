#pragma once

#include "platform/window/FormView.h"

#include <QIcon>

#include <memory>

class QWidget;

namespace tumble {

/// A view that shows a control by a widget, which belongs to its parent.
class WidgetView : public ControlView {
public:
    virtual QWidget& widget() const = 0;
};

/// Creates the widget of a control, and its view, which reports to the form's view what the player does.
std::unique_ptr<WidgetView> createView(const AnyControl& control, FormView& form, QWidget& parent, const QIcon& icon,
                                       PictureCache& pictures);

} // namespace tumble
