#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace halftone {

/// A square of 8-bit grey levels, row by row from the top; 0 is black.
struct GreyImage
{
    static constexpr int side = 96;
    static constexpr std::size_t count = std::size_t{side} * side;

    std::array<std::uint8_t, count> levels{};

    static constexpr std::size_t index(int x, int y)
    {
        return static_cast<std::size_t>(y) * side + static_cast<std::size_t>(x);
    }
    std::uint8_t &at(int x, int y) { return levels[index(x, y)]; }
    std::uint8_t at(int x, int y) const { return levels[index(x, y)]; }
};

/// The sample that every method is shown on: a lit ball with its shadow above a wedge from black to white.
GreyImage greySource();

} // namespace halftone
