#include "art/Outline.h"

#include <QTransform>

#include <algorithm>
#include <charconv>
#include <string_view>
#include <system_error>

namespace tumble {

namespace {

/// Reads the commands and numbers of an outline one after the other.
class Reader {
public:
    explicit Reader(std::string_view text) : text_(text) {}

    /// The next command, or 0 at the end.
    char command() {
        skipSpaces();
        if (text_.empty()) {
            return 0;
        }
        const char found = text_.front();
        text_.remove_prefix(1);
        return found;
    }

    double number() {
        skipSpaces();
        double value = 0;
        const auto [rest, error] = std::from_chars(text_.begin(), text_.end(), value);
        if (error != std::errc()) {
            qFatal("An outline lacks a number before '%s'", text_.data());
        }
        text_.remove_prefix(static_cast<std::size_t>(rest - text_.begin()));
        return value;
    }

    QPointF point() {
        const double x = number();
        return {x, number()};
    }

private:
    void skipSpaces() { text_.remove_prefix(std::min(text_.find_first_not_of(' '), text_.size())); }

    std::string_view text_;
};

void readCommand(char command, Reader& reader, QPainterPath& path) {
    const QPointF first = command == 'Z' ? QPointF() : reader.point();
    switch (command) {
    case 'M':
        path.moveTo(first);
        break;
    case 'L':
        path.lineTo(first);
        break;
    case 'Q':
        path.quadTo(first, reader.point());
        break;
    case 'C': {
        const QPointF second = reader.point();
        path.cubicTo(first, second, reader.point());
        break;
    }
    case 'O': {
        const double radius = reader.number();
        path.addEllipse(first, radius, radius);
        break;
    }
    case 'Z':
        path.closeSubpath();
        break;
    default:
        qFatal("An outline has no command '%c'", command);
    }
}

} // namespace

QPainterPath outline(const char* commands) {
    Reader reader(commands);
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    while (const char command = reader.command()) {
        readCommand(command, reader, path);
    }
    return path;
}

QPainterPath mirrored(const QPainterPath& path) {
    return QTransform::fromScale(-1, 1).map(path);
}

QPainterPath completed(const QPainterPath& half) {
    QPainterPath whole = half;
    whole.connectPath(mirrored(half).toReversed());
    whole.closeSubpath();
    return whole;
}

} // namespace tumble
