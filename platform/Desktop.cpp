#include "platform/Desktop.h"

#include <cassert>
#include <utility>

namespace tumble {

namespace {

Desktop* desktopInUse = nullptr; // NOLINT(cppcoreguidelines-avoid-non-const-global-variables): the one there is

} // namespace

Desktop::Desktop(Application application) : application_(std::move(application)) {}

Desktop& desktop() {
    assert(desktopInUse != nullptr);
    return *desktopInUse;
}

void desktop(Desktop* inUse) {
    desktopInUse = inUse;
}

} // namespace tumble
