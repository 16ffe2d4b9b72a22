#include "platform/forms/Desktop.h"

#include <cassert>
#include <utility>

namespace tumble {

namespace {

Desktop* desktopInUse = nullptr; // NOLINT(cppcoreguidelines-avoid-non-const-global-variables): the one there is

} // namespace

Desktop::Desktop(Application application) : application_(std::move(application)) {}

Desktop::Modal::Modal(Desktop& desktop, const Form& form) : desktop_(desktop) {
    desktop_.modal_.push_back(&form);
}

Desktop::Modal::~Modal() {
    desktop_.modal_.pop_back();
}

Desktop& desktop() {
    assert(desktopInUse != nullptr);
    return *desktopInUse;
}

void desktop(Desktop* inUse) {
    desktopInUse = inUse;
}

} // namespace tumble
