// Writes contact sheets of the cards for a person to judge: contact-sheet OUTPUT-FOLDER

#include "art/Drawing.h"
#include "art/Pictures.h"
#include "platform/qt/QtCanvas.h"

#include <QImageWriter>
#include <QPainter>
#include <QString>

#include <algorithm>
#include <cstddef>
#include <exception>
#include <filesystem>
#include <iostream>
#include <stdexcept>
#include <vector>

namespace tumble::art {

namespace {

constexpr int gap = 4;
constexpr Colour ground = rgb(30, 90, 64);

QImage bordered(int picture, QSize size) {
    QtCanvas card({size.width(), size.height()}, ground);
    drawPicture(picture, card);
    for (const PixelRect& side : boxSides(card.bounds(), 1)) {
        card.fill(side, 0);
    }
    return card.image();
}

QImage emptySheet(QSize size) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(toQColor(ground));
    return image;
}

/// All pictures at a whole multiple of the designed size, a suit in each row.
QImage sheet(int scale) {
    const QSize size(cardSize.width * scale, cardSize.height * scale);
    const QSize step = size + QSize(gap, gap);
    constexpr int columns = (pictureCount + suitCount - 1) / suitCount;
    QImage image = emptySheet({columns * step.width() + gap, suitCount * step.height() + gap});
    QPainter painter(&image);
    for (int picture = 0; picture < pictureCount; ++picture) {
        painter.drawImage(gap + picture / suitCount * step.width(), gap + picture % suitCount * step.height(),
                          bordered(picture, size));
    }
    return image;
}

/// The images one below the other.
QImage stacked(const std::vector<QImage>& images) {
    QSize size(0, 0);
    for (const QImage& image : images) {
        size = QSize(std::max(size.width(), image.width()), size.height() + image.height());
    }
    QImage whole = emptySheet(size);
    QPainter painter(&whole);
    int y = 0;
    for (const QImage& image : images) {
        painter.drawImage(0, y, image);
        y += image.height();
    }
    return whole;
}

/// The parts of the faces that a spread leaves uncovered, at three sizes of the card: magnified, and as they are.
QImage slivers() {
    constexpr int magnified = 3;
    constexpr QSize strip(10, 66);
    std::vector<QImage> rows;
    for (const QSize size : {QSize(49, 76), QSize(60, 94), QSize(83, 128)}) {
        QImage row = emptySheet({(jokerPicture + 1) * strip.width() + gap, strip.height() + gap});
        QPainter painter(&row);
        for (int picture = 0; picture <= jokerPicture; ++picture) {
            painter.drawImage(picture * strip.width(), 0, bordered(picture, size).copy(QRect({0, 0}, strip)));
        }
        painter.end();
        rows.push_back(row.scaled(row.size() * magnified));
        rows.push_back(row);
    }
    return stacked(rows);
}

/// The image in 256 colours or fewer, for a small file.
QImage reduced(const QImage& image) {
    constexpr std::size_t faceColours = 240;
    std::vector<Colour> colours = picturePalette(0);
    colours.resize(faceColours);
    colours.push_back(ground);
    for (int back = firstBackPicture; back < pictureCount; ++back) {
        const std::vector<Colour> table = picturePalette(back);
        colours.insert(colours.end(), table.begin(), table.begin() + 3);
    }
    QList<QRgb> palette;
    for (const Colour colour : colours) {
        palette.push_back(toQColor(colour).rgb());
    }
    return image.convertToFormat(QImage::Format_Indexed8, palette, Qt::ThresholdDither | Qt::AvoidDither);
}

void save(const QImage& image, const std::filesystem::path& file) {
    constexpr int smallest = 100;
    QImageWriter writer(QString::fromStdString(file.string()));
    writer.setCompression(smallest);
    if (!writer.write(reduced(image))) {
        throw std::runtime_error("cannot write " + file.string());
    }
}

} // namespace

} // namespace tumble::art

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: contact-sheet OUTPUT-FOLDER\n";
        return 2;
    }
    try {
        const std::filesystem::path folder = argv[1];
        std::filesystem::create_directories(folder);
        tumble::art::save(tumble::art::stacked({tumble::art::sheet(1), tumble::art::sheet(2), tumble::art::sheet(4)}),
                          folder / "cards.png");
        tumble::art::save(tumble::art::slivers(), folder / "slivers.png");
    } catch (const std::exception& error) {
        std::cerr << "contact-sheet: " << error.what() << '\n';
        return 1;
    }
    return 0;
}
