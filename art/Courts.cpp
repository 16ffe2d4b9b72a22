#include "art/Courts.h"

#include "art/CourtAttributes.h"
#include "art/CourtBodies.h"
#include "art/CourtHeadgear.h"
#include "art/Marks.h"

namespace tumble {

namespace {

/// What the figures of one rank share.
struct Body {
    std::span<const Piece> robe;
    std::span<const Piece> locks;     ///< The hair behind the face.
    std::span<const Piece> forelocks; ///< The hair before it, or the beard.
};

/// What a figure is dressed in.
struct Costume {
    Fabric mantle;
    Fabric front;
    Fabric sleeve;
    Fabric trim;
    Fabric sash;
};

/// Of what colour a figure's hair is, what it wears on its head and what it holds in its hand.
struct Regalia {
    QRgb hair;
    std::span<const Piece> headgear;
    std::span<const Piece> attribute;
};

using namespace CourtAttributes;
using namespace CourtBodies;
using namespace CourtHeadgear;
using enum Weave;

constexpr std::array<Body, 3> bodies = {{
    {jackRobe, jackLocks, {}},
    {queenRobe, queenLocks, queenTresses},
    {kingRobe, kingLocks, kingBeard},
}};

// First the four jacks, then the queens and the kings, in the order of the suits.
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

constexpr QRectF frame(12.5, 6.5, 56, 113);
constexpr QRectF pipBox(14, 9, 12, 13);

/// How far to the right of the middle the hand is.
constexpr double handX = 20.5;

// The halves meet along a line that falls from the left edge of the frame to the right; the middle is the origin.
constexpr QPointF seamStart(-28, -6);
constexpr QPointF seamEnd(28, 6);
constexpr QPointF sashEdge(0, 2.4);

QPainterPath area(const QPolygonF& corners) {
    QPainterPath path;
    path.addPolygon(corners);
    path.closeSubpath();
    return path;
}

void paintHalf(QPainter& painter, const Body& body, const Costume& costume, const Regalia& worn) {
    const Wardrobe wardrobe = dressed(worn.hair, costume.mantle, costume.front, costume.sleeve, costume.trim);
    painter.save();
    painter.translate(cardWidth / 2, cardHeight / 2);
    painter.setClipPath(area({{-28, -56.5}, {28, -56.5}, seamEnd, seamStart}));
    paintPieces(painter, body.robe, wardrobe);
    painter.translate(handX, 0);
    paintPieces(painter, worn.attribute, wardrobe);
    painter.translate(-handX, 0);
    paintPieces(painter, arm, wardrobe);
    paintPieces(painter, body.locks, wardrobe);
    paintPieces(painter, face, wardrobe);
    paintPieces(painter, body.forelocks, wardrobe);
    paintPieces(painter, worn.headgear, wardrobe);
    painter.restore();
}

void paintSash(QPainter& painter, const Fabric& fabric) {
    painter.save();
    painter.translate(cardWidth / 2, cardHeight / 2);
    paintFabric(painter, area({seamStart - sashEdge, seamEnd - sashEdge, seamEnd + sashEdge, seamStart + sashEdge}),
                fabric);
    painter.restore();
}

} // namespace

void paintCourt(QPainter& painter, int rank, Suit suit) {
    const auto court = static_cast<std::size_t>(rank - firstCourtRank);
    const std::size_t figure = court * suitCount + static_cast<std::size_t>(suit);
    for (int half = 0; half < 2; ++half) {
        paintHalf(painter, bodies.at(court), costumes.at(figure), regalia.at(figure));
        paintSuit(painter, suit, pipBox);
        turnCard(painter);
    }
    paintSash(painter, costumes.at(figure).sash);
    painter.setPen(QPen(QColor(black), 1, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.drawRect(frame);
}

} // namespace tumble
