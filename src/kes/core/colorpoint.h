#ifndef KES_CORE_COLORPOINT_H
#define KES_CORE_COLORPOINT_H

#include <kes/core/color.h>

namespace kes::core {

/// A single marked point over an image, in image pixel coordinates.
struct ColorPoint
{
    double x = 0.0;
    double y = 0.0;
    Color color;

    friend constexpr bool operator==(const ColorPoint& lhs, const ColorPoint& rhs)
    {
        return lhs.x == rhs.x && lhs.y == rhs.y && lhs.color == rhs.color;
    }
    friend constexpr bool operator!=(const ColorPoint& lhs, const ColorPoint& rhs) { return !(lhs == rhs); }
};

} // namespace kes::core

#endif
