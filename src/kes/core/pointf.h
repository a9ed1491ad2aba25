#ifndef KES_CORE_POINTF_H
#define KES_CORE_POINTF_H

namespace kes::core {

/// A point with double coordinates, x then y.
struct PointF
{
    double x = 0.0;
    double y = 0.0;

    friend constexpr bool operator==(const PointF& lhs, const PointF& rhs)
    {
        return lhs.x == rhs.x && lhs.y == rhs.y;
    }
    friend constexpr bool operator!=(const PointF& lhs, const PointF& rhs) { return !(lhs == rhs); }
};

} // namespace kes::core

#endif
