#ifndef KES_CORE_IMAGE_OVERLAY_H
#define KES_CORE_IMAGE_OVERLAY_H

#include <kes/core/circle.h>
#include <kes/core/colorpoint.h>
#include <kes/core/image/image.h>
#include <kes/core/image/segment.h>
#include <kes/core/kes_core_export.h>
#include <kes/core/line.h>
#include <kes/core/vector.h>

#include <optional>

namespace kes::core::image {

/// Shapes to draw over an image, in the image's full pixel coordinates. An Image holds it through
/// a shared pointer to const: attach a changed copy rather than changing it in place.
struct Overlay
{
    Vector<Line> lines;
    Vector<ColorPoint> points;
    /// Unset until circles are attached, so that "no circle detection ran" differs from "none found".
    std::optional<Vector<Circle>> circles;
    SegmentList segments;
};

// Getters give empty lists for an image without overlay data. Setters attach a new overlay that
// differs from the current one in that field only; copies of the image taken before keep theirs.

KES_CORE_EXPORT Vector<Line> getLines(const Image& image);
KES_CORE_EXPORT Vector<ColorPoint> getPoints(const Image& image);
/// \a ok, if given, is set to whether circles were attached, even an empty list of them.
KES_CORE_EXPORT Vector<Circle> getCircles(const Image& image, bool* ok = nullptr);
KES_CORE_EXPORT SegmentList getSegmentList(const Image& image);

KES_CORE_EXPORT void setLines(Image& image, const Vector<Line>& lines);
KES_CORE_EXPORT void setPoints(Image& image, const Vector<ColorPoint>& points);
KES_CORE_EXPORT void setCircles(Image& image, const Vector<Circle>& circles);
KES_CORE_EXPORT void setSegmentList(Image& image, const SegmentList& segments);

} // namespace kes::core::image

#endif
