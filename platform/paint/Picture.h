#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <utility>

namespace tumble {

/// An encoded picture under a key. The bytes belong to its creator and outlive it. A picture without bytes, or with
/// bytes that cannot be decoded, paints as a white card crossed in red. Never copied: its address is its identity.
struct Picture {
    std::string Key;
    std::span<const std::byte> data;

    Picture(std::string key, std::span<const std::byte> bytes) : Key(std::move(key)), data(bytes) {}
    Picture(Picture&&) = default;
};

} // namespace tumble
