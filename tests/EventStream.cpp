#include "tests/EventStream.h"

#include "platform/memory/Raster.h"
#include "rules/PileAccepterTumble.h"
#include "tests/Player.h"

#include <algorithm>
#include <bit>
#include <limits>
#include <set>

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

class Bytes {
public:
    explicit Bytes(std::span<const std::uint8_t> bytes) : bytes_(bytes) {}

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
        return byte < 200   ? static_cast<float>(next16() % 20000) / 2 - 500
               : byte < 230 ? odd.at(byte % odd.size())
                            : std::bit_cast<float>(number(0).value);
    }
    /// On the table or near it, often on a pile, now and then far out.
    Point place() {
        constexpr std::array<Point, 5> piles{{{300, 300}, {8644, 300}, {300, 5644}, {8644, 5644}, {4507, 3007}}};
        const unsigned byte = next();
        if (byte < 100) {
            return piles.at(byte % piles.size());
        }
        const auto x = static_cast<float>(next16() % 10400) - 700;
        const auto y = static_cast<float>(next16() % 7400) - 700;
        return byte < 254 ? Point{x, y} : byte < 255 ? Point{limits::infinity(), y} : Point{x, limits::lowest()};
    }

private:
    std::span<const std::uint8_t> bytes_;
    std::size_t at_ = 0;
};

std::string withoutNames(const MemoryDesktop::Message& message) {
    std::string text = message.caption + ": " + message.text;
    for (const std::string name : {"Two", "Three", "Four", "Five", "Six", "Seven", "Eight", "Nine", "Ten", "Jack",
                                   "Queen", "King", "Ace", "Diamond", "Club", "Heart", "Spade"}) {
        for (std::size_t at = 0; (at = text.find(name)) != std::string::npos;) {
            text.replace(at, name.size(), "#");
        }
    }
    return text;
}

class Session {
public:
    explicit Session(std::span<const std::uint8_t> bytes) : in_(bytes) {}

    std::size_t run() {
        const unsigned kind = in_.next();
        game_ = kind % 4 != 0;
        table_.desktop.whileModal = [this](Form& about) {
            while (table_.desktop.shows(about)) {
                press(about); // once the bytes are used up, its only button
            }
        };
        table_.desktop.whileMessageIsOpen = [this] {
            if (game_) {
                check();
            }
            for (unsigned late = in_.next() % 8; late > 0; --late) {
                in_.next(); // what the player does meanwhile is held back
            }
        };
        if (game_) {
            chooseAndPlay();
        }
        std::size_t events = 0;
        for (; !in_.done() && !table_.desktop.ended(); ++events) {
            if (game_) {
                tableEvent();
            } else {
                operation();
            }
            check();
        }
        if (kind >= 252) {
            checkPixels();
        }
        return events;
    }

private:
    void chooseAndPlay() {
        frmTumbleOptions& dialog = table_.program.options();
        const auto choice = [this](unsigned choices) { return std::size_t{in_.next() % choices}; };
        table_.program.Main();
        for (int changes = 0; changes < 3; ++changes) {
            const Settings settings{choice(8), choice(3), choice(6), choice(16) == 0 ? 0U : 1U, choice(4), choice(2)};
            choose(dialog, settings);
            dialog.sldBackDesign.Value(in_.number(5).value);
            cards_ = cardsOfDeck.at(settings.deck);
        }
        dialog.cmdPlay.Click();
    }

    /// A button with the mouse, one by Enter or by Esc, or the window's frame.
    void press(Form& form) {
        std::vector<const CommandButton*> buttons;
        for (const AnyControl& control : form.controls()) {
            if (auto* const* button = std::get_if<CommandButton*>(&control)) {
                buttons.push_back(*button);
            }
        }
        const unsigned which = in_.next();
        const auto pressed = std::find_if(buttons.begin(), buttons.end(), [&](const auto* button) {
            return which == 255   ? button->pressedByEnter()
                   : which == 254 ? button->pressedByEsc()
                                  : button == buttons.at(which % buttons.size());
        });
        if (which == 253) {
            form.Form_Close();
        } else if (pressed != buttons.end()) {
            (*pressed)->Click();
        }
    }

    void tableEvent() {
        const unsigned kind = in_.next();
        if (kind >= 254) {
            press(table_.program.table());
            return;
        }
        const Point at = in_.place();
        const std::size_t painted = log().size();
        const bool armed = tracker().moveInProg();
        if (kind < 80) {
            table_.press(at, static_cast<std::int16_t>(kind < 64 ? 1 : in_.number(4).value));
        } else if (kind < 200) {
            table_.move(at);
        } else {
            table_.release(at);
            if (armed) {
                checkDrop(painted);
            }
        }
    }

    /// One operation of the tracker, a pack or a card on the table.
    void operation() {
        const unsigned kind = in_.next() % 16;
        const std::array n{in_.number(16), in_.number(4), in_.number(3), in_.number(1), in_.number(3),
                           in_.number(5),  in_.number(9), in_.number(6), in_.number(3), in_.number(3)};
        const auto [rank, suit, size, faceDir, visible, backStyle, dckType, sortOrder, xAlign, yAlign] = n;
        const std::array place{in_.length(), in_.length(), in_.length()};
        const auto [X, Y, right] = place;
        if (kind < 3 && (cards_ += 4) < 200) {
            const auto pack = std::make_shared<CardPack>();
            pack->tracker(&tracker());
            pack->accepter(suit.value == 0 ? nullptr : accepter_);
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
            accepter_->dckType(dckType);
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
        static const std::set<std::string> ofAGame{
            "YOU WIN: CONGRATULATIONS!", "Invalid Move!: You must follow suit with a #",
            "Invalid Move!: You must play the lowest ranking card, a #",
            "Invalid Move!: You must play either a # of #s or a Joker",
            "Invalid Move!: You must play either a # of #s or a # of #s or a Joker"};
        const std::string fault = tracker().checkSanity();
        // Operations may give a card on the table another kind.
        require(fault.empty() || (!game_ && fault == "what is neither a card nor a pile lies on the table"), fault);
        for (const auto& message : table_.desktop.takeMessages()) {
            require(ofAGame.contains(withoutNames(message)) || message.caption == "Tumble Instructions" ||
                        (!game_ && (message.text.starts_with("Invalid ") || message.caption == "Invalid Move!")),
                    withoutNames(message));
        }
    }

    /// A drop ends with a redraw of the list and, unless a pile took it, of the dropped card. No card is missing.
    void checkDrop(std::size_t before) {
        const Painting& painting = table_.picture().painting();
        const std::size_t kept = painting.items().size();
        require(!tracker().moveInProg(), "the drag goes on");
        require(std::all_of(painting.items().begin(), painting.items().end(),
                            [&](const auto& item) { return painting.bounds().meets(item.place, twipsPerPixel); }),
                "something off the table is kept");
        const std::size_t dropped = log().size();
        tracker().identifyCard(limits::quiet_NaN(), 0);
        tracker().endCurCardMove(); // of no card: a redraw of the list
        const auto at = [this](std::size_t item) { return log().begin() + static_cast<std::ptrdiff_t>(item); };
        std::vector<PaintItem> expected(at(dropped), log().end());
        const std::vector<PaintItem> drop(at(before), at(dropped));
        int cards = 0;
        for (const auto& [place, operations] : expected) {
            const bool edge = std::holds_alternative<LineOperation>(operations.front());
            cards += edge ? static_cast<int>(operations.size() - 3) / 4 - 1
                          : static_cast<int>(std::holds_alternative<PictureOperation>(operations.front()));
        }
        require(cards == cards_, std::to_string(cards) + " cards");
        require(kept <= 2 * expected.size() + 8, "the painting grows");
        const auto endsDrop = [&] {
            return expected.size() <= drop.size() && std::equal(expected.rbegin(), expected.rend(), drop.rbegin());
        };
        if (!endsDrop() && std::find(expected.begin(), expected.end(), drop.back()) != expected.end()) {
            expected.push_back(drop.back());
        }
        require(endsDrop(), "painted " + inWords(drop) + " instead of " + inWords(expected));
    }

    /// The painting's list shows the same pixels as everything that was painted.
    void checkPixels() {
        const Painting& painting = table_.picture().painting();
        Raster list(painting, PixelScale(1 + static_cast<double>(log().size() % 7) / 4));
        Raster everything = list;
        list.paint(painting.items());
        everything.paint(log());
        require(list == everything, "the painting's list shows something else than what was painted");
    }

    CardTracker& tracker() const { return table_.tracker(); }
    const std::vector<PaintItem>& log() { return table_.desktop.log(table_.picture()); }

    Bytes in_;
    Table table_;
    std::shared_ptr<PileAccepterTumble> accepter_ =
        std::make_shared<PileAccepterTumble>([] { return std::int16_t{23}; });
    int cards_ = 0; // in the game, or about as many as operations have laid on the table
    bool game_ = false;
};

} // namespace

std::size_t runSession(std::span<const std::uint8_t> bytes) {
    return Session(bytes).run();
}

} // namespace tumble
