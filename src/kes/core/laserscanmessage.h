#ifndef KES_CORE_LASERSCANMESSAGE_H
#define KES_CORE_LASERSCANMESSAGE_H

#include <kes/core/vector.h>

namespace kes::core {

/// One sweep of a planar laser range finder. Beam i points at startAngle + i * angleIncrement;
/// angles are in radians, counter-clockwise, distances in metres.
struct LaserScanMessage
{
    float startAngle = 0.0f;
    float endAngle = 0.0f;
    float angleIncrement = 0.0f;
    float maxRange = 0.0f; ///< a range at or beyond this means "nothing hit"
    Vector<float> ranges;  ///< one per beam
    /// Echo strength per beam; shorter than ranges, or empty, when the sensor reports fewer.
    Vector<float> intensities;
};

} // namespace kes::core

#endif
