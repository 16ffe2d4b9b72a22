#include "platform/qt/Display.h"

#include <QGuiApplication>
#include <QLoggingCategory>

#include <array>
#include <csignal>
#include <cstdlib>
#include <string_view>
#include <unistd.h>

namespace tumble {

namespace {

constexpr unsigned longestWait = 10; // seconds

// Also called from a signal handler: nothing here but what may be.
[[noreturn]] void giveUp(std::string_view why) {
    [[maybe_unused]] const auto written = ::write(STDERR_FILENO, why.data(), why.size());
    std::_Exit(1);
}

// A display may keep the program waiting for ever, on systems that know an alarm; elsewhere it is the system's own.
// No seconds: it has answered.
void expectAnswerWithin([[maybe_unused]] unsigned seconds) {
#ifdef SIGALRM
    static_cast<void>(std::signal(SIGALRM, [](int /*signal*/) { giveUp("tumble: the display does not answer\n"); }));
    ::alarm(seconds);
#endif
}

// The toolkit tells its troubles with the display in several lines, and then aborts where it finds none. What becomes
// of a display at the session's end is no news to anybody.
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
    QGuiApplication::setDesktopFileName(QStringLiteral(TUMBLE_ID));
    application_.emplace(count, arguments.data());
    expectAnswerWithin(0);
}

} // namespace tumble
