#ifndef KES_CORE_IMAGE_SEGMENT_H
#define KES_CORE_IMAGE_SEGMENT_H

#include <kes/core/color.h>
#include <kes/core/line.h>
#include <kes/core/vector.h>

#include <cstdint>

namespace kes::core::image {

/// One region found by a segmentation: its size, identity, colour, centre and outline. The count
/// comes first because a count of 0 is how producers say "no segment here".
struct Segment
{
    std::uint32_t count = 0; ///< pixels in the segment
    std::int32_t id = 0;
    Color color;
    std::int32_t centerX = 0; ///< pixel position of the centre
    std::int32_t centerY = 0;
    Vector<Line> lines; ///< the outline

    bool isNull() const { return count == 0; }

    friend bool operator==(const Segment& lhs, const Segment& rhs)
    {
        return lhs.count == rhs.count && lhs.id == rhs.id && lhs.color == rhs.color
               && lhs.centerX == rhs.centerX && lhs.centerY == rhs.centerY && lhs.lines == rhs.lines;
    }
    friend bool operator!=(const Segment& lhs, const Segment& rhs) { return !(lhs == rhs); }
};

using SegmentList = Vector<Segment>;

} // namespace kes::core::image

#endif
