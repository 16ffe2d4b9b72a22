#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace tumble {

/// Runs a session on a desktop in memory. Any bytes describe one: the choices in the dialog, then mouse, keys, fingers
/// and buttons at the table, or operations of tracker, packs and cards with any numbers. Throws std::logic_error as
/// soon as an invariant is violated; returns the number of events.
std::size_t runSession(std::span<const std::uint8_t> bytes);

} // namespace tumble
