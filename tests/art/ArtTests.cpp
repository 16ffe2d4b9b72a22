#include "art/Icon.h"
#include "art/Pictures.h"
#include "platform/qt/QtCanvas.h"

#include <gtest/gtest.h>

#include <QPainter>
#include <QString>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace tumble::art {

namespace {

/// Sizes in pixels at which cards show: usual ones, those a pixel larger by rounding, and large ones.
constexpr std::array shownSizes = {QSize(49, 76),  QSize(50, 77),  QSize(60, 94),   QSize(61, 94),
                                   QSize(83, 128), QSize(84, 129), QSize(124, 192), QSize(165, 256)};

QImage drawn(int picture, QSize size) {
    QtCanvas canvas({size.width(), size.height()}, rgb(255, 255, 255));
    drawPicture(picture, canvas);
    return canvas.image();
}

QImage drawnIcon(int width, std::optional<Colour> ground, int margin = 0) {
    QtCanvas canvas({width, width}, ground);
    drawIcon(canvas, margin);
    return canvas.image();
}

QImage fileImage(const std::string& name) {
    return QImage(QString::fromStdString(TUMBLE_ASSETS "/" + name)).convertToFormat(QImage::Format_ARGB32);
}

/// The greatest difference in a channel.
int difference(QRgb a, QRgb b) {
    return std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)), std::abs(qBlue(a) - qBlue(b)),
                     std::abs(qAlpha(a) - qAlpha(b))});
}

/// How many pixels of the area differ by at least that much.
int differences(const QImage& a, const QImage& b, int least, const QRect& area) {
    int count = 0;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            count += difference(a.pixel(x, y), b.pixel(x, y)) >= least ? 1 : 0;
        }
    }
    return count;
}

bool isCourt(int picture) {
    return picture >= 10 * suitCount && picture < faceCount;
}

std::set<QRgb> coloursOf(const QImage& image) {
    std::set<QRgb> colours;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            colours.insert(image.pixel(x, y));
        }
    }
    return colours;
}

} // namespace

// The files have fewer colours than the drawings, and releases of the toolkit antialias a little differently.
TEST(Assets, AreWhatTheProgramDraws) {
    constexpr int clear = 64;
    const auto expectDrawn = [](const std::string& name, const QImage& image) {
        const QImage file = fileImage(name);
        ASSERT_EQ(file.size(), image.size()) << name;
        EXPECT_LE(differences(file, image.convertToFormat(QImage::Format_ARGB32), clear, file.rect()), 5) << name;
    };
    for (int picture = 0; picture < pictureCount; ++picture) {
        expectDrawn(pictureKey(picture) + ".gif", drawn(picture, QSize(81, 126)));
    }
    expectDrawn("tumble.gif", drawnIcon(32, rgb(255, 255, 255)));
    for (const int width : {16, 24, 32, 48, 64, 128, 192, 256, 512}) {
        expectDrawn("icons/tumble-" + std::to_string(width) + ".png", drawnIcon(width, {}));
    }
    for (const int width : {192, 512}) {
        expectDrawn("icons/tumble-maskable-" + std::to_string(width) + ".png",
                    drawnIcon(width, rgb(255, 255, 255), width * 3 / 16));
    }
}

// Launchers crop them to shapes that contain a circle of four fifths of the width.
TEST(Assets, MaskableIconsKeepInsideTheCircleThatAlwaysShows) {
    for (const int width : {192, 512}) {
        QImage icon = fileImage("icons/tumble-maskable-" + std::to_string(width) + ".png");
        QPainter painter(&icon);
        painter.setPen(Qt::NoPen);
        painter.setBrush(Qt::white);
        painter.drawEllipse(QPointF(width / 2.0, width / 2.0), 0.4 * width, 0.4 * width);
        painter.end();
        EXPECT_EQ(coloursOf(icon), std::set{qRgb(255, 255, 255)}) << width;
    }
}

TEST(Assets, BacksHaveThreeColoursEach) {
    const std::array<std::set<QRgb>, backCount> expected = {{
        {qRgb(192, 192, 255), qRgb(0, 0, 255), qRgb(255, 255, 0)},
        {qRgb(255, 255, 128), qRgb(128, 255, 255), qRgb(0, 255, 0)},
        {qRgb(255, 128, 64), qRgb(255, 0, 128), qRgb(128, 64, 0)},
        {qRgb(0, 255, 128), qRgb(128, 128, 0), qRgb(0, 128, 0)},
    }};
    for (std::size_t back = 0; back < backCount; ++back) {
        EXPECT_EQ(coloursOf(fileImage("CardBack" + std::to_string(back + 1) + ".gif")), expected.at(back));
    }
}

// A back must not reveal that its card is rotated or a pixel wider. Pips are symmetrical about the middle.
TEST(Pictures, AreSymmetricalAtEverySize) {
    constexpr int smoothing = 48;
    for (int picture = 0; picture < pictureCount; ++picture) {
        const int rank = picture / suitCount + 1;
        const bool isBack = picture >= firstBackPicture;
        for (const QSize size : shownSizes) {
            const QImage card = drawn(picture, size);
            const QRect besideIndex = card.rect().adjusted(size.width() / 7 + 1, 0, -size.width() / 7 - 1, 0);
            if (isBack || isCourt(picture) || rank == 2 || rank == 4 || rank == 10) {
                EXPECT_EQ(card, card.mirrored(true, true)) << pictureKey(picture) << size.width();
            }
            if (isBack) {
                EXPECT_EQ(card, card.mirrored(true, false)) << pictureKey(picture) << size.width();
            } else if (rank <= 10) {
                EXPECT_EQ(differences(card, card.mirrored(true, false), smoothing, besideIndex), 0)
                    << pictureKey(picture) << size.width();
            }
        }
    }
}

TEST(Pictures, FacesLeaveTheBorderFree) {
    for (int picture = 0; picture <= jokerPicture; ++picture) {
        for (const QSize size : shownSizes) {
            QImage face = drawn(picture, size);
            for (int y = 1; y < size.height() - 1; ++y) {
                std::fill_n(reinterpret_cast<QRgb*>(face.scanLine(y)) + 1, size.width() - 2, qRgb(255, 255, 255));
            }
            EXPECT_EQ(coloursOf(face), std::set{qRgb(255, 255, 255)}) << pictureKey(picture) << size.width();
        }
    }
}

// A spread leaves ten columns of each card uncovered, the first of them its border. The next row covers whatever is
// more than 1000 twips below the top.
TEST(Pictures, SliversOfAnyTwoFacesDiffer) {
    constexpr int clear = 64;
    constexpr QRect sliver(1, 1, 9, 1000 / 15 - 1);
    for (const QSize size : {QSize(49, 76), QSize(60, 94), QSize(82, 127), QSize(83, 128), QSize(84, 129)}) {
        std::vector<QImage> faces;
        for (int picture = 0; picture <= jokerPicture; ++picture) {
            faces.push_back(drawn(picture, size));
        }
        for (std::size_t first = 0; first < faces.size(); ++first) {
            for (std::size_t second = first + 1; second < faces.size(); ++second) {
                EXPECT_GE(differences(faces[first], faces[second], clear, sliver), 6)
                    << pictureKey(static_cast<int>(first)) << " and " << pictureKey(static_cast<int>(second)) << " at "
                    << size.width();
            }
        }
    }
}

} // namespace tumble::art
