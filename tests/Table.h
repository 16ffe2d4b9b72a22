#pragma once

#include "game/MainMod.h"
#include "platform/forms/Mouse.h"
#include "platform/input/KeyboardPointer.h"
#include "platform/input/TouchGesture.h"
#include "platform/memory/MemoryDesktop.h"
#include "rules/PileAccepterTumble.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <vector>

namespace tumble {

/// What items show, each with its top left corner: "AceSpades 100,200; edge of 3 0,0; marked yellow 0,8.5".
std::string inWords(std::span<const DisplayItem> items);
/// All operations of an item: "fill 0,0 728,1133 green; line 0,0 728,1133 black".
std::string inFull(const DisplayItem& item);

/// A filled box as an item of its own.
DisplayItem fill(const Rect& place, Colour colour);
/// The items on a surface of 3000 by 2000 twips.
DisplayList painted(std::span<const DisplayItem> items);

using Cards = std::vector<std::shared_ptr<Card>>;
std::shared_ptr<Card> makeCard(CardRank rank, CardSuit suit);
std::shared_ptr<Card> makeJoker();

/// The program on a desktop in memory. The table is open and empty.
class Table {
public:
    Table();

    CardTracker& tracker() const { return *program.tableTracker; }
    PictureBox& picture() { return program.table().picTable; }
    const std::string& label() { return program.table().lblCurrentCard.Caption(); }

    /// Lays a small card, face up, with its top left corner at the place.
    void lay(CardRank rank, CardSuit suit, float X, float Y) const;
    /// Lays a pile of small cards, the bottom one first, with its top left corner at the place.
    std::shared_ptr<CardPack> layPile(float X, float Y, const Cards& cards = {},
                                      const std::shared_ptr<PileAccepter>& taker = nullptr) const;

    void press(Point at, std::int16_t button = leftButton) {
        held_ = static_cast<std::int16_t>(held_ | button);
        pointer.press(button, 0, at);
    }
    void move(Point to) { pointer.move(held_, 0, to); }
    void release(Point at) {
        held_ = static_cast<std::int16_t>(held_ & ~leftButton);
        pointer.release(leftButton, 0, at);
    }
    void drag(Point from, Point to);

    /// What was painted on the table since the last call.
    std::string painted();
    /// The cards on the table, the lowest first, painted by a drop without a card. Afterwards no card is current.
    std::string cards();
    /// The message boxes since the last call, each "caption: text".
    std::string messages();

    MemoryDesktop desktop{application()};
    MainMod program;
    MouseCapture capture{picture()};
    KeyboardPointer pointer{capture};
    TouchGesture gesture{pointer};
    /// The rules of a standard deck, with 23 cards on the piles.
    std::shared_ptr<PileAccepterTumble> accepter =
        std::make_shared<PileAccepterTumble>([] { return std::int16_t{23}; });

private:
    std::size_t seen_ = 0;
    std::int16_t held_ = 0; // the sum of the mouse's buttons
};

} // namespace tumble
