// Writes pictures on which a person can judge the cards: contact-sheet OUTPUT-FOLDER
// Says which two faces are the hardest to tell apart by the sliver that a spread leaves of them.

#include "art/Pictures.h"

#include <QPainter>
#include <QString>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <iostream>
#include <stdexcept>

namespace tumble {

namespace {

constexpr int sheetColumns = 13;
constexpr int gap = 4;
constexpr int sliverWidth = 10;
constexpr int sliverCount = jokerPicture + 1;
constexpr std::array sliverCardWidths = {49, 60, 82};
constexpr QRgb ground = qRgb(30, 90, 64);

void drawBorder(QImage& card) {
    QPainter painter(&card);
    painter.drawRect(0, 0, card.width() - 1, card.height() - 1);
}

/// Every picture at a whole multiple of its size: ranks across and suits down, then the joker and the backs.
QImage sheet(int scale) {
    const QSize size = cardSize * scale;
    const QSize step = size + QSize(gap, gap);
    QImage image(step.width() * sheetColumns + gap, step.height() * (suitCount + 1) + gap, QImage::Format_RGB32);
    image.fill(ground);
    QPainter painter(&image);
    for (int picture = 0; picture < pictureCount; ++picture) {
        const bool isFace = picture < faceCount;
        const int column = isFace ? picture / suitCount : picture - faceCount;
        const int row = isFace ? picture % suitCount : suitCount;
        QImage card = drawPicture(picture, size);
        drawBorder(card);
        painter.drawImage(gap + column * step.width(), gap + row * step.height(), card);
    }
    return image;
}

/// What a spread shows of the upper half of each face when the cards are reduced or enlarged to a width.
std::vector<QImage> slivers(int width) {
    const QSize size(width, (width * cardSize.height() + cardSize.width() / 2) / cardSize.width());
    std::vector<QImage> strips;
    for (int picture = 0; picture < sliverCount; ++picture) {
        QImage card = drawPicture(picture, cardSize).scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        drawBorder(card);
        strips.push_back(card.copy(0, 0, sliverWidth, size.height() / 2));
    }
    return strips;
}

bool clearlyDiffer(QRgb a, QRgb b) {
    constexpr int clear = 64;
    return std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)), std::abs(qBlue(a) - qBlue(b))}) >=
           clear;
}

int differences(const QImage& a, const QImage& b) {
    int count = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            count += clearlyDiffer(a.pixel(x, y), b.pixel(x, y)) ? 1 : 0;
        }
    }
    return count;
}

void reportWorstPair(int width) {
    const std::vector<QImage> strips = slivers(width);
    int fewest = sliverWidth * cardSize.height();
    std::string pair;
    for (int first = 0; first < sliverCount; ++first) {
        for (int second = first + 1; second < sliverCount; ++second) {
            const int count =
                differences(strips[static_cast<std::size_t>(first)], strips[static_cast<std::size_t>(second)]);
            if (count < fewest) {
                fewest = count;
                pair = pictureKey(first) + " and " + pictureKey(second);
            }
        }
    }
    std::cout << width << " pixels wide: " << pair << " differ in " << fewest << " pixels\n";
}

/// The slivers at each width, magnified.
QImage sliverSheet() {
    constexpr int magnified = 3;
    constexpr QSize step = QSize(sliverWidth + 1, 70) * magnified;
    QImage image(sliverCount * step.width(), static_cast<int>(sliverCardWidths.size()) * step.height(),
                 QImage::Format_RGB32);
    image.fill(ground);
    QPainter painter(&image);
    QPoint corner(0, 0);
    for (const int width : sliverCardWidths) {
        for (const QImage& strip : slivers(width)) {
            painter.drawImage(corner, strip.scaled(strip.size() * magnified));
            corner.rx() += step.width();
        }
        corner = QPoint(0, corner.y() + step.height());
    }
    return image;
}

void save(const QImage& image, const std::filesystem::path& file) {
    if (!image.save(QString::fromStdString(file.string()))) {
        throw std::runtime_error("cannot write " + file.string());
    }
}

void writeSheets(const std::filesystem::path& folder) {
    std::filesystem::create_directories(folder);
    for (const int scale : {1, 2, 4}) {
        save(sheet(scale), folder / ("cards" + std::to_string(scale) + "x.png"));
    }
    save(sliverSheet(), folder / "slivers.png");
    for (const int width : sliverCardWidths) {
        reportWorstPair(width);
    }
}

} // namespace

} // namespace tumble

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: contact-sheet OUTPUT-FOLDER\n";
        return 2;
    }
    try {
        tumble::writeSheets(argv[1]);
    } catch (const std::exception& error) {
        std::cerr << "contact-sheet: " << error.what() << '\n';
        return 1;
    }
    return 0;
}
