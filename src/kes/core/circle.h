#ifndef KES_CORE_CIRCLE_H
#define KES_CORE_CIRCLE_H

#include <kes/core/color.h>

namespace kes::core {

/// A circle over an image: centre and radius in image pixels. Single precision, as detectors
/// deliver them; drawing code computes the bounding rectangle in float too.
struct Circle
{
    float x = 0.0f;
    float y = 0.0f;
    float radius = 0.0f;
    Color color;

    friend constexpr bool operator==(const Circle& lhs, const Circle& rhs)
    {
        return lhs.x == rhs.x && lhs.y == rhs.y && lhs.radius == rhs.radius && lhs.color == rhs.color;
    }
    friend constexpr bool operator!=(const Circle& lhs, const Circle& rhs) { return !(lhs == rhs); }
};

} // namespace kes::core

#endif
