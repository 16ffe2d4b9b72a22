#include "tests/RandomSession.h"

#include "platform/memory/Raster.h"
#include "platform/paint/DisplayListView.h"
#include "tests/Player.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <functional>
#include <limits>
#include <optional>
#include <string>

namespace tumble {

namespace {

using limits = std::numeric_limits<float>;

/// A number that goes for any value of any set.
struct Number {
    std::int32_t value;
    template<class Set>
    operator Set() const {
        return static_cast<Set>(value);
    }
};

/// Each picture in stripes of its own, level and upright, so that none is like another nor like itself moved.
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

class Session {
public:
    explicit Session(std::span<const std::uint8_t> bytes) : bytes_(bytes) {}

    std::size_t run() {
        const unsigned kind = next();
        game_ = kind % 4 != 0;
        table_.desktop.whileMessageIsOpen = [this] {
            if (game_) { // an operation may open a box for each card of a pack
                check();
            }
            const std::size_t painted = log().size();
            const auto cursor = table_.pointer.cursor();
            for (unsigned events = next() % 3; events > 0 && game_; --events) {
                tableEvent();
            }
            require(log().size() == painted, "a box is open, and the table hears of the mouse");
            require(table_.pointer.cursor() == cursor, "a box is open, and the keyboard's pointer does something");
        };
        table_.desktop.whileModal = [](Form& about) { about.Form_Close(); };
        if (game_) {
            chooseAndPlay();
        }
        const bool looks = kind >= 252;
        std::size_t events = 0;
        for (; !done() && !table_.desktop.ended(); ++events) {
            game_ ? tableEvent() : operation();
            check();
            if (looks) {
                look();
            }
        }
        checkStops();
        if (looks) {
            checkPixels();
        }
        return events;
    }

private:
    bool done() const { return at_ >= bytes_.size(); }
    /// The next byte; zero when there is none left.
    unsigned next() { return done() ? 0 : bytes_[at_++]; }
    unsigned next16() { return next() << 8U | next(); }

    /// From -1 to `limit`, or any.
    Number number(unsigned limit) {
        const unsigned byte = next();
        return {static_cast<std::int32_t>(byte < 240 ? byte % (limit + 2) - 1 : next16() << 16U | next16())};
    }
    /// A length near the table's, one at the limits of its type, or any.
    float length() {
        constexpr std::array odd{limits::infinity(), -limits::infinity(),  limits::quiet_NaN(), limits::max(),
                                 limits::lowest(),   limits::denorm_min(), 8388607.5F,          2147483648.0F};
        const unsigned byte = next();
        if (byte < 230) {
            return byte < 200 ? static_cast<float>(next16() % 20000) / 2 - 500 : odd.at(byte % odd.size());
        }
        const std::uint32_t bits = next16() << 16U | next16();
        float any = 0;
        std::memcpy(&any, &bits, sizeof any); // std::bit_cast is not everywhere yet
        return any;
    }
    /// On the table or beyond its edges, often on a pile.
    Point place() {
        constexpr std::array<Point, 5> piles{{{300, 300}, {8644, 300}, {300, 5644}, {8644, 5644}, {4507, 3007}}};
        const unsigned byte = next();
        const auto x = static_cast<float>(next16() % 10400) - 700;
        const auto y = static_cast<float>(next16() % 7400) - 700;
        return byte < 100 ? piles.at(byte % piles.size()) : Point{x, y};
    }

    void chooseAndPlay() {
        const Settings settings{next() % 8, next() % 3, next() % 6, std::size_t{next() % 16 < 15},
                                next() % 4, next() % 2};
        cards_ = cardsOfDeck.at(settings.deck);
        table_.program.Main();
        choose(table_.program.options(), settings);
        table_.program.options().sldBackDesign.Value(number(5).value);
        table_.program.options().cmdPlay.Click();
    }

    /// A button, as the mouse or a key presses it, or the window's frame.
    void press(unsigned which) {
        frmTumble& window = table_.program.table();
        const std::array buttons{&window.cmdHelp, &window.cmdAbout, &window.cmdExit};
        if (which < buttons.size()) {
            buttons.at(which)->Click();
        } else if (window.picTable.takesInput()) {
            window.Form_Close();
        }
    }

    void key() {
        const unsigned key = next() % 12;
        const unsigned with = next();
        const int Shift = (with % 4 == 3 ? shiftKey : 0) + (with % 8 == 7 ? controlKey : 0) +
                          (with >= 250 ? altKey : 0) + (with >= 253 ? metaKey : 0);
        table_.pointer.key(
            {.key = static_cast<Key>(key), .Shift = static_cast<std::int16_t>(Shift), .repeated = with % 5 == 4});
        const auto cursor = table_.pointer.cursor();
        require(!cursor || canBeAStop(cursor->at), "the keyboard's pointer lies where it cannot");
    }

    void finger(Point at) {
        const unsigned what = next() % 16;
        const int number = what % 4 == 3 ? 2 : 1;
        const TouchEvent event = what < 6    ? TouchEvent::Begin
                                 : what < 10 ? TouchEvent::Move
                                 : what < 13 ? TouchEvent::End
                                 : what < 14 ? TouchEvent::Cancel
                                             : TouchEvent::LongPress;
        table_.gesture.handle(event, number, at, static_cast<float>(what) * 100);
    }

    void tableEvent() {
        const unsigned kind = next();
        if (kind >= 252) {
            press(kind - 252);
            return;
        }
        const Point at = place();
        const std::size_t painted = log().size();
        const bool armed = tracker().moveInProg();
        if (kind < 80) {
            table_.press(at, static_cast<std::int16_t>(kind < 64 ? 1 : number(4).value));
        } else if (kind < 140) {
            table_.move(at);
        } else if (kind < 180) {
            key();
        } else if (kind < 200) {
            finger(at);
        } else {
            table_.release(at);
        }
        const bool drops = kind >= 200 || (kind >= 140 && kind < 180 && !tracker().moveInProg());
        if (armed && drops && table_.picture().takesInput()) {
            checkDrop(painted);
        }
    }

    /// One operation of the tracker, a pack or a card on the table.
    void operation() {
        const unsigned kind = next() % 16;
        const std::array numbers{number(16), number(4), number(3), number(1), number(3),
                                 number(5),  number(9), number(6), number(3), number(3)};
        const auto [rank, suit, size, faceDir, visible, backStyle, dckType, sortOrder, xAlign, yAlign] = numbers;
        const std::array lengths{length(), length(), length()};
        const auto [X, Y, right] = lengths;
        if (kind < 3 && (cards_ += 4) < 200) {
            const auto pack = std::make_shared<CardPack>();
            pack->tracker(&tracker());
            pack->accepter(suit.value == 0 ? nullptr : table_.accepter);
            pack->init(size, faceDir, backStyle, dckType);
            pack->sort(sortOrder);
            if (kind == 0) {
                pack->dealToTable(X, Y, right);
                tracker().addCard(rank, suit, X, Y, size, faceDir, backStyle);
                tracker().addJoker(right, Y, size, faceDir, backStyle);
            } else {
                pack->placeAsPile(X, Y, xAlign, yAlign);
            }
        } else if (kind == 3) {
            tracker().flipCurCard();
        } else if (kind == 4) {
            tracker().bringCurCardToTop();
        } else if (kind == 5) {
            tracker().removeCurCard();
        } else if (kind == 6) {
            table_.accepter->dckType(dckType);
        } else if (kind < 10) {
            tracker().moveCurCard(X, Y);
        } else if (kind == 10) {
            tracker().endCurCardMove();
        } else if (const auto crd = tracker().identifyCard(X, Y); kind < 14) {
            tracker().startCurCardMove(X, Y);
        } else if (crd != nullptr) {
            crd->setRankAndSuit(rank, suit);
            crd->setAttributes(&table_.picture(), size, faceDir, visible, backStyle);
            crd->setPosition(X, right, xAlign, yAlign);
            crd->drawOutline(rank, kind == 14);
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
    }

    /// A drop ends with a redraw of the list and, unless a pile took it, of the dropped card. No card is missing.
    void checkDrop(std::size_t before) {
        require(!tracker().moveInProg(), "the drag goes on");
        const std::size_t dropped = log().size();
        const DisplayList& shown = table_.picture().displayList();
        const std::size_t kept = shown.items().size();
        const bool onTable = std::all_of(shown.items().begin(), shown.items().end(), [&](const auto& item) {
            return shown.bounds().intersects(item.bounds, DisplayList::overhang);
        });
        checkStops();
        tracker().identifyCard(limits::quiet_NaN(), 0);
        tracker().endCurCardMove(); // of no card: a redraw of the list
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

    /// Unless a drag is on, there is something at each.
    void checkStops() {
        const PictureBox& box = table_.picture();
        for (const Point at : stops(box.displayList(), box.dragBounds)) {
            require(canBeAStop(at), "a stop where there can be none");
            const bool free = game_ && !tracker().moveInProg();
            require(!free || tracker().identifyCard(at.x, at.y) != nullptr, "a stop on the bare table");
        }
    }

    /// A window shows the painting as it is now, sometimes at another scale.
    void look() {
        scale_ = PixelScale(1 + static_cast<double>(log().size() / 16384 % 7) / 4);
        const PixelSize size = scale_.pixels(displayList().bounds()).size();
        if (!window_ || window_->size() != size) {
            window_.emplace(size, displayList().ground());
        }
        shown_.bringUpToDate(*window_, displayList(), scale_);
    }

    /// The window shows the same pixels as everything that was painted.
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

    std::span<const std::uint8_t> bytes_;
    std::size_t at_ = 0;
    Table table_;
    int cards_ = 0; // in the game, or about as many as operations have laid on the table
    bool game_ = false;
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
