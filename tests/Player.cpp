#include "tests/Player.h"

#include <map>
#include <optional>
#include <stdexcept>
#include <utility>

namespace tumble {

namespace {

constexpr std::array lowestRanks{2, 2, 6, 7, 9, 2, 9, 7};                       // of the decks
constexpr std::array<Point, 3> sizes{{{729, 1134}, {900, 1400}, {1233, 1918}}}; // width and height of a card
constexpr std::array<Point, 4> corners{{{300, 300}, {8644, 300}, {300, 5644}, {8644, 5644}}}; // one for each suit

std::string onPile(const std::string& name) {
    return "Pile (" + name + ")";
}

class Player {
public:
    Player(const Settings& settings, std::vector<float> shuffle)
        : settings_(settings), size_(sizes.at(settings.size)), left_(cardsOfDeck.at(settings.deck)) {
        shown_.fill(onPile("empty"));
        table_.desktop.random().script(std::move(shuffle));
        table_.program.Main();
        choose(table_.program.options(), settings);
        table_.program.options().cmdPlay.Click();
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
    const std::string& nameAt(Point at) {
        table_.move(at);
        return table_.label();
    }

    /// The name of the card on the pile in the middle, if there is one.
    std::string topOfDeck() {
        const std::string& name = nameAt(deck_);
        return name.starts_with("Pile (") ? name.substr(6, name.size() - 7) : "empty";
    }

    // Each card of a spread shows at least 150 by 1000 twips of itself.
    void lookOver() {
        seen_.clear();
        for (Point at{70, 50}; at.y < 6000; at = at.x < 8860 ? Point{at.x + 140, at.y} : Point{70, at.y + 840}) {
            if (const std::string& name = nameAt(at); name != "None" && !name.starts_with("Pile (")) {
                seen_.emplace(name, at);
            }
        }
    }

    /// The card that goes onto the corner next; past the Ace there is none of that name.
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
        for (std::size_t corner = 0; corner < corners.size(); ++corner) {
            for (const std::string& name : {wanted(corner), std::string("Joker")}) {
                if (const auto from = find(name)) {
                    drag(*from, name, corners.at(corner));
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
        table_.press(from);
        require(table_.label() == name || table_.label() == onPile(name), "pressed " + name + ": " + table_.label());
        if (++drags_ % 2 == 0) { // else the release is the only step
            table_.move({(from.x + to.x) / 2, (from.y + to.y) / 2});
        }
        table_.release(to);
    }

    void expectTable(const std::string& messages) {
        const std::string said = table_.messages();
        require(said == messages, "expected '" + messages + "', got '" + said + "'");
        for (std::size_t corner = 0; corner < corners.size(); ++corner) {
            const std::string& name = nameAt(corners.at(corner));
            require(name == shown_.at(corner), "not " + shown_.at(corner) + " but " + name);
        }
    }

    /// Lays the deck's top card where it touches no pile and leaves a strip of the one laid before it to see.
    void layAside(const std::string& name) {
        const int perRow = static_cast<int>(8925 - 3 * size_.x) / 100;
        const auto column = static_cast<float>(laidAside_ % perRow);
        const Point to{size_.x + 15 + 100 * column, laidAside_ < perRow ? 10.0F : 4010.0F};
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
    Point deck_{4517 - size_.x / 2, 3017 - size_.y / 2}; // near the top left corner of the pile in the middle
    int laidAside_ = 0;
    int drags_ = 0;
    std::multimap<std::string, Point> seen_; // where cards showed when last looked at
    std::array<int, 4> played_{};            // cards of its suit on each corner
    std::array<std::string, 4> shown_;       // the name of each corner
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

void playToTheWin(const Settings& settings, std::vector<float> shuffle) {
    Player(settings, std::move(shuffle)).win();
}

} // namespace tumble
