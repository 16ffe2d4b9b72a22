#include "platform/qt/Display.h"

#include <array>
#include <csignal>
#include <cstdlib>
#include <string_view>
#include <unistd.h>

namespace tumble {

namespace {

constexpr unsigned longestWait = 10; // seconds

// Async-signal-safe: a signal handler calls it too.
[[noreturn]] void giveUp(std::string_view why) {
    [[maybe_unused]] const auto written = ::write(STDERR_FILENO, why.data(), why.size());
    std::_Exit(1);
}

// A display may keep the program waiting for ever; 0 ends the wait. Systems without an alarm have a display of their
// own, which answers.
void expectAnswerWithin([[maybe_unused]] unsigned seconds) {
#ifdef SIGALRM
    static_cast<void>(std::signal(SIGALRM, [](int /*signal*/) { giveUp("tumble: the display does not answer\n"); }));
    ::alarm(seconds);
#endif
}

// Without a display the toolkit would print several lines and abort. Other messages are dropped: a display that closes
// at the session's end needs no warning.
void onMessage(QtMsgType type, const QMessageLogContext& /*context*/, const QString& /*message*/) {
    if (type == QtFatalMsg) {
        giveUp("tumble: there is no display to open a window on\n");
    }
}

} // namespace

Display::Display() {
    static std::array<char, 7> name{"tumble"};
    static std::array<char*, 2> arguments{name.data(), nullptr};
    static int count = 1;

    qInstallMessageHandler(onMessage);
    expectAnswerWithin(longestWait);
    QApplication::setDesktopFileName(QStringLiteral(TUMBLE_ID));
    application_.emplace(count, arguments.data());
    expectAnswerWithin(0);
}

} // namespace tumble
