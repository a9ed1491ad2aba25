#ifndef KES_CORE_ROI_H
#define KES_CORE_ROI_H

#include <kes/core/color.h>

#include <cstdint>

namespace kes::core {

/// A rectangular region of interest in image pixels. The member order is part of the interface:
/// position (signed, so that a region may start left of or above an image), colour, then size.
struct Roi
{
    std::int32_t x = 0;
    std::int32_t y = 0;
    Color color = Color::red;
    std::uint32_t width = 0;
    std::uint32_t height = 0;

    constexpr Roi() = default;
    constexpr Roi(std::int32_t x, std::int32_t y, std::uint32_t width, std::uint32_t height,
                  Color color = Color::red)
        : x(x), y(y), color(color), width(width), height(height)
    {
    }

    constexpr bool isEmpty() const { return width == 0 || height == 0; }

    friend constexpr bool operator==(const Roi& lhs, const Roi& rhs)
    {
        return lhs.x == rhs.x && lhs.y == rhs.y && lhs.color == rhs.color && lhs.width == rhs.width
               && lhs.height == rhs.height;
    }
    friend constexpr bool operator!=(const Roi& lhs, const Roi& rhs) { return !(lhs == rhs); }
};

} // namespace kes::core

#endif
