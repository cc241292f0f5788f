#pragma once

/// One 16-bit character as an argument. A byte is the unit of its number, from 0 to 255, whether
/// char is signed or not; there is no way from other integers, which might be cut.
struct TCharacter {
    /// A 16-bit unit.
    constexpr TCharacter(char16_t chUnit) noexcept : mchUnit(chUnit) {}
    /// A byte.
    constexpr TCharacter(char chByte) noexcept : mchUnit(static_cast<unsigned char>(chByte)) {}

    char16_t mchUnit; ///< the unit
};
