#include "platform/base/PixelScale.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>
#include <tuple>
#include <utility>
#include <vector>

namespace tumble {
namespace {

constexpr float nan = std::numeric_limits<float>::quiet_NaN();

TEST(PixelScaleTest, PixelIsTheOneInWhichThePlaceLiesAndBeginsAtAWholeTwip) {
    const std::vector<std::tuple<double, float, int>> cases{
        {1, 14.5F, 0},     {1, 15, 1},        {1, -0.5F, -1},      {1.25, 11.5F, 0},        {1.25, 12, 1}, {1.5, 10, 1},
        {2.5, 9015, 1502}, {1.15, 5100, 391}, {1, 1e30F, 1 << 20}, {2, -1e30F, -(1 << 20)}, {1, nan, 0}};
    for (const auto& [factor, twips, pixel] : cases) {
        EXPECT_EQ(PixelScale(factor).pixel(twips), pixel) << factor << " " << twips;
    }
    const std::vector<std::tuple<double, double, float>> beginnings{
        {1, 7, 105}, {1.25, 7, 84}, {2, 7, 52}, {2.5, -1, -6}, {1, 0.999999999, 15}, {1, 0.9999, 14}};
    for (const auto& [factor, pixel, twips] : beginnings) {
        EXPECT_EQ(PixelScale(factor).twips(pixel), twips) << factor << " " << pixel;
    }
    EXPECT_EQ(PixelScale(2).pixels({15, 30, 52.4F, 60}), (PixelRect{2, 4, 6, 8}));
    EXPECT_TRUE(PixelScale(2).pixels({15, 30, 14, 60}).empty());
    EXPECT_TRUE(PixelScale(2).pixels({15, nan, 45, 60}).empty());
}

TEST(PixelScaleTest, FactorIsBroughtIntoReasonAndPenIsTheNearestWholeTiesDown) {
    const std::vector<std::tuple<double, double, int>> cases{{-2, 0.75, 1}, {0.9, 0.9, 1}, {nan, 1, 1},
                                                             {1, 1, 1},     {1.5, 1.5, 1}, {1.51, 1.51, 2},
                                                             {2.5, 2.5, 2}, {17, 16, 16}};
    for (const auto& [given, factor, pen] : cases) {
        EXPECT_EQ(PixelScale(given).factor(), factor);
        EXPECT_EQ(PixelScale(given).pen(), pen) << given;
    }
}

TEST(RasterizeLineTest, LevelAndUprightLinesStayInsideTheClip) {
    const std::vector<std::tuple<int, PixelPoint, PixelPoint, PixelRect, PixelRect>> cases{
        {3, {20, 10}, {10, 10}, {0, 0, 50, 50}, {9, 9, 21, 11}},
        {2, {8, 8}, {8, 8}, {0, 0, 50, 50}, {7, 7, 8, 8}},
        {3, {2, 2}, {52, 2}, {2, 2, 50, 50}, {2, 2, 50, 4}},     // moved in from the left and the top
        {3, {52, 52}, {52, 8}, {2, 2, 50, 50}, {48, 7, 50, 50}}, // and from the right and the bottom
        {3, {2, 2}, {2, 52}, {2, 2, 3, 50}, {2, 2, 3, 50}}};     // a clip narrower than the pen
    for (const auto& [pen, from, to, clip, block] : cases) {
        EXPECT_EQ(rasterizeLine(from, to, pen, clip), std::vector({block})) << from.x << "," << from.y;
    }
}

TEST(RasterizeLineTest, SlantingLinesAreWholeFromEndToEndAndMirrored) {
    for (const double factor : {0.75, 1.0, 1.75, 2.5, 4.0}) {
        const PixelScale scale(factor);
        const PixelRect item = scale.pixels({0, 0, 1232, 1917});
        const auto down = rasterizeLine({0, 0}, {item.right, item.bottom}, scale.pen(), item);
        const auto up = rasterizeLine({0, item.bottom}, {item.right, 0}, scale.pen(), item);
        ASSERT_EQ(down.size(), static_cast<std::size_t>(item.height()));
        for (std::size_t row = 0; row < down.size(); ++row) {
            EXPECT_EQ(down[row].left, item.right - up[row].right) << factor;
            EXPECT_EQ(down[row].right, item.right - up[row].left) << factor;
            EXPECT_TRUE(row == 0 || down[row].left <= down[row - 1].right + 1) << "a gap";
        }
        EXPECT_EQ(down.front().left, item.left);
        EXPECT_EQ(down.back().right, item.right);
    }
}

TEST(RectTest, SidesOfABoxLieInsideItAndACoverLeavesTheRest) {
    EXPECT_EQ(boxSides({10, 20, 30, 40}, 3),
              (std::array<PixelRect, 4>{{{10, 20, 30, 22}, {10, 38, 30, 40}, {10, 20, 12, 40}, {28, 20, 30, 40}}}));
    const PixelRect small{0, 0, 1, 1};
    EXPECT_EQ(boxSides(small, 3), (std::array{small, small, small, small}));
    const Rect place{10, 20, 30, 40};
    using Case = std::pair<Rect, Rect>;
    for (const auto& [cover, rest] : {Case{{0, 20, 30, 25}, {10, 25, 30, 40}}, Case{{10, 35, 99, 40}, {10, 20, 30, 35}},
                                      Case{{10, 21, 15, 40}, place}, Case{{10, 20, 29, 25}, place}}) {
        EXPECT_EQ(place.subtracted(cover), rest);
    }
}

} // namespace
} // namespace tumble
