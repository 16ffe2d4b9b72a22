#include "tools/Svg.h"

#include "platform/qt/QtCanvas.h"

#include <QString>

#include <fstream>
#include <stdexcept>

namespace tumble::art {

namespace {

std::string number(double value) {
    constexpr int digits = 5;
    return QString::number(value, 'g', digits).toStdString();
}

/// The path data of a path. Its outlines stay open: filling closes them anyway.
std::string pathData(const Path& path) {
    std::string data;
    const auto add = [&data](char command, Vec2 place) { data += command + number(place.x) + ' ' + number(place.y); };
    for (const auto& [verb, to, bends] : path.steps()) {
        if (verb == Path::Verb::Curve) {
            add('C', bends[0]);
            add(' ', bends[1]);
            add(' ', to);
        } else if (verb != Path::Verb::Close) {
            add(verb == Path::Verb::Move ? 'M' : 'L', to);
        }
    }
    return data;
}

} // namespace

void writeSvg(const std::vector<Shape>& shapes, int width, const std::filesystem::path& file) {
    std::ofstream out(file);
    out << R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 )" << width << ' ' << width << "\">\n";
    for (const Shape& shape : shapes) {
        out << R"(<path fill=")" << toQColor(shape.colour).name().toStdString() << R"(" d=")" << pathData(shape.path)
            << "\"/>\n";
    }
    out << "</svg>\n";
    if (!out.flush()) {
        throw std::runtime_error("cannot write " + file.string());
    }
}

} // namespace tumble::art
