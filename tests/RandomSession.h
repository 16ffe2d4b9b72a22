#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace tumble {

/// Runs one session that the bytes describe, whatever they are, on a desktop in memory: the choices in the dialog and
/// then what mouse, keys, fingers and the buttons do at the table, or operations of tracker, packs and cards with any
/// numbers. Throws what is wrong as soon as something is; gives the number of events.
std::size_t runSession(std::span<const std::uint8_t> bytes);

} // namespace tumble
