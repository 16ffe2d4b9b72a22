#include "tools/Svg.h"

#include <QString>

#include <fstream>
#include <stdexcept>

namespace tumble {

namespace {

constexpr int digits = 5;

std::string number(double value) {
    return QString::number(value, 'g', digits).toStdString();
}

/// The commands of a path. Its shapes are closed: the filling does so anyway.
std::string commands(const QPainterPath& path) {
    std::string text;
    for (int i = 0; i < path.elementCount(); ++i) {
        const QPainterPath::Element& element = path.elementAt(i);
        switch (element.type) {
        case QPainterPath::MoveToElement:
            text += 'M';
            break;
        case QPainterPath::LineToElement:
            text += 'L';
            break;
        case QPainterPath::CurveToElement:
            text += 'C';
            break;
        case QPainterPath::CurveToDataElement:
            text += ' ';
            break;
        }
        text += number(element.x) + ' ' + number(element.y);
    }
    return text;
}

} // namespace

void writeSvg(const std::vector<Shape>& shapes, int width, const std::filesystem::path& file) {
    std::ofstream out(file);
    out << R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 )" << width << ' ' << width << "\">\n";
    for (const Shape& shape : shapes) {
        out << R"(<path fill=")" << QColor(shape.colour).name().toStdString() << R"(" d=")" << commands(shape.outline)
            << "\"/>\n";
    }
    out << "</svg>\n";
    if (!out.flush()) {
        throw std::runtime_error("cannot write " + file.string());
    }
}

} // namespace tumble
