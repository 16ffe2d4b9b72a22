#include "tests/Table.h"

#include "platform/paint/Picture.h"

#include <map>
#include <sstream>
#include <utility>
#include <variant>

namespace tumble {

namespace {

std::string colourName(Colour colour) {
    static const std::map<Colour, std::string> names{{0, "black"},
                                                     {0x0000FF, "red"},
                                                     {0x00FF00, "green"},
                                                     {0xFF0000, "blue"},
                                                     {0x00FFFF, "yellow"},
                                                     {0x666666, "darkGrey"},
                                                     {0x333333, "darkerGrey"},
                                                     {tableGreen, "ground"},
                                                     {windowColour, "window"}};
    return names.at(colour);
}

std::string at(Point point) {
    std::ostringstream text;
    text << " " << point.x << "," << point.y;
    return text.str();
}

std::string at(const Rect& box) {
    return at(Point{box.left, box.top}) + at(Point{box.right, box.bottom});
}

template<class Items>
std::string joined(const Items& items, auto inWords) {
    std::string words;
    for (const auto& item : items) {
        words += (words.empty() ? "" : "; ") + inWords(item);
    }
    return words;
}

struct InFull {
    std::string operator()(const PictureOperation& op) const { return op.picture->Key + at(op.box); }
    std::string operator()(const FillOperation& op) const { return "fill" + at(op.box) + " " + colourName(op.colour); }
    std::string operator()(const BoxOperation& op) const { return "box" + at(op.box) + " " + colourName(op.colour); }
    std::string operator()(const LineOperation& op) const {
        return "line" + at(op.from) + at(op.to) + " " + colourName(op.colour);
    }
    std::string operator()(const CircleOperation& op) const {
        return "circle" + at({op.centre.x, op.centre.y, op.radius, op.radius}) + " " + colourName(op.colour);
    }
};

std::string whatItShows(const Operations& operations) {
    if (const auto* picture = std::get_if<PictureOperation>(operations.begin())) {
        return picture->picture->Key;
    }
    if (const auto* fill = std::get_if<FillOperation>(operations.begin())) {
        const bool marked = std::holds_alternative<CircleOperation>(operations.back());
        return (marked ? "marked " : "") + colourName(fill->colour);
    }
    // Four lines for each card of the pile, and three that clear its corners.
    const bool strokes = std::holds_alternative<LineOperation>(operations.front());
    return strokes ? "edge of " + std::to_string((operations.size() - 3) / 4) : "outline";
}

} // namespace

std::string inWords(std::span<const DisplayItem> items) {
    return joined(items, [](const DisplayItem& item) {
        return whatItShows(item.operations) + at(Point{item.bounds.left, item.bounds.top});
    });
}

std::string inFull(const DisplayItem& item) {
    return joined(item.operations, [](const Operation& operation) { return std::visit(InFull(), operation); });
}

DisplayItem fill(const Rect& place, Colour colour) {
    return {.bounds = place, .operations = {FillOperation{place, colour}}};
}

DisplayList painted(std::span<const DisplayItem> items) {
    DisplayList list(3000, 2000, tableGreen);
    for (const DisplayItem& item : items) {
        list.add(item);
    }
    return list;
}

std::shared_ptr<Card> makeCard(CardRank rank, CardSuit suit) {
    auto crd = std::make_shared<Card>();
    crd->setRankAndSuit(rank, suit);
    return crd;
}

std::shared_ptr<Card> makeJoker() {
    auto crd = std::make_shared<Card>();
    crd->setAsJoker();
    return crd;
}

Table::Table() {
    program.tableTracker = std::make_unique<CardTracker>();
    tracker().picture(&picture());
    accepter->dckType(dtStandard);
    desktop.keepLog();
}

void Table::lay(CardRank rank, CardSuit suit, float X, float Y) const {
    tracker().addCard(rank, suit, X, Y, csSmall, fdFaceUp, bsFirst);
}

std::shared_ptr<CardPack> Table::layPile(float X, float Y, const Cards& cards,
                                         const std::shared_ptr<PileAccepter>& taker) const {
    auto pile = std::make_shared<CardPack>();
    pile->tracker(&tracker());
    pile->accepter(taker);
    for (const auto& crd : cards) {
        pile->addCardToTop(crd);
    }
    pile->init(csSmall, fdFaceUp, bsFirst, dtEmpty);
    pile->placeAsPile(X, Y);
    return pile;
}

void Table::drag(Point from, Point to) {
    press(from);
    move(to);
    release(to);
}

std::string Table::painted() {
    const auto& log = desktop.log(picture());
    return inWords(std::span(log).subspan(std::exchange(seen_, log.size())));
}

std::string Table::cards() {
    painted();
    tracker().identifyCard(-1e6F, -1e6F);
    tracker().endCurCardMove();
    return painted();
}

std::string Table::messages() {
    return joined(desktop.takeMessages(), [](const auto& message) { return message.caption + ": " + message.text; });
}

} // namespace tumble
