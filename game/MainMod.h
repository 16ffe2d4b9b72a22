#pragma once

#include "game/frmTumble.h"
#include "packs/CardPack.h"
#include "packs/frmTumbleOptions.h"
#include "platform/forms/Desktop.h"

#include <cstdint>
#include <memory>

namespace tumble {

/// The program's name, version, icon and size.
Application application();

/// Startup, set-up and shared state of the game. A run plays one game.
class MainMod {
public:
    MainMod();

    /// Shows the options dialog and returns; events drive the rest.
    void Main();

    /// Closes the options dialog, opens the table and lays out the game. `lsSpread` deals the cards over the table; any
    /// other layout lays them as one pile. A card size, order or deck outside its set is reported to the player.
    void startGame(CardSize size, BackStyle backStyle, FaceDirection faceDir, DeckType dckType, SortOrder sortOrder,
                   LayoutStyle inPile);

    frmTumbleOptions& options() { return options_; }
    frmTumble& table() { return table_; }

    // Empty until the game is set up.
    std::unique_ptr<CardTracker> tableTracker;
    std::shared_ptr<CardPack> pileTopLeft;
    std::shared_ptr<CardPack> pileTopRight;
    std::shared_ptr<CardPack> pileBottomLeft;
    std::shared_ptr<CardPack> pileBottomRight;

private:
    std::int16_t numPileCards() const;

    frmTumbleOptions options_;
    frmTumble table_;
};

} // namespace tumble
