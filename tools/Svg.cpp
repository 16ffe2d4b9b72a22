#include "tools/Svg.h"

#include "platform/qt/QtCanvas.h"

#include <QString>

#include <fstream>
#include <stdexcept>

namespace tumble::art {

namespace {

constexpr int digits = 5;

std::string number(double value) {
    return QString::number(value, 'g', digits).toStdString();
}

/// The commands of a path. Its shapes are closed: the filling does so anyway.
std::string commands(const Path& path) {
    std::string text;
    const auto add = [&text](char command, Vec2 place) { text += command + number(place.x) + ' ' + number(place.y); };
    for (const auto& [verb, to, bends] : path.steps()) {
        switch (verb) {
        case Path::Verb::Move:
            add('M', to);
            break;
        case Path::Verb::Line:
            add('L', to);
            break;
        case Path::Verb::Curve:
            add('C', bends[0]);
            add(' ', bends[1]);
            add(' ', to);
            break;
        case Path::Verb::Close:
            break;
        }
    }
    return text;
}

} // namespace

void writeSvg(const std::vector<Shape>& shapes, int width, const std::filesystem::path& file) {
    std::ofstream out(file);
    out << R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 )" << width << ' ' << width << "\">\n";
    for (const Shape& shape : shapes) {
        out << R"(<path fill=")" << toQColor(shape.colour).name().toStdString() << R"(" d=")" << commands(shape.path)
            << "\"/>\n";
    }
    out << "</svg>\n";
    if (!out.flush()) {
        throw std::runtime_error("cannot write " + file.string());
    }
}

} // namespace tumble::art
