#include "cards/CardImages.h"
#include "tests/Table.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <limits>
#include <tuple>

namespace tumble {
namespace {

TEST(CardImagesTest, EveryPictureIsFoundByItsKeyAndCarriesItsFile) {
    const auto expectFile = [](const Picture& picture, const std::string& name, const std::string& size) {
        std::ifstream file(TUMBLE_ASSETS "/" + name + ".gif", std::ios::binary);
        const std::string bytes(reinterpret_cast<const char*>(picture.data.data()), picture.data.size());
        EXPECT_TRUE(bytes == std::string(std::istreambuf_iterator<char>(file), {})) << name;
        EXPECT_EQ(bytes.substr(0, 10), "GIF87a" + size) << name;
    };
    for (const Picture& picture : CardImages::pictures()) {
        EXPECT_EQ(&CardImages::find(picture.Key), &picture) << picture.Key;
        expectFile(picture, picture.Key, {81, 0, 126, 0});
    }
    EXPECT_EQ(CardImages::pictures().size(), 57U);
    expectFile(application().Icon, "tumble", {32, 0, 32, 0});
}

TEST(CardTest, RoundsItsEdgesOnceAndHalvesToEven) {
    constexpr auto most = std::numeric_limits<std::int32_t>::max();
    constexpr auto least = std::numeric_limits<std::int32_t>::min();
    constexpr float nan = std::numeric_limits<float>::quiet_NaN();
    using Edges = std::vector<std::int32_t>;
    const std::vector<std::tuple<CardSize, Point, PileAlign, Edges>> cases{
        {csNormal, {100, 200}, paNear, {100, 200, 1332, 2117}},
        {csMedium, {4507.5F, 3007.5F}, paCenter, {4058, 2308, 4956, 3706}},
        {csSmall, {8944, 5944}, static_cast<PileAlign>(-1), {8216, 4811, 8944, 5944}},
        {csSmall, {0.5F, -1.5F}, paNear, {0, -2, 728, 1132}},
        {csSmall, {8388607.5F, 0}, paNear, {8388608, 0, 8389336, 1133}}, // a sum that single precision cannot hold
        {csSmall, {1e30F, -1e30F}, paNear, {most, least, most, least}},
        {csSmall, {nan, 7}, paNear, {0, 7, 0, 1140}},
    };
    MemoryDesktop desktop(application());
    for (const auto& [size, at, align, expected] : cases) {
        Card crd;
        crd.setAttributes(nullptr, size, fdFaceUp, vsCard, bsFirst);
        crd.setAttributes(nullptr, static_cast<CardSize>(3), fdFaceUp, vsCard, bsFirst); // keeps the size
        crd.setPosition(at.x, at.y, align, align);
        EXPECT_EQ((Edges{crd.x1(), crd.y1(), crd.x2(), crd.y2()}), expected);
        EXPECT_EQ(desktop.takeMessages(), (std::vector<MemoryDesktop::Message>{{"Invalid card size!", "Tumble"}}));
    }
}

TEST(CardTest, CardsPilesBlocksAndErasuresArePaintedStrokeByStroke) {
    Table table;
    table.picture().ForeColor(0x0000FF);
    const auto painted = [&table] {
        const DisplayItem& last = table.desktop.log(table.picture()).back();
        EXPECT_EQ(last.bounds, (Rect{100.5F, 200, 828.5F, 1333}));
        return inFull(last);
    };
    table.lay(rkAce, suSpade, 100.5F, 200);
    EXPECT_EQ(painted(), "AceSpades 100.5,200 828.5,1333; box 100.5,200 828.5,1333 red");
    table.layPile(100.5F, 200);
    EXPECT_EQ(painted(), "fill 100.5,200 828.5,1333 green; line 100.5,200 828.5,1333 black; "
                         "line 828.5,200 100.5,1333 black");
    table.picture().BackColor(0xFF0000);
    table.layPile(100.5F, 200, {makeJoker(), makeJoker()});
    EXPECT_EQ(painted(),
              "line 818.5,200 818.5,200 blue; line 818.5,200 818.5,1323 darkGrey; "
              "line 818.5,1323 100.5,1323 darkerGrey; line 100.5,1323 100.5,1323 blue; "
              "line 823.5,200 823.5,205 blue; line 823.5,205 823.5,1328 darkGrey; "
              "line 823.5,1328 105.5,1328 darkerGrey; line 105.5,1328 100.5,1328 blue; "
              "line 828.5,200 828.5,210 blue; line 100.5,1323 100.5,1333 blue; line 100.5,1333 110.5,1333 blue");
    const auto crd = table.tracker().identifyCard(101, 200);
    for (const CardVisibility kind : {vsPile, vsCard}) {
        crd->visibility(kind);
        crd->drawOutline(0x0000FF, false);
        EXPECT_EQ(painted(), "fill 100.5,200 828.5,1333 red");
        crd->drawOutline(0x00FFFF, true);
        EXPECT_EQ(painted(),
                  "fill 100.5,200 828.5,1333 yellow; box 100.5,200 828.5,1333 black; circle 465,767 100,100 red");
        crd->undraw();
        EXPECT_EQ(painted(), "fill 100.5,200 828.5,1333 blue");
    }
    crd->setAsJoker();
    crd->setRankAndSuit(rkAce, suClub); // ends the joker
    EXPECT_EQ(crd->getStr(), "Ace of Clubs");
}

} // namespace
} // namespace tumble
