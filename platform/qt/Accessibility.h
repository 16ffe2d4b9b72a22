#pragma once

#include "platform/forms/Controls.h"

class QLabel;

namespace tumble {

/// Makes windows and surfaces known to screen readers as what they are.
void announceWidgets();

/// Brings what a label, which the widget shows, tells of other controls of its window to screen readers. A surface that
/// has the focus speaks when its description has become another.
void relate(const Label& label, QLabel& widget);

} // namespace tumble
