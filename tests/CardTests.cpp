#include "cards/CardImages.h"
#include "tests/Table.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <limits>
#include <tuple>

namespace tumble {
namespace {

/// The picture is its asset, and that one plain image of the size: no extension before it, not interlaced, a colour
/// table of two to the power of `bits`.
void expectAsset(const Picture& picture, const std::string& name, char width, char height, int bits) {
    std::ifstream file(TUMBLE_ASSETS "/" + name + ".gif", std::ios::binary);
    const std::string bytes(reinterpret_cast<const char*>(picture.data.data()), picture.data.size());
    EXPECT_TRUE(bytes == std::string(std::istreambuf_iterator<char>(file), {})) << name;
    const std::string size{width, 0, height, 0};
    EXPECT_EQ(bytes.substr(0, 10), "GIF87a" + size) << name;
    EXPECT_EQ(bytes.at(10) & 0x87, 0x80 | (bits - 1)) << name;
    EXPECT_EQ(bytes.substr(13 + (3U << bits), 10), "," + std::string(4, 0) + size + '\0') << name;
}

TEST(CardImagesTest, EveryPictureIsFoundByItsKeyAndCarriesItsFile) {
    std::vector<std::string> keys;
    for (const char* rank :
         {"Ace", "Two", "Three", "Four", "Five", "Six", "Seven", "Eight", "Nine", "Ten", "Jack", "Queen", "King"}) {
        for (const char* suit : {"Clubs", "Diamonds", "Hearts", "Spades"}) {
            keys.push_back(std::string(rank) + suit);
        }
    }
    keys.insert(keys.end(), {"Joker", "CardBack1", "CardBack2", "CardBack3", "CardBack4"});
    ASSERT_EQ(CardImages::pictures().size(), keys.size());
    for (std::size_t i = 0; i < keys.size(); ++i) {
        EXPECT_EQ(CardImages::pictures()[i].Key, keys[i]);
        EXPECT_EQ(&CardImages::find(keys[i]), &CardImages::pictures()[i]);
        expectAsset(CardImages::pictures()[i], keys[i], 81, 126, 8);
    }
    expectAsset(application().Icon, "tumble", 32, 32, 4);
    EXPECT_TRUE(CardImages::find("aceclubs").data.empty());
}

TEST(CardTest, RoundsItsEdgesOnceAndHalvesToEven) {
    constexpr auto most = std::numeric_limits<std::int32_t>::max();
    constexpr auto least = std::numeric_limits<std::int32_t>::min();
    constexpr float nan = std::numeric_limits<float>::quiet_NaN();
    using Edges = std::vector<std::int32_t>;
    const auto edges = [](const Card& crd) { return Edges{crd.x1(), crd.y1(), crd.x2(), crd.y2()}; };
    const std::vector<std::tuple<CardSize, float, float, int, int, Edges>> cases{
        {csNormal, 100, 200, 0, 0, {100, 200, 1332, 2117}},
        {csMedium, 4507.5F, 3007.5F, 1, 1, {4058, 2308, 4956, 3706}},
        {csNormal, 8944, 0, 2, 0, {7712, 0, 8944, 1917}},
        {csSmall, 8944, 5944, 0, 3, {8944, 4811, 9672, 5944}},
        {csSmall, 0.5F, -1.5F, 0, -1, {0, -1134, 728, -2}},
        {csSmall, 8388607.5F, 0, 0, 0, {8388608, 0, 8389336, 1133}}, // a sum that single precision cannot hold
        {csSmall, 1e30F, -1e30F, 0, 0, {most, least, most, least}},
        {csSmall, nan, 7, 0, 0, {0, 7, 0, 1140}},
    };
    for (const auto& [size, X, Y, xAlign, yAlign, expected] : cases) {
        Card crd;
        crd.setAttributes(nullptr, size, fdFaceUp, vsCard, bsFirst);
        crd.setPosition(X, Y, static_cast<PileAlign>(xAlign), static_cast<PileAlign>(yAlign));
        EXPECT_EQ(edges(crd), expected);
    }
    EXPECT_EQ(edges(Card()), (Edges{0, 0, -1, -1}));
}

TEST(CardTest, InvalidSizeIsReportedAndKeepsTheExtent) {
    Table table;
    Card crd;
    crd.setAttributes(&table.picture(), csSmall, fdFaceUp, vsCard, bsFirst);
    crd.setAttributes(&table.picture(), static_cast<CardSize>(3), fdFaceDown, vsCard, static_cast<BackStyle>(3));
    EXPECT_EQ(table.messages(), "Tumble: Invalid card size!");
    EXPECT_EQ(crd.size(), 3);
    crd.draw();
    EXPECT_EQ(inFull(table.picture().painting().items().at(0)), "CardBack3 0,0 728,1133; box 0,0 728,1133 black");
}

TEST(CardTest, IsNamedByItsRankAndSuitAsJokerOrByItsPile) {
    EXPECT_EQ(Card().getStr(), "No Rank of Diamonds");
    EXPECT_EQ(makeCard(static_cast<CardRank>(15), static_cast<CardSuit>(-1))->getStr(), "No Rank of No Suits");
    EXPECT_EQ(makeCard(static_cast<CardRank>(1), static_cast<CardSuit>(4))->getStr(), "No Rank of No Suits");
    const auto crd = makeCard(rkAce, suClub);
    EXPECT_EQ(crd->getStr(), "Ace of Clubs");
    crd->setAsJoker();
    EXPECT_EQ(crd->getStr() + crd->getRankStr() + crd->getSuitStr(), "JokerAceClub");
    crd->setRankAndSuit(rkTwo, suSpade);
    EXPECT_EQ(crd->getStr(), "Two of Spades");

    Card pileCard;
    pileCard.visibility(vsPile);
    EXPECT_EQ(pileCard.getStr(), "Pile (empty)");
    pileCard.pack(std::make_shared<CardPack>());
    pileCard.pack()->addCardToTop(makeCard(rkSeven, suHeart));
    EXPECT_EQ(pileCard.getStr(), "Pile (Seven of Hearts)");
}

TEST(CardTest, ShowsItsFaceForEveryDirectionButDown) {
    Table table;
    const auto crd = makeCard(rkTwo, suDiamond);
    crd->setAttributes(&table.picture(), csSmall, static_cast<FaceDirection>(1), vsCard, bsLast);
    for (int turn = 0; turn < 4; ++turn, crd->flip()) {
        crd->draw();
    }
    EXPECT_EQ(table.painted(), "TwoDiamonds 0,0; TwoDiamonds 0,0; CardBack4 0,0; TwoDiamonds 0,0");
}

// What cards and piles paint, stroke by stroke, at (100.5, 200).
class CardPaintingTest : public testing::Test {
protected:
    CardPaintingTest() {
        surface.ForeColor(0x0000FF);
        card.setRankAndSuit(rkAce, suSpade);
        card.setAttributes(&surface, csSmall, fdFaceUp, vsCard, bsFirst);
        card.setPosition(100.5F, 200, paNear, paNear);
        pileCard.pack(pack);
        pileCard.setAttributes(&surface, csSmall, fdFaceDown, vsPile, bsFirst);
        pileCard.setPosition(100.5F, 200, paNear, paNear);
    }
    std::string painted() {
        const PaintItem& last = surface.painting().items().back();
        EXPECT_EQ(last.place, (Rect{100.5F, 200, 828.5F, 1333}));
        return inFull(last);
    }

    DrawingSurface surface{9015, 6015, tableGreen};
    std::shared_ptr<CardPack> pack = std::make_shared<CardPack>();
    Card card;
    Card pileCard;
};

TEST_F(CardPaintingTest, CardIsABorderedPictureAndAnEmptyPileACrossedField) {
    card.draw();
    EXPECT_EQ(painted(), "AceSpades 100.5,200 828.5,1333; box 100.5,200 828.5,1333 red");
    pileCard.draw();
    EXPECT_EQ(painted(), "fill 100.5,200 828.5,1333 green; line 100.5,200 828.5,1333 black; "
                         "line 828.5,200 100.5,1333 black");
}

TEST_F(CardPaintingTest, PileMovesItsTopCardAndStepsItsEdge) {
    for (const FaceDirection faceDir : {fdFaceUp, fdFaceDown}) {
        pack->addCardToTop(makeCard(rkTwo, suClub));
        pack->seeTopCard()->setAttributes(&surface, csSmall, faceDir, vsCard, bsLast);
    }
    surface.BackColor(0xFF0000);
    pileCard.draw();
    EXPECT_EQ(inWords(surface.painting().items()), "CardBack4 100.5,200; edge of 2 100.5,200");
    EXPECT_EQ(painted(),
              "line 818.5,200 818.5,200 blue; line 818.5,200 818.5,1323 darkGrey; "
              "line 818.5,1323 100.5,1323 darkerGrey; line 100.5,1323 100.5,1323 blue; "
              "line 823.5,200 823.5,205 blue; line 823.5,205 823.5,1328 darkGrey; "
              "line 823.5,1328 105.5,1328 darkerGrey; line 105.5,1328 100.5,1328 blue; "
              "line 828.5,200 828.5,210 blue; line 100.5,1323 100.5,1333 blue; line 100.5,1333 110.5,1333 blue");
}

TEST_F(CardPaintingTest, BlockIsPlainOrMarkedAndErasureIsTheBackground) {
    for (const Card* crd : {&card, &pileCard}) {
        crd->drawOutline(0xFF0000, false);
        EXPECT_EQ(painted(), "fill 100.5,200 828.5,1333 blue");
        crd->drawOutline(0x00FFFF, true);
        EXPECT_EQ(painted(),
                  "fill 100.5,200 828.5,1333 yellow; box 100.5,200 828.5,1333 black; circle 465,767 100,100 red");
        surface.BackColor(0x0000FF);
        crd->undraw();
        EXPECT_EQ(painted(), "fill 100.5,200 828.5,1333 red");
    }
}

TEST_F(CardPaintingTest, NothingIsPaintedWithoutAKindAPackOrASurface) {
    Card noSurface;
    noSurface.visibility(vsCard);
    card.visibility({});
    for (const Card* crd : {&noSurface, &card}) {
        crd->draw();
        crd->drawOutline(0, true);
        crd->undraw();
    }
    pileCard.pack(nullptr);
    pileCard.draw();
    EXPECT_EQ(inWords(surface.painting().items()), "");
    Card noFace;
    noFace.setAttributes(&surface, csSmall, fdFaceUp, vsCard, bsFirst);
    noFace.draw();
    EXPECT_EQ(inWords(surface.painting().items()), " 0,0"); // the picture without a key, which shows as missing
}

} // namespace
} // namespace tumble
