#pragma once

#include <QApplication>

#include <optional>

namespace tumble {

/// The connection to the display. Where there is none, or none that answers within some seconds, it ends the process
/// with one line on standard error and status 1. The toolkit gets no command line.
class Display {
public:
    Display();

private:
    std::optional<QApplication> application_;
};

} // namespace tumble
