#include "tests/RandomSession.h"

#include "platform/memory/Raster.h"
#include "platform/paint/DisplayListView.h"
#include "tests/Player.h"
#include "tests/SessionBytes.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <functional>
#include <limits>
#include <optional>
#include <string>
#include <utility>

namespace tumble {

namespace {

/// Paints each picture in its own horizontal and vertical stripes, so that neither another picture nor an offset
/// matches.
bool paintStripes(const Picture& picture, Canvas& canvas) {
    const auto own = static_cast<Colour>(std::hash<std::string>{}(picture.Key) & 0xFFFF00U);
    const auto [width, height] = canvas.size();
    for (int y = 0; y < height; ++y) {
        canvas.fill({.left = 0, .top = y, .right = width - 1, .bottom = y}, own + y % 256);
    }
    for (int x = 0; x < width; x += 3) {
        canvas.fill({.left = x, .top = 0, .right = x, .bottom = height - 1}, own + 255 - x % 256);
    }
    return true;
}

/// The position of the action that a number below the sum of the weights chooses. `actions` begin with their weights.
std::size_t pick(const auto& actions, unsigned number) {
    std::size_t action = 0;
    for (; number >= actions.at(action).first; ++action) {
        number -= actions.at(action).first;
    }
    return action;
}

class Session {
public:
    explicit Session(std::span<const std::uint8_t> bytes) : bytes_(bytes) {}

    std::size_t run() {
        const unsigned kind = bytes_.next();
        game_ = kind % 4 != 0;
        table_.desktop.whileModal = [](Form& about) { about.Form_Close(); };
        if (game_) {
            table_.desktop.whileMessageIsOpen = [this] { disturbBox(); };
            chooseAndPlay();
        }
        looks_ = kind >= 252;
        std::size_t events = 0;
        for (; !bytes_.done() && !table_.desktop.ended(); ++events) {
            game_ ? tableEvent() : operation();
            check();
        }
        checkStops();
        if (looks_) {
            checkPixels();
        }
        return events;
    }

private:
    void chooseAndPlay() {
        const Settings settings{bytes_.next() % 8, bytes_.next() % 3,
                                bytes_.next() % 6, std::size_t{bytes_.next() % 16 < 15},
                                bytes_.next() % 4, bytes_.next() % 2};
        cards_ = cardsOfDeck.at(settings.deck);
        table_.program.Main();
        choose(table_.program.options(), settings);
        table_.program.options().sldBackDesign.Value(bytes_.number(5).value);
        table_.program.options().cmdPlay.Click();
    }

    /// Input to the table while a message box is open has no effect.
    void disturbBox() {
        check();
        const std::size_t painted = log().size();
        const auto cursor = table_.pointer.cursor();
        for (unsigned events = bytes_.next() % 3; events > 0; --events) {
            tableEvent();
        }
        require(log().size() == painted, "the table receives the mouse while a box is open");
        require(table_.pointer.cursor() == cursor, "the keyboard's pointer moves while a box is open");
    }

    void key() {
        const unsigned key = bytes_.next() % 12;
        const unsigned with = bytes_.next();
        const int Shift = (with % 4 == 3 ? shiftKey : 0) + (with % 8 == 7 ? controlKey : 0) +
                          (with >= 250 ? altKey : 0) + (with >= 253 ? metaKey : 0);
        table_.pointer.key(
            {.key = static_cast<Key>(key), .Shift = static_cast<std::int16_t>(Shift), .repeated = with % 5 == 4});
        const auto cursor = table_.pointer.cursor();
        require(!cursor || canBeAStop(cursor->at), "the keyboard's pointer lies where it cannot");
    }

    void release(Point at) {
        table_.release(at);
        require(!tracker().moveInProg() || !table_.picture().takesInput(), "the drag goes on");
    }

    void tableEvent() {
        using Act = void (*)(Session&, Point);
        static constexpr auto touch = [](Session& self, TouchEvent event, int finger, Point at) {
            self.table_.gesture.handle(event, finger, at, finger == 1 ? 0 : 300);
        };
        // A release, or a key that ends a drag, drops and does nothing else.
        static constexpr std::size_t key = 3;
        static constexpr std::size_t release = 4;
        static constexpr std::array<std::pair<unsigned, Act>, 16> actions{{
            {64, [](auto& self, Point at) { self.table_.press(at); }},
            {16, [](auto& self, Point at) { self.table_.press(at, self.bytes_.number(4)); }},
            {56, [](auto& self, Point at) { self.table_.move(at); }},
            {40, [](auto& self, Point) { self.key(); }},
            {52, [](auto& self, Point at) { self.release(at); }},
            {4, [](auto& self, Point at) { self.table_.pointer.move(0, 0, at); }}, // a release was lost
            {4, [](auto& self, Point at) { touch(self, TouchEvent::Begin, 1, at); }},
            {2, [](auto& self, Point at) { touch(self, TouchEvent::Begin, 2, at); }},
            {5, [](auto& self, Point at) { touch(self, TouchEvent::Move, 1, at); }},
            {4, [](auto& self, Point at) { touch(self, TouchEvent::End, 1, at); }},
            {1, [](auto& self, Point at) { touch(self, TouchEvent::End, 2, at); }},
            {3, [](auto& self, Point at) { touch(self, TouchEvent::LongPress, 0, at); }},
            {1, [](auto& self, Point at) { touch(self, TouchEvent::Cancel, 0, at); }},
            {1, [](auto& self, Point) { self.table_.program.table().cmdHelp.Click(); }},
            {1, [](auto& self, Point) { self.table_.program.table().cmdAbout.Click(); }},
            {2, [](auto& self, Point) { self.table_.program.table().cmdExit.Click(); }},
        }};
        const std::size_t action = pick(actions, bytes_.next());
        const Point at = bytes_.place();
        const std::size_t painted = log().size();
        const bool armed = tracker().moveInProg();
        actions.at(action).second(*this, at);
        const bool onlyDrops = action == key || action == release;
        if (armed && onlyDrops && !tracker().moveInProg() && table_.picture().takesInput()) {
            checkDrop(painted);
        }
    }

    /// What an operation may use, each value inside its set or not.
    struct Values {
        Number rank, suit, size, faceDir, visible, backStyle, dckType, sortOrder, xAlign, yAlign;
        float X, Y, right;
    };

    /// One operation of the tracker, a pack or a card on the table.
    void operation() {
        using Act = void (*)(Session&, const Values&);
        static constexpr std::array<std::pair<unsigned, Act>, 10> actions{{
            {3, [](auto& self, const auto& with) { self.layPack(with); }},
            {1, [](auto& self, const auto&) { self.tracker().flipCurCard(); }},
            {1, [](auto& self, const auto&) { self.tracker().bringCurCardToTop(); }},
            {1, [](auto& self, const auto&) { self.tracker().removeCurCard(); }},
            {1, [](auto& self, const auto& with) { self.table_.accepter->dckType(with.dckType); }},
            {3, [](auto& self, const auto& with) { self.tracker().moveCurCard(with.X, with.Y); }},
            {1, [](auto& self, const auto&) { self.tracker().endCurCardMove(); }},
            {1, [](auto& self, const auto& with) { self.tracker().identifyCard(with.X, with.Y); }},
            {2, [](auto& self, const auto& with) { self.tracker().startCurCardMove(with.X, with.Y); }},
            {2, [](auto& self, const auto& with) { self.changeCard(with); }},
        }};
        const Act act = actions.at(pick(actions, bytes_.next() % 16)).second;
        // A braced list is evaluated in order.
        act(*this, {bytes_.number(16), bytes_.number(4), bytes_.number(3), bytes_.number(1), bytes_.number(3),
                    bytes_.number(5), bytes_.number(9), bytes_.number(6), bytes_.number(3), bytes_.number(3),
                    bytes_.length(), bytes_.length(), bytes_.length()});
    }

    void layPack(const Values& with) {
        if ((cards_ += 4) >= 200) { // more would only be slow
            return;
        }
        const auto pack = std::make_shared<CardPack>();
        pack->tracker(&tracker());
        pack->accepter(with.suit.value == 0 ? nullptr : table_.accepter);
        pack->init(with.size, with.faceDir, with.backStyle, with.dckType);
        pack->sort(with.sortOrder);
        if (with.visible.value > 0) {
            pack->placeAsPile(with.X, with.Y, with.xAlign, with.yAlign);
            return;
        }
        pack->dealToTable(with.X, with.Y, with.right);
        tracker().addCard(with.rank, with.suit, with.X, with.Y, with.size, with.faceDir, with.backStyle);
        tracker().addJoker(with.right, with.Y, with.size, with.faceDir, with.backStyle);
    }

    void changeCard(const Values& with) {
        if (const auto crd = tracker().identifyCard(with.X, with.Y)) {
            crd->setRankAndSuit(with.rank, with.suit);
            crd->setAttributes(&table_.picture(), with.size, with.faceDir, with.visible, with.backStyle);
            crd->setPosition(with.X, with.right, with.xAlign, with.yAlign);
            crd->drawOutline(with.rank, with.visible.value == 0);
            crd->draw();
        }
    }

    void check() {
        const std::string fault = tracker().checkSanity();
        // Operations may give a card on the table another kind.
        require(fault.empty() || (!game_ && fault == "what is neither a card nor a pile lies on the table"), fault);
        for (const auto& [text, caption] : table_.desktop.takeMessages()) {
            require(!game_ || caption != "Tumble", text); // which reports a value outside its set
        }
        if (looks_) {
            look();
        }
    }

    /// A drop redraws the list last and, unless a pile took it, then the dropped card. No card is missing.
    void checkDrop(std::size_t before) {
        const std::size_t dropped = log().size();
        const DisplayList& shown = displayList();
        const std::size_t kept = shown.items().size();
        const bool onTable = std::all_of(shown.items().begin(), shown.items().end(), [&](const auto& item) {
            return shown.bounds().intersects(item.bounds, DisplayList::overhang);
        });
        checkStops();
        tracker().identifyCard(std::numeric_limits<float>::quiet_NaN(), 0);
        tracker().endCurCardMove(); // redraws the list, as no card is current
        const auto drop = std::span(log()).subspan(before, dropped - before);
        const auto list = std::span(log()).subspan(dropped);
        int cards = 0;
        for (const auto& [place, operations] : list) {
            const bool edge = std::holds_alternative<LineOperation>(operations.front());
            cards += edge ? static_cast<int>(operations.size() - 3) / 4 - 1
                          : static_cast<int>(std::holds_alternative<PictureOperation>(operations.front()));
        }
        require(cards == cards_, std::to_string(cards) + " cards");
        require(kept <= 2 * list.size() + 8, "the display list grows");
        require(onTable, "something off the table is kept");
        const auto after = std::search(drop.rbegin(), drop.rend(), list.rbegin(), list.rend()) - drop.rbegin();
        const bool lastIsOnTable = std::find(list.begin(), list.end(), drop.back()) != list.end();
        require(after <= 1 && lastIsOnTable, "a drop ends otherwise");
    }

    bool canBeAStop(Point at) {
        const PictureBox& box = table_.picture();
        return box.dragBounds.contains(at) && std::floor(at.x) == at.x && std::floor(at.y) == at.y;
    }

    /// Unless a drag is under way, a card or pile lies at each stop.
    void checkStops() {
        const PictureBox& box = table_.picture();
        for (const Point at : stops(box.displayList(), box.dragBounds)) {
            require(canBeAStop(at), "a stop where there can be none");
            const bool free = game_ && !tracker().moveInProg();
            require(!free || tracker().identifyCard(at.x, at.y) != nullptr, "a stop on the bare table");
        }
    }

    /// Brings the window up to date, at times at another scale.
    void look() {
        scale_ = PixelScale(1 + static_cast<double>(log().size() / 16384 % 7) / 4);
        const PixelSize size = scale_.pixels(displayList().bounds()).size();
        if (!window_ || window_->size() != size) {
            window_.emplace(size, displayList().ground());
        }
        shown_.bringUpToDate(*window_, displayList(), scale_);
    }

    /// The window has the same pixels as a replay of everything that was painted.
    void checkPixels() {
        look();
        Raster everything(window_->size(), displayList().ground());
        for (const DisplayItem& item : log()) {
            paint(everything, item, scale_, pictures_);
        }
        require(*window_ == everything, "the window shows something else than what was painted");
    }

    const DisplayList& displayList() { return table_.picture().displayList(); }
    CardTracker& tracker() const { return table_.tracker(); }
    const std::vector<DisplayItem>& log() { return table_.desktop.log(table_.picture()); }

    SessionBytes bytes_;
    Table table_;
    int cards_ = 0; // in the game, or a measure of those that operations laid on the table
    bool game_ = false;
    bool looks_ = false; // shows the table in a window
    PictureCache pictures_{paintStripes};
    DisplayListView shown_{displayList(), pictures_};
    std::optional<Raster> window_;
    PixelScale scale_{1};
};

} // namespace

std::size_t runSession(std::span<const std::uint8_t> bytes) {
    return Session(bytes).run();
}

} // namespace tumble
