#include "tests/Table.h"

#include "platform/Picture.h"

#include <map>
#include <sstream>
#include <variant>

namespace tumble {

namespace {

std::string colourName(Colour colour) {
    static const std::map<Colour, std::string> names{
        {0, "black"},         {0x0000FF, "red"},      {0x00FF00, "green"},      {0xFF0000, "blue"},
        {0x00FFFF, "yellow"}, {0x666666, "darkGrey"}, {0x333333, "darkerGrey"}, {tableGreen, "ground"}};
    const auto found = names.find(colour);
    return found == names.end() ? std::to_string(colour) : found->second;
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
    if (operations.empty()) {
        return "nothing";
    }
    if (const auto* picture = std::get_if<PictureOperation>(&operations.front())) {
        return picture->picture->Key;
    }
    if (const auto* fill = std::get_if<FillOperation>(&operations.front())) {
        const bool marked = std::holds_alternative<CircleOperation>(operations.back());
        return (marked ? "marked " : "") + colourName(fill->colour);
    }
    // Four strokes for each card of the pile, and three that clear its corners.
    const bool strokes = std::holds_alternative<LineOperation>(operations.front());
    return strokes ? "edge of " + std::to_string((operations.size() - 3) / 4) : "outline";
}

} // namespace

std::string inWords(const std::vector<PaintItem>& items) {
    return joined(items, [](const PaintItem& item) {
        return whatItShows(item.operations) + at(Point{item.place.left, item.place.top});
    });
}

std::string inFull(const PaintItem& item) {
    return joined(item.operations, [](const Operation& operation) { return std::visit(InFull(), operation); });
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
    desktop.keepLog();
}

std::string Table::nameAt(Point at) const {
    const auto crd = tracker().identifyCard(at.x, at.y);
    return crd == nullptr ? "" : crd->getStr();
}

void Table::lay(CardRank rank, CardSuit suit, float X, float Y) const {
    tracker().addCard(rank, suit, X, Y, csSmall, fdFaceUp, bsFirst);
}

std::shared_ptr<CardPack> Table::layPile(float X, float Y, const Cards& cards,
                                         const std::shared_ptr<PileAccepter>& accepter) const {
    auto pile = std::make_shared<CardPack>();
    pile->tracker(&tracker());
    pile->accepter(accepter);
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
    const std::vector<PaintItem> fresh(log.begin() + static_cast<std::ptrdiff_t>(seen_), log.end());
    seen_ = log.size();
    return inWords(fresh);
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
