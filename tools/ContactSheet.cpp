// Writes pictures on which a person can judge the cards: contact-sheet OUTPUT-FOLDER

#include "art/Pictures.h"

#include <QImageWriter>
#include <QPainter>
#include <QString>

#include <algorithm>
#include <cstddef>
#include <exception>
#include <filesystem>
#include <iostream>
#include <numeric>
#include <stdexcept>
#include <vector>

namespace tumble {

namespace {

constexpr int gap = 4;
constexpr QRgb ground = qRgb(30, 90, 64);

QImage bordered(int picture, QSize size) {
    QImage card = drawPicture(picture, size);
    QPainter painter(&card);
    painter.drawRect(0, 0, size.width() - 1, size.height() - 1);
    return card;
}

QImage emptySheet(QSize size) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(ground);
    return image;
}

/// Pictures at a whole multiple of their size, in columns of so many.
QImage sheet(const std::vector<int>& pictures, int rows, int scale) {
    const QSize size = cardSize * scale;
    const QSize step = size + QSize(gap, gap);
    const int count = static_cast<int>(pictures.size());
    QImage image = emptySheet({(count + rows - 1) / rows * step.width() + gap, rows * step.height() + gap});
    QPainter painter(&image);
    for (int i = 0; i < count; ++i) {
        painter.drawImage(gap + i / rows * step.width(), gap + i % rows * step.height(),
                          bordered(pictures[static_cast<std::size_t>(i)], size));
    }
    return image;
}

/// One below the other.
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

/// All pictures, all at twice their size, and four times as large those that have more to them than pips.
QImage cards() {
    std::vector<int> all(pictureCount);
    std::iota(all.begin(), all.end(), 0);
    std::vector<int> rich(all.begin() + std::ptrdiff_t{10} * suitCount, all.end());
    rich.push_back(static_cast<int>(Suit::Spades));
    return stacked({sheet(all, suitCount, 1), sheet(all, suitCount, 2), sheet(rich, 3, 4)});
}

/// What a spread shows of the faces, at three sizes of the card: magnified, and as it is.
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

/// As many colours as fit into a small file.
QImage reduced(const QImage& image) {
    constexpr std::size_t inks = 240;
    std::vector<QRgb> colours = pictureColours(0);
    colours.resize(inks);
    colours.push_back(ground);
    for (int back = firstBackPicture; back < pictureCount; ++back) {
        const std::vector<QRgb> table = pictureColours(back);
        colours.insert(colours.end(), table.begin(), table.begin() + 3);
    }
    return image.convertToFormat(QImage::Format_Indexed8, QList<QRgb>(colours.begin(), colours.end()),
                                 Qt::ThresholdDither | Qt::AvoidDither);
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

} // namespace tumble

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: contact-sheet OUTPUT-FOLDER\n";
        return 2;
    }
    try {
        const std::filesystem::path folder = argv[1];
        std::filesystem::create_directories(folder);
        tumble::save(tumble::cards(), folder / "cards.png");
        tumble::save(tumble::slivers(), folder / "slivers.png");
    } catch (const std::exception& error) {
        std::cerr << "contact-sheet: " << error.what() << '\n';
        return 1;
    }
    return 0;
}
