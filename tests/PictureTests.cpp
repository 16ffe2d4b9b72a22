#include "art/Glyphs.h"
#include "art/Pictures.h"
#include "platform/memory/Raster.h"
#include "platform/paint/PictureCache.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

namespace tumble {
namespace {

constexpr Colour white = rgb(255, 255, 255);
constexpr Colour red = rgb(255, 0, 0);

bool draw(const Picture& picture, Canvas& canvas) {
    return art::drawPicture(picture.Key, canvas);
}

TEST(PictureCacheTest, WhereThereIsNoPictureTheCrossedCardShows) {
    constexpr PixelSize usual{82, 128};
    const std::vector<std::tuple<std::string, PixelSize, bool>> cases{
        {"AceSpades", usual, true}, {"Tumble", {1, 1}, true},       {"CardBack4", {4096, 1}, true},
        {"", usual, false},         {"OneClubs", usual, false},     {"CardBack5", usual, false},
        {"joker", usual, false},    {"AceSpades", {0, 128}, false}, {"AceSpades", {82, -1}, false},
        {"Joker", {1, 4097}, false}};
    for (const auto& [key, size, known] : cases) {
        PictureCache pictures(draw);
        const Picture picture(key, {});
        Raster canvas(usual, 0);
        EXPECT_EQ(pictures.image(picture, size, canvas) != nullptr, known) << key << size.width;
        pictures.paint(canvas, picture, size.at({}), canvas.bounds());
        if (!known && !size.empty()) {
            EXPECT_EQ(canvas.at({0, 0}), red) << key;
            EXPECT_EQ(canvas.at({41, 64}), size == usual ? red : 0) << key;
            EXPECT_EQ(canvas.at({41, 5}), size == usual ? white : 0) << key;
        }
    }
    PictureCache pictures(draw);
    Raster canvas({300, 300}, 0);
    const PixelRect part{.left = 100, .top = 0, .right = 299, .bottom = 199};
    pictures.paint(canvas, Picture("Joker", {}), {0, 0, 4999, 4999}, part);
    EXPECT_EQ(canvas.at({110, 110}), red);
    EXPECT_EQ(canvas.at({299, 0}), white);
    EXPECT_EQ(canvas.at({50, 50}), 0) << "outside the part";
}

TEST(PictureCacheTest, KeepsWhatIsUsed) {
    int made = 0;
    PictureCache pictures([&made](const auto&, auto&) { return ++made > 0; });
    const Picture any("any", {});
    const Raster like({1, 1}, white);
    const auto madeFor = [&](int width) {
        const int before = made;
        EXPECT_EQ(pictures.image(any, {width, 1}, like)->size().width, width);
        return made - before;
    };
    constexpr int inUse = 1;
    EXPECT_EQ(madeFor(inUse), 1);
    for (int width = 2; width <= 1000; ++width) {
        EXPECT_EQ(madeFor(width) + madeFor(inUse), 1) << width;
    }
    EXPECT_EQ(madeFor(1000 - 104), 0) << "a table of two packs";
    EXPECT_EQ(madeFor(2), 1) << "used long ago";
}

// Without antialiasing. Every picture fills any canvas and shows more than its ground.
TEST(PictureTest, IsDrawnAtAnySize) {
    for (const PixelSize size : {PixelSize{1, 1}, {2, 3}, {7, 5}, {83, 128}}) {
        for (int picture = 0; picture < art::pictureCount; ++picture) {
            Raster canvas(size, {});
            ASSERT_TRUE(art::drawPicture(art::pictureKey(picture), canvas));
            std::vector<Colour> colours;
            for (int y = 0; y < size.height; ++y) {
                for (int x = 0; x < size.width; ++x) {
                    colours.push_back(canvas.at({x, y}));
                }
            }
            std::sort(colours.begin(), colours.end());
            EXPECT_NE(colours.front(), Raster::clear) << art::pictureKey(picture);
            EXPECT_TRUE(size.width < 83 || colours.front() != colours.back()) << art::pictureKey(picture);
        }
    }
}

TEST(GlyphTest, StraightStrokesHaveTheirEdgesOnWholePixels) {
    for (const char character : std::string("A234567890JQKOER")) {
        for (int width = 4; width < 40; ++width) {
            const auto& [centreLine, strokeWidth] = art::glyph(character, {width, width * 13 / 8});
            ASSERT_GE(strokeWidth, 1);
            int strokes = 0;
            Vec2 from;
            for (const auto& [verb, to, bends] : centreLine.steps()) {
                for (const auto& [before, after] : {std::pair(from.x, to.x), std::pair(from.y, to.y)}) {
                    if (verb == Path::Verb::Line && before == after) {
                        EXPECT_EQ(std::fmod(after - strokeWidth / 2.0, 1), 0) << character << " " << width << " wide";
                        ++strokes;
                    }
                }
                from = to;
            }
            EXPECT_TRUE(strokes > 0 || std::string("3689O").find(character) != std::string::npos) << character;
        }
    }
}

} // namespace
} // namespace tumble
