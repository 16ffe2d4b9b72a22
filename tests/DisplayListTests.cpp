#include "platform/memory/Raster.h"
#include "platform/paint/Picture.h"
#include "platform/paint/Replay.h"
#include "tests/Table.h"

#include <gtest/gtest.h>

#include <limits>
#include <tuple>

namespace tumble {
namespace {

constexpr Colour red = 0x0000FF;
constexpr Colour blue = 0xFF0000;
constexpr float nan = std::numeric_limits<float>::quiet_NaN();

DisplayItem erasure(const Rect& place) {
    return fill(place, tableGreen);
}

TEST(DisplayListTest, KeepsWhatStillShows) {
    const Picture card("card", {});
    const DisplayItem lower = fill({100, 100, 199, 299}, red);
    const DisplayItem far = fill({500, 0, 509, 9}, blue);
    const Rect wide{90, 90, 209, 309};
    const std::vector<std::pair<std::vector<DisplayItem>, std::string>> cases{
        // An item is removed when a later one covers it.
        {{lower, fill({100, 100, 199, 299}, blue)}, "blue 100,100"},
        {{lower, {wide, {PictureOperation{&card, wide}, BoxOperation{wide, 0}}}}, "card 90,90"},
        {{lower, fill({100, 101, 199, 299}, blue)}, "red 100,100; blue 100,101"},
        {{lower, fill({100, 100, 199, 298}, blue)}, "red 100,100; blue 100,100"},
        {{lower, {wide, {BoxOperation{wide, 0}, FillOperation{wide, 0}}}}, "red 100,100; outline 90,90"},
        {{lower, {wide, {PictureOperation{&card, {90, 90, 209, 308}}}}}, "red 100,100; card 90,90"},
        {{far, lower, far, lower}, "blue 500,0; red 100,100"},
        {{lower, fill({120, 120, 130, 130}, blue), lower}, "red 100,100"},
        {{lower, {lower.bounds, {BoxOperation{wide, 0}}}, lower, fill(lower.bounds, blue)}, "blue 100,100"},
        // An erasure is kept while it covers an item in part.
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
        // An item off the surface is ignored.
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

TEST(DisplayListTest, ReturnsTheDamage) {
    const auto at = [](float x, Colour colour) { return fill({x, 0, x + 9, 9}, colour); };
    const DisplayItem A = at(0, red);
    const DisplayItem B = at(100, red);
    const DisplayItem C = at(200, red);
    const DisplayItem open{B.bounds, {BoxOperation{B.bounds, red}}};
    const DisplayItem overA = fill({2, 0, 20, 20}, red);
    const std::vector<std::tuple<std::vector<DisplayItem>, std::vector<DisplayItem>, Rect>> cases{
        {{A, B, C}, {A, B, C}, {}},
        {{A, B, C}, {A, at(100, blue), C}, {100, 0, 109, 9}},
        {{A, B, C}, {C, B, A}, {0, 0, 209, 9}},
        {{A, B}, {A, fill({100, 50, 109, 59}, red)}, {100, 0, 109, 59}},
        {{A, B, C}, {A, C}, {100, 0, 109, 9}},
        {{A, C}, {A, B, C}, {100, 0, 109, 9}},
        {{open}, {open, open}, open.bounds},
        {{}, {B, C}, {100, 0, 209, 9}},
        {{A, overA}, {at(0, blue), overA}, {0, 0, 2, 9}}};
    for (const auto& [before, after, damage] : cases) {
        DisplayList shown = painted(before);
        EXPECT_EQ(shown.replaceWith(painted(after)), damage) << inWords(before) << " to " << inWords(after);
        EXPECT_EQ(inWords(shown.items()), inWords(after));
    }
    DisplayList shown(3000, 2000, blue);
    EXPECT_EQ(shown.replaceWith(DisplayList(3000, 2000, red)), (Rect{-100, -100, 3099, 2099}));
    EXPECT_EQ(shown.ground(), red);
}

// A smoothed line that is cut would not join the rest of it.
TEST(ReplayTest, RepaintsCirclesWhole) {
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

} // namespace
} // namespace tumble
