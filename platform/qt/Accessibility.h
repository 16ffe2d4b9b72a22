#pragma once

#include "platform/forms/Controls.h"

class QLabel;

namespace tumble {

/// Gives windows and surfaces their accessible roles.
void announceWidgets();

/// Passes to screen readers the name or description that a label, shown by the widget, gives another control of its
/// window. A focused surface speaks when its description has changed.
void relate(const Label& label, QLabel& widget);

} // namespace tumble
