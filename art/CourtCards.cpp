#include "art/CourtCards.h"

#include "art/CourtAttributes.h"
#include "art/CourtBodies.h"
#include "art/CourtHeadgear.h"

#include <algorithm>
#include <cmath>

namespace tumble::art {

namespace {

/// What the figures of one rank share.
struct Body {
    std::span<const Piece> robe;
    std::span<const Piece> backHair;
    std::span<const Piece> frontHair; ///< In front of the face; of a king, the beard.
};

struct Costume {
    Fabric mantle;
    Fabric front;
    Fabric sleeve;
    Fabric trim;
    Fabric sash;
};

struct Regalia {
    Colour hair;
    std::span<const Piece> headgear;
    std::span<const Piece> attribute; ///< Held in the hand.
};

using namespace court;
using enum Pattern;

constexpr std::array<Body, 3> bodies = {{
    {jackRobe, jackHair, {}},
    {queenRobe, queenHair, queenTresses},
    {kingRobe, kingHair, kingBeard},
}};

// The jacks, the queens and the kings, each in the order of the suits.
constexpr std::array<Costume, 12> costumes = {{
    {{red}, {yellow, Stripes, red}, {yellow, Chevrons, red}, {black, Dots, yellow}, {yellow}},
    {{yellow, Chevrons, red}, {yellow, Dots, red}, {black, Stripes, yellow}, {red}, {white, Dots, black}},
    {{black}, {red, Stripes, yellow}, {red}, {yellow, Dots, red}, {black, Dots, yellow}},
    {{red}, {white, Chevrons, black}, {yellow, Lozenges, black}, {yellow, Chevrons, red}, {black, Dots, white}},
    {{red, Dots, yellow}, {black, Dots, yellow}, {yellow, Stripes, red}, {yellow}, {white, Dots, red}},
    {{yellow, Dots, red}, {red, Lozenges, yellow}, {red}, {white, Dots, black}, {black, Dots, yellow}},
    {{red}, {yellow, Lozenges, red}, {black, Dots, white}, {black, Dots, yellow}, {yellow}},
    {{black, Stripes, yellow}, {red, Chevrons, yellow}, {red, Dots, yellow}, {white, Dots, red}, {yellow, Dots, black}},
    {{black, Lozenges, yellow}, {red, Chevrons, yellow}, {red}, {yellow, Dots, black}, {yellow}},
    {{red}, {yellow, Stripes, red}, {yellow, Lozenges, red}, {black, Dots, yellow}, {white, Dots, black}},
    {{red, Dots, yellow}, {yellow, Lozenges, black}, {black, Chevrons, yellow}, {yellow}, {white, Dots, red}},
    {{yellow, Chevrons, red}, {black, Stripes, yellow}, {red}, {white, Dots, black}, {red, Dots, yellow}},
}};

constexpr std::array<Regalia, 12> regalia = {{
    {yellow, plumedCap, feather},
    {black, softCap, halberd},
    {yellow, broadCap, leaf},
    {yellow, peakedCap, partisan},
    {yellow, pearlCoronet, daisy},
    {black, tiara, tulip},
    {yellow, leafCoronet, rose},
    {yellow, spikedCoronet, lily},
    {yellow, archedCrown, orb},
    {white, pearledCrown, axe},
    {yellow, lilyCrown, sword},
    {black, towerCrown, flamingSword},
}};

/// The distances of the frame's outer edge from the edges of the card.
constexpr Vec2 frameInset{12, 6};
constexpr Box pipBox{{}, 12, 13};

/// How far to the right of the centre the hand is.
constexpr double handX = 20;

// The halves meet along a line through the centre, the origin. The line falls to the right; the sash covers it.
constexpr double sashHalfWidth = 28;
constexpr double sashFall = 6;
constexpr PathData sash = "M-28 -8.4 L28 3.6 L28 8.4 L-28 -3.6 Z";

void paintCourtFigure(const Drawing& drawing, const Body& body, const Costume& costume, const Regalia& worn) {
    const Materials fabrics = materials(worn.hair, costume.mantle, costume.front, costume.sleeve, costume.trim);
    paintPieces(drawing, body.robe, fabrics);
    paintPieces(drawing.moved({handX, 0}), worn.attribute, fabrics);
    paintPieces(drawing, arm, fabrics);
    paintPieces(drawing, body.backHair, fabrics);
    paintPieces(drawing, face, fabrics);
    paintPieces(drawing, body.frontHair, fabrics);
    paintPieces(drawing, worn.headgear, fabrics);
    paintFabric(drawing, sash.path(), costume.sash);
}

} // namespace

void paintCourtHalf(const Drawing& drawing, int rank, Suit suit) {
    const auto court = static_cast<std::size_t>(rank - firstCourtRank);
    const std::size_t figure = court * suitCount + static_cast<std::size_t>(suit);
    const double unit = drawing.toPixels.right.x;
    const int line = std::max(1, static_cast<int>(std::lround(unit)));
    Canvas& canvas = drawing.canvas;
    const PixelRect frame =
        canvas.bounds().inset(static_cast<int>(std::ceil(frameInset.x * unit)),
                              static_cast<int>(std::lround(frameInset.y * drawing.toPixels.down.y)));
    const PixelRect inside = frame.inset(line, line);
    canvas.clip(inside);
    paintCourtFigure(drawing.moved(wholeCard.centre()), bodies.at(court), costumes.at(figure), regalia.at(figure));
    canvas.clip(canvas.bounds());
    for (const PixelRect& side : boxSides(frame, line)) {
        canvas.fill(side, black);
    }
    paintSuit(canvas, suit, snapped(drawing, pipBox).size().at({inside.left + line, inside.top + 2 * line}));
}

double courtDividerSlope(PixelSize size) {
    return sashFall * size.height / cardSize.height / (sashHalfWidth * size.width / cardSize.width);
}

} // namespace tumble::art
