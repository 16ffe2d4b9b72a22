#include "art/Outline.h"

#include <QTransform>

#include <sstream>

namespace tumble {

namespace {

QPointF readPoint(std::istream& in) {
    double x = 0;
    double y = 0;
    in >> x >> y;
    return {x, y};
}

void readCommand(char command, std::istream& in, QPainterPath& path) {
    const QPointF first = command == 'Z' ? QPointF() : readPoint(in);
    switch (command) {
    case 'M':
        path.moveTo(first);
        break;
    case 'L':
        path.lineTo(first);
        break;
    case 'Q':
        path.quadTo(first, readPoint(in));
        break;
    case 'C': {
        const QPointF second = readPoint(in);
        path.cubicTo(first, second, readPoint(in));
        break;
    }
    case 'O': {
        double radius = 0;
        in >> radius;
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
    std::istringstream in(commands);
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    for (char command = 0; in >> command;) {
        readCommand(command, in, path);
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
