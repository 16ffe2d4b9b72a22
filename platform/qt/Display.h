#pragma once

#include <QApplication>

#include <optional>

namespace tumble {

/// The connection to the display. If there is none, or it does not answer within some seconds, the process ends with
/// one line on standard error and status 1. The toolkit receives no command line.
class Display {
public:
    Display();

private:
    std::optional<QApplication> application_;
};

} // namespace tumble
