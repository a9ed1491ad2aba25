#ifndef KES_CORE_LINE_H
#define KES_CORE_LINE_H

#include <kes/core/color.h>
#include <kes/core/pointf.h>

namespace kes::core {

/// A line segment to draw over an image, from p1 to p2, in image pixel coordinates.
struct Line
{
    PointF p1;
    PointF p2;
    Color color;

    friend constexpr bool operator==(const Line& lhs, const Line& rhs)
    {
        return lhs.p1 == rhs.p1 && lhs.p2 == rhs.p2 && lhs.color == rhs.color;
    }
    friend constexpr bool operator!=(const Line& lhs, const Line& rhs) { return !(lhs == rhs); }
};

} // namespace kes::core

#endif
