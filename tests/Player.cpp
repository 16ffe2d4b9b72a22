#include "tests/Player.h"

#include <cmath>
#include <map>
#include <memory>
#include <optional>
#include <stdexcept>
#include <utility>

namespace tumble {

namespace {

constexpr std::array lowestRanks{2, 2, 6, 7, 9, 2, 9, 7};                       // of each deck
constexpr std::array<Point, 3> sizes{{{729, 1134}, {900, 1400}, {1233, 1918}}}; // width and height of a card
constexpr Rect field{.left = 0, .top = 0, .right = 8944, .bottom = 5944}; // the part of the table that a drag can reach

/// Moves and presses at the table, exact to a few twips.
class Hands {
public:
    virtual ~Hands() = default;
    virtual void move(Point to) = 0;
    virtual void press(Point at) = 0;
    virtual void release(Point at) = 0;
    /// Places of which at least one lies on each card that shows.
    virtual std::vector<Point> everywhere() const = 0;
};

class MouseHands : public Hands {
public:
    explicit MouseHands(Table& table) : table_(table) {}

    void move(Point to) override { table_.move(to); }
    void press(Point at) override {
        pressed_ = at;
        table_.press(at);
    }
    void release(Point at) override {
        if (++drags_ % 2 == 0) { // otherwise the release is the only step
            table_.move({(pressed_.x + at.x) / 2, (pressed_.y + at.y) / 2});
        }
        table_.release(at);
    }
    // At least 150 by 1000 twips of each card in a spread show.
    std::vector<Point> everywhere() const override {
        std::vector<Point> places;
        for (Point at{70, 50}; at.y < 6000; at = at.x < 8860 ? Point{at.x + 140, at.y} : Point{70, at.y + 840}) {
            places.push_back(at);
        }
        return places;
    }

private:
    Table& table_;
    Point pressed_;
    int drags_ = 0;
};

/// Moves by the key of a corner if that is nearer, then by arrows while they come nearer, then by single steps.
class KeyHands : public Hands {
public:
    explicit KeyHands(Table& table) : table_(table) { key(Key::Space); }

    void move(Point to) override {
        const bool left = to.x < field.right / 2;
        const bool top = to.y < field.bottom / 2;
        if (way({left ? field.left : field.right, top ? field.top : field.bottom}, to) < way(at(), to)) {
            key(left ? top ? Key::Home : Key::End : top ? Key::PageUp : Key::PageDown);
        }
        for (float before = 1e6F; way(at(), to) < before && !there(to);) {
            before = way(at(), to);
            key(std::abs(to.x - at().x) > std::abs(to.y - at().y) ? across(to) : along(to));
        }
        for (const float step : {150.0F, 15.0F}) {
            while (std::abs(to.x - at().x) > step / 2) {
                key(across(to), step);
            }
            while (std::abs(to.y - at().y) > step / 2) {
                key(along(to), step);
            }
        }
    }
    void press(Point at) override {
        move(at);
        key(Key::Space);
    }
    void release(Point at) override { press(at); }
    std::vector<Point> everywhere() const override { return stops(table_.picture().displayList(), field); }

private:
    static float way(Point from, Point to) { return std::hypot(to.x - from.x, to.y - from.y); }
    Point at() const { return table_.pointer.cursor()->at; }
    bool there(Point to) const { return way(at(), to) < 2; }
    Key across(Point to) const { return to.x < at().x ? Key::Left : Key::Right; }
    Key along(Point to) const { return to.y < at().y ? Key::Up : Key::Down; }
    void key(Key key, float step = 0) {
        const int Shift = step == 0 ? 0 : step == 15 ? shiftKey | controlKey : shiftKey;
        require(table_.pointer.key({.key = key, .Shift = static_cast<std::int16_t>(Shift)}), "no key of the pointer");
        require(++keys_ < 50000, "no way");
    }

    Table& table_;
    int keys_ = 0;
};

std::string onPile(const std::string& name) {
    return "Pile (" + name + ")";
}

class Player {
public:
    Player(const Settings& settings, std::vector<float> shuffle, PlayedBy playedBy)
        : settings_(settings), size_(sizes.at(settings.size)), left_(cardsOfDeck.at(settings.deck)) {
        shown_.fill(onPile("empty"));
        table_.desktop.random().script(std::move(shuffle));
        table_.program.Main();
        choose(table_.program.options(), settings);
        table_.program.options().cmdPlay.Click();
        if (playedBy == PlayedBy::Mouse) {
            hands_ = std::make_unique<MouseHands>(table_);
        } else {
            hands_ = std::make_unique<KeyHands>(table_);
        }
    }

    void win() {
        const std::string back = "CardBack" + std::to_string(settings_.back + 1) + " ";
        require((table_.painted().find(back) != std::string::npos) == (settings_.face == 1), "the wrong side is up");
        expectTable("");
        lookOver();
        while (left_ > 0) {
            if (!playOne()) {
                layAside(topOfDeck());
            }
        }
        lookOver();
        require(seen_.empty() && topOfDeck() == "empty", "the game is won, and a card is left");
    }

private:
    /// The middle of a corner pile, in whole twips; -1 is left or top, 1 right or bottom.
    Point middle(float right, float bottom) const {
        return {std::floor((field.right + right * (field.right - size_.x + 1)) / 2),
                std::floor((field.bottom + bottom * (field.bottom - size_.y + 1)) / 2)};
    }

    const std::string& nameAt(Point at) {
        hands_->move(at);
        return table_.label();
    }

    /// The name of the top card on the deck's pile; "empty" when there is no card or no pile.
    std::string topOfDeck() {
        if (settings_.layout == 0) {
            return "empty";
        }
        const std::string& name = nameAt(deck_);
        return name.starts_with("Pile (") ? name.substr(6, name.size() - 7) : "empty";
    }

    void lookOver() {
        seen_.clear();
        for (const Point at : hands_->everywhere()) {
            if (const std::string& name = nameAt(at); name != "None" && !name.starts_with("Pile (")) {
                seen_.emplace(name, at);
            }
        }
    }

    /// The name of the next card for the corner; after the Ace, the name of no card.
    std::string wanted(std::size_t corner) const {
        const int copies = settings_.deck < 5 ? 1 : 2;
        const auto rank = static_cast<CardRank>(lowestRanks.at(settings_.deck) + played_.at(corner) / copies);
        return CardConstants::rankName(rank) + " of " + CardConstants::suitName(static_cast<CardSuit>(corner)) + "s";
    }

    std::optional<Point> find(const std::string& name) {
        for (auto [at, end] = seen_.equal_range(name); at != end; at = seen_.erase(at)) {
            if (nameAt(at->second) == name) {
                return at->second;
            }
        }
        return topOfDeck() == name ? std::optional(deck_) : std::nullopt;
    }

    bool playOne() {
        for (std::size_t corner = 0; corner < corners_.size(); ++corner) {
            for (const std::string& name : {wanted(corner), std::string("Joker")}) {
                if (const auto from = find(name)) {
                    drag(*from, name, corners_.at(corner));
                    played_.at(corner) += name == "Joker" ? 0 : 1;
                    shown_.at(corner) = onPile(name);
                    expectTable(--left_ == 0 ? "YOU WIN: CONGRATULATIONS!" : "");
                    return true;
                }
            }
        }
        return false;
    }

    void drag(Point from, const std::string& name, Point to) {
        hands_->press(from);
        require(table_.label() == name || table_.label() == onPile(name), "pressed " + name + ": " + table_.label());
        hands_->release(to);
    }

    void expectTable(const std::string& messages) {
        const std::string said = table_.messages();
        require(said == messages, "expected '" + messages + "', got '" + said + "'");
        for (std::size_t corner = 0; corner < corners_.size(); ++corner) {
            const std::string& name = nameAt(corners_.at(corner));
            require(name == shown_.at(corner), "not " + shown_.at(corner) + " but " + name);
        }
    }

    /// Lays the deck's top card where it touches no pile and leaves a strip of the previous card visible.
    void layAside(const std::string& name) {
        const int perRow = static_cast<int>(8925 - 3 * size_.x) / 100;
        const auto column = static_cast<float>(laidAside_ % perRow);
        const Point to{size_.x + 40 + 100 * column, laidAside_ < perRow ? 10.0F : 4040.0F};
        ++laidAside_;
        drag(deck_, name, to);
        require(nameAt(to) == name, name + " is not where it was laid");
        seen_.emplace(name, to);
        expectTable("");
    }

    Settings settings_;
    Point size_;
    int left_;
    Table table_;
    std::unique_ptr<Hands> hands_;
    // The middles of the corner piles, one for each suit; and a place near the top left corner of the deck's pile.
    std::array<Point, 4> corners_{middle(-1, -1), middle(1, -1), middle(-1, 1), middle(1, 1)};
    Point deck_{std::floor(4537 - size_.x / 2), std::floor(3037 - size_.y / 2)};
    int laidAside_ = 0;
    std::multimap<std::string, Point> seen_; // where each card was last seen
    std::array<int, 4> played_{};            // the number of cards of its suit on each corner
    std::array<std::string, 4> shown_;       // the name of each corner pile
};

} // namespace

void require(bool holds, const std::string& what) {
    if (!holds) {
        throw std::logic_error(what);
    }
}

void choose(frmTumbleOptions& dialog, const Settings& settings) {
    const auto select = [](const Frame& frame, std::size_t choice) {
        std::get<OptionButton*>(frame.controls().at(choice))->Select();
    };
    select(dialog.fraDeckType, settings.deck);
    select(dialog.fraCardSize, settings.size);
    select(dialog.fraCardOrder, settings.order);
    select(dialog.fraLayout, settings.layout);
    select(dialog.fraFaceDir, settings.face);
    dialog.sldBackDesign.Value(static_cast<int>(settings.back) + 1);
}

void playToTheWin(const Settings& settings, std::vector<float> shuffle, PlayedBy playedBy) {
    Player(settings, std::move(shuffle), playedBy).win();
}

} // namespace tumble
