#include "tests/Player.h"
#include "tests/RandomSession.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace tumble {
namespace {

class EverySetting : public testing::TestWithParam<std::size_t> {
protected:
    /// Plays a deck in each size, order and layout, each with 1 to 8 of the combinations of back and face.
    static void play(std::size_t deck, std::size_t backsAndFaces) {
        for (std::size_t game = 0; game < 36 * backsAndFaces; ++game) {
            SCOPED_TRACE(testing::Message() << "deck " << deck << ", game " << game);
            const std::size_t look = game / 36 + game % 8;
            const Settings settings{deck, game % 3, game / 3 % 6, game / 18 % 2, look % 4, look / 4 % 2};
            ASSERT_NO_THROW(playToTheWin(settings, shuffle(game)));
        }
    }

    /// Random values, the same in every run.
    static std::vector<float> shuffle(std::size_t game) {
        std::mt19937 random(static_cast<std::mt19937::result_type>(game));
        std::vector<float> values(2080);
        std::generate(values.begin(), values.end(), [&] { return static_cast<float>(random() >> 8) / 0x1p24F; });
        return values;
    }
};

TEST_P(EverySetting, IsPlayedToTheWin) {
    play(GetParam(), 1);
}

TEST_P(EverySetting, IsPlayedToTheWinWithEveryBackAndFace) {
    play(GetParam(), 8);
}

// Every size with every layout; the orders take turns.
TEST_P(EverySetting, IsWonByKeysAlone) {
    for (std::size_t game = 0; game < 6; ++game) {
        SCOPED_TRACE(game);
        const Settings settings{GetParam(), game % 3, (GetParam() + game) % 6, game / 3, game % 4, game % 2};
        ASSERT_NO_THROW(playToTheWin(settings, shuffle(game), PlayedBy::Keys));
    }
}

INSTANTIATE_TEST_SUITE_P(Deck, EverySetting, testing::Range<std::size_t>(0, 8));

class RandomSession : public testing::TestWithParam<unsigned> {};

TEST_P(RandomSession, HoldsThroughRandomSessions) {
    std::mt19937 random(GetParam());
    for (std::size_t events = 0; events < 125000;) {
        std::vector<std::uint8_t> bytes(random() % 4096);
        std::generate(bytes.begin(), bytes.end(), [&] { return static_cast<std::uint8_t>(random()); });
        SCOPED_TRACE(testing::Message() << "after " << events << " events");
        ASSERT_NO_THROW(events += runSession(bytes));
    }
}

INSTANTIATE_TEST_SUITE_P(Seed, RandomSession, testing::Range(1U, 9U));

} // namespace
} // namespace tumble
