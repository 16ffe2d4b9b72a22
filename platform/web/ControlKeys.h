#pragma once

#include "platform/forms/Controls.h"

#include <optional>

namespace tumble {

/// Moves a slider, or selects another option button of the group, as the key means for the control that has the focus.
/// Returns the control that has the focus afterwards; nothing for a key that means nothing to the control.
std::optional<AnyControl> press(const AnyControl& focused, Key key);

} // namespace tumble
