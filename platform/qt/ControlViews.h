#pragma once

#include "platform/window/FormView.h"

#include <memory>

class QWidget;

namespace tumble {

/// A view that shows a control by a widget. The widget's parent owns it.
class WidgetView : public ControlView {
public:
    virtual QWidget& widget() const = 0;
};

/// Creates a control's widget and its view, which reports the player's input to the form's view.
std::unique_ptr<WidgetView> createView(const AnyControl& control, FormView& form, QWidget& parent,
                                       PictureCache& pictures);

} // namespace tumble
