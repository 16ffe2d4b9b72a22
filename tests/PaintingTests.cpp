#include "platform/base/PixelScale.h"
#include "platform/memory/Raster.h"
#include "platform/paint/Picture.h"
#include "platform/paint/Replay.h"
#include "tests/Table.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>
#include <tuple>

namespace tumble {
namespace {

constexpr Colour red = 0x0000FF;
constexpr Colour blue = 0xFF0000;
constexpr float nan = std::numeric_limits<float>::quiet_NaN();

DisplayItem fill(const Rect& place, Colour colour) {
    return {.place = place, .operations = {FillOperation{place, colour}}};
}
DisplayItem erasure(const Rect& place) {
    return fill(place, tableGreen);
}

DisplayList painted(const std::vector<DisplayItem>& items) {
    DisplayList list(3000, 2000, tableGreen);
    for (const DisplayItem& item : items) {
        list.add(item);
    }
    return list;
}

TEST(PaintingTest, ListsWhatStillShows) {
    const Picture card("card", {});
    const DisplayItem lower = fill({100, 100, 199, 299}, red);
    const DisplayItem far = fill({500, 0, 509, 9}, blue);
    const Rect wide{90, 90, 209, 309};
    const std::vector<std::pair<std::vector<DisplayItem>, std::string>> cases{
        // What covers another item lets it go.
        {{lower, fill({100, 100, 199, 299}, blue)}, "blue 100,100"},
        {{lower, {wide, {PictureOperation{&card, wide}, BoxOperation{wide, 0}}}}, "card 90,90"},
        {{lower, fill({100, 101, 199, 299}, blue)}, "red 100,100; blue 100,101"},
        {{lower, fill({100, 100, 199, 298}, blue)}, "red 100,100; blue 100,100"},
        {{lower, {wide, {BoxOperation{wide, 0}, FillOperation{wide, 0}}}}, "red 100,100; outline 90,90"},
        {{lower, {wide, {PictureOperation{&card, {90, 90, 209, 308}}}}}, "red 100,100; card 90,90"},
        {{far, lower, far, lower}, "blue 500,0; red 100,100"},
        {{lower, fill({120, 120, 130, 130}, blue), lower}, "red 100,100"},
        {{lower, {lower.place, {BoxOperation{wide, 0}}}, lower, fill(lower.place, blue)}, "blue 100,100"},
        // An erasure shows only over what it erases in part.
        {{erasure({100, 100, 199, 299}), fill({150, 150, 250, 250}, red)}, "red 150,150"},
        {{{wide, {FillOperation{wide, tableGreen}, BoxOperation{wide, 0}}}}, "ground 90,90"},
        {{lower, erasure({219, 100, 300, 299}), erasure({0, 100, 80, 299}), erasure({120, 0, 180, 80}),
          erasure({120, 319, 180, 400})}, // each may share a pixel with the lower
         "red 100,100; ground 219,100; ground 0,100; ground 120,0; ground 120,319"},
        {{lower, erasure({220, 100, 300, 299}), erasure({0, 100, 79, 299}), erasure({120, 0, 180, 79}),
          erasure({120, 320, 180, 400})},
         "red 100,100"},
        {{lower, erasure({190, 100, 300, 299}), erasure({295, 100, 400, 299}), far, erasure({100, 100, 199, 299})},
         "blue 500,0"},
        // What has no place on the surface is not there.
        {{fill({100, 100, 99, 200}, red), fill({100, 100, 200, 99}, red), fill({nan, 0, 9, 9}, red)}, ""},
        {{fill({100, 100, 100, 100}, red)}, "red 100,100"},
        {{fill({-199, 0, -101, 9}, red), fill({3100, 0, 3199, 9}, red), fill({0, 2100, 9, 2199}, red)}, ""},
        {{fill({-199, 0, -100, 9}, red), fill({3099, 0, 3199, 9}, red), fill({0, 2099, 9, 2199}, red)},
         "red -199,0; red 3099,0; red 0,2099"}};
    for (const auto& [added, shown] : cases) {
        for (const std::size_t step : {9U, 2U, 1U}) { // how often it is read meanwhile
            DisplayList list(3000, 2000, tableGreen);
            for (std::size_t i = 0; i < added.size(); ++i) {
                list.add(added[i]);
                if (i % step == step - 1) {
                    list.items();
                }
            }
            EXPECT_EQ(inWords(list.items()), shown);
        }
    }
    EXPECT_LT(painted(std::vector(10000, lower)).items().capacity(), 200U); // also while nobody reads it
}

TEST(PaintingTest, TellsWhereItChanged) {
    const auto at = [](float x, Colour colour) { return fill({x, 0, x + 9, 9}, colour); };
    const DisplayItem A = at(0, red);
    const DisplayItem B = at(100, red);
    const DisplayItem C = at(200, red);
    const DisplayItem open{B.place, {BoxOperation{B.place, red}}};
    const DisplayItem overA = fill({2, 0, 20, 20}, red);
    const std::vector<std::tuple<std::vector<DisplayItem>, std::vector<DisplayItem>, Rect>> cases{
        {{A, B, C}, {A, B, C}, {}},
        {{A, B, C}, {A, at(100, blue), C}, {100, 0, 109, 9}},
        {{A, B, C}, {C, B, A}, {0, 0, 209, 9}},
        {{A, B}, {A, fill({100, 50, 109, 59}, red)}, {100, 0, 109, 59}},
        {{A, B, C}, {A, C}, {100, 0, 109, 9}},
        {{A, C}, {A, B, C}, {100, 0, 109, 9}},
        {{open}, {open, open}, open.place},
        {{}, {B, C}, {100, 0, 209, 9}},
        {{A, overA}, {at(0, blue), overA}, {0, 0, 2, 9}}};
    for (const auto& [before, after, changed] : cases) {
        DisplayList shown = painted(before);
        EXPECT_EQ(shown.replaceWith(painted(after)), changed) << inWords(before) << " to " << inWords(after);
        EXPECT_EQ(inWords(shown.items()), inWords(after));
    }
    DisplayList shown(3000, 2000, blue);
    EXPECT_EQ(shown.replaceWith(DisplayList(3000, 2000, red)), (Rect{-100, -100, 3099, 2099}));
    EXPECT_EQ(shown.ground(), red);
}

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

TEST(PixelScaleTest, StrokeStaysInsideItsItem) {
    const std::vector<std::tuple<double, Point, Point, PixelRect, PixelRect>> cases{
        {3, {100, 50}, {50, 50}, {0, 0, 50, 50}, {9, 9, 21, 11}},
        {2, {60, 60}, {60, 60}, {0, 0, 50, 50}, {7, 7, 8, 8}},
        {3, {10, 10}, {260, 10}, {2, 2, 50, 50}, {2, 2, 50, 4}},     // moved in from the left and the top
        {3, {260, 260}, {260, 40}, {2, 2, 50, 50}, {48, 7, 50, 50}}, // and from the right and the bottom
        {3, {10, 10}, {10, 260}, {2, 2, 3, 50}, {2, 2, 3, 50}}};     // an item narrower than the pen
    for (const auto& [factor, from, to, item, stroke] : cases) {
        EXPECT_EQ(PixelScale(factor).stroke(from, to, item), stroke) << from.x << "," << from.y;
    }
}

TEST(PixelScaleTest, SlantingLinesAreWholeFromEndToEndAndMirrored) {
    for (const double factor : {0.75, 1.0, 1.75, 2.5, 4.0}) {
        const PixelScale scale(factor);
        const PixelRect item = scale.pixels({0, 0, 1232, 1917});
        const auto down = scale.slant({0, 0}, {1232, 1917}, item);
        const auto up = scale.slant({0, 1917}, {1232, 0}, item);
        ASSERT_EQ(down.size(), static_cast<std::size_t>(item.height()));
        for (std::size_t row = 0; row < down.size(); ++row) {
            EXPECT_EQ(down[row].left, item.right - up[row].right) << factor;
            EXPECT_EQ(down[row].right, item.right - up[row].left) << factor;
            EXPECT_TRUE(row == 0 || down[row].left <= down[row - 1].right + 1) << "a gap";
        }
        EXPECT_EQ(down.front().left, item.left);
        EXPECT_EQ(down.back().right, item.right);
    }
    EXPECT_EQ(PixelScale(1).slant({30, 15}, {150, 20}, {0, 0, 20, 20}), std::vector({PixelRect{2, 1, 10, 1}}));
}

// Cut at the edge of a part, a smoothed line would not join what shows of it outside.
TEST(ReplayTest, ACircleThatShowsIsRepaintedWhole) {
    DisplayList list(3000, 2000, tableGreen);
    const auto marked = [](float X) {
        const Rect place{X, 150, X + 299, 449};
        return DisplayItem{place, {FillOperation{place, blue}, CircleOperation{{X + 150, 300}, 60, red}}};
    };
    list.add(marked(150));
    list.add(marked(450));
    list.add(fill({450, 150, 659, 449}, red)); // which hides all of the second circle but its end
    PictureCache pictures({});
    Raster canvas({200, 133}, 0);
    const std::vector<std::pair<PixelRect, PixelRect>> cases{{{10, 10, 14, 29}, {10, 10, 14, 29}},
                                                             {{10, 10, 20, 29}, {10, 10, 25, 29}},
                                                             {{10, 18, 40, 19}, {10, 15, 40, 25}},
                                                             {{44, 18, 44, 19}, {44, 15, 45, 25}},
                                                             {{0, 0, 5, 200}, {0, 0, 5, 132}}};
    for (const auto& [part, repainted] : cases) {
        EXPECT_EQ(replay(canvas, list, PixelScale(1), part, pictures), repainted);
    }
}

TEST(RectTest, SidesOfABoxLieInsideItAndACoverLeavesTheRest) {
    EXPECT_EQ(boxSides({10, 20, 30, 40}, 3),
              (std::array<PixelRect, 4>{{{10, 20, 30, 22}, {10, 38, 30, 40}, {10, 20, 12, 40}, {28, 20, 30, 40}}}));
    const PixelRect small{0, 0, 1, 1};
    EXPECT_EQ(boxSides(small, 3), (std::array{small, small, small, small}));
    EXPECT_EQ((PixelRect{10, 20, 30, 40}.intersected({15, 10, 40, 35})), (PixelRect{15, 20, 30, 35}));
    EXPECT_EQ((PixelRect{10, 20, 30, 40}.without({0, 20, 15, 40})), (PixelRect{16, 20, 30, 40}));
    EXPECT_EQ((PixelRect{10, 20, 30, 40}.without({10, 35, 30, 40})), (PixelRect{10, 20, 30, 34}));
    const Rect place{10, 20, 30, 40};
    EXPECT_EQ(place.without({10, 20, 15, 40}), (Rect{15, 20, 30, 40}));
    EXPECT_EQ(place.without({25, 0, 30, 99}), (Rect{10, 20, 25, 40}));
    EXPECT_EQ(place.without({0, 20, 30, 25}), (Rect{10, 25, 30, 40}));
    EXPECT_EQ(place.without({10, 35, 99, 40}), (Rect{10, 20, 30, 35}));
    EXPECT_TRUE(place.without({0, 20, 99, 99}).empty());
    for (const Rect& coverOfNoSide : {Rect{15, 20, 20, 40}, {10, 25, 30, 30}, {10, 21, 15, 40}, {10, 20, 29, 25}}) {
        EXPECT_EQ(place.without(coverOfNoSide), place);
    }
}

} // namespace
} // namespace tumble
