#include "tests/EventStream.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <exception>
#include <iostream>
#include <random>
#include <vector>

namespace tumble {
namespace {

class EventStream : public testing::TestWithParam<unsigned> {};

TEST_P(EventStream, HoldsThroughRandomSessions) {
    std::mt19937 random(GetParam());
    std::size_t sessions = 0;
    std::size_t events = 0;
    for (; events < 125000; ++sessions) {
        std::vector<std::uint8_t> bytes(random() % 4096);
        std::generate(bytes.begin(), bytes.end(), [&] { return static_cast<std::uint8_t>(random()); });
        try {
            events += runSession(bytes);
        } catch (const std::exception& fault) {
            FAIL() << "seed " << GetParam() << ", session " << sessions << ": " << fault.what();
        }
    }
    std::cout << "seed " << GetParam() << ": " << sessions << " sessions, " << events << " events\n";
}

INSTANTIATE_TEST_SUITE_P(Seed, EventStream, testing::Range(1U, 9U));

} // namespace
} // namespace tumble
